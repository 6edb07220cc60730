#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace zelmodel_test
{

/// An empty folder that is removed with all that a test has put into it.
class TemporaryFolder
{
public:
    TemporaryFolder() : TemporaryFolder(std::filesystem::temp_directory_path()) {}
    explicit TemporaryFolder(const std::filesystem::path& parent) : m_path((parent / "zelmodel_test_XXXXXX").string())
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

    /// What a file in it holds.
    std::string text(const std::string& name) const
    {
        std::ifstream file(*this / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

    /// The names of all files in it, sorted.
    std::vector<std::string> names() const
    {
        std::vector<std::string> all;
        for (const auto& entry : std::filesystem::directory_iterator(m_path))
            all.push_back(entry.path().filename().string());
        std::sort(all.begin(), all.end());
        return all;
    }

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
