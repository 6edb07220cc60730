#pragma once

#include <exception>
#include <string>

#include <zelplatform/export.h>

/// Log sections, and the sinks that they write to.
namespace logging
{

/// A named part of the log. Each call writes one entry. With an exception the text is the formatted context, one blank
/// and the exception's message.
class ZELPLATFORM_API ILogSection
{
public:
    virtual ~ILogSection();

    /// Writes a text, an exception's message, or a format whose "%1" is a1 with that message behind it, at the level of
    /// the name.
    virtual void info(const std::string& text) = 0;
    virtual void warn(const std::string& text) = 0;
    virtual void warn(const std::string& format, const std::string& a1, const std::exception& cause) = 0;
    virtual void err(const std::string& text) = 0;
    virtual void err(const std::exception& cause) = 0;
    virtual void err(const std::string& format, const std::string& a1, const std::exception& cause) = 0;
};

/// A section that hands its entries to the sink in force at the moment of the call.
class ZELPLATFORM_API log_section_t : public ILogSection
{
public:
    /// The name that every entry carries.
    explicit log_section_t(std::string name);
    ~log_section_t() override;

    void info(const std::string& text) override;
    void warn(const std::string& text) override;
    void warn(const std::string& format, const std::string& a1, const std::exception& cause) override;
    void err(const std::string& text) override;
    void err(const std::exception& cause) override;
    void err(const std::string& format, const std::string& a1, const std::exception& cause) override;

private:
    std::string m_name;
};

} // namespace logging
