#pragma once

#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

namespace zelmodel_test
{

/// The zone of this process for as long as the object lives.
class LocalZone
{
public:
    explicit LocalZone(const std::string& name)
    {
        if (const char* old = std::getenv("TZ"))
            m_old = old;
        ::setenv("TZ", name.c_str(), 1);
        ::tzset();
    }
    LocalZone(const LocalZone&) = delete;
    LocalZone& operator=(const LocalZone&) = delete;
    ~LocalZone()
    {
        if (m_old)
            ::setenv("TZ", m_old->c_str(), 1);
        else
            ::unsetenv("TZ");
        ::tzset();
    }

private:
    std::optional<std::string> m_old;
};

} // namespace zelmodel_test
