#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace zelmodel_test
{

/// An empty folder that is removed with all that a test has put into it.
class TemporaryFolder
{
public:
    TemporaryFolder() : m_path((std::filesystem::temp_directory_path() / "zelmodel_test_XXXXXX").string())
    {
        if (::mkdtemp(m_path.data()) == nullptr)
            throw std::runtime_error("The test's folder cannot be made.");
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() { std::filesystem::remove_all(m_path); }

    /// The path of a file in it.
    std::string operator/(const std::string& name) const { return m_path + '/' + name; }

    /// Writes a file and gives its path.
    std::string write(const std::string& name, std::string_view text) const { return put(name, text, std::ios::trunc); }

    std::string append(const std::string& name, std::string_view text) const { return put(name, text, std::ios::app); }

private:
    std::string put(const std::string& name, std::string_view text, std::ios::openmode mode) const
    {
        std::ofstream file(*this / name, std::ios::binary | mode);
        file.write(text.data(), static_cast<std::streamsize>(text.size()));
        if (!file.flush())
            throw std::runtime_error("The test's file " + name + " cannot be written.");
        return *this / name;
    }

    std::string m_path;
};

} // namespace zelmodel_test
