#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <variant>

#include <zelplatform/datetime/date_time.h>
#include <zelplatform/export.h>

/// Arguments of commands.
namespace mivo
{

/// The arguments of a command: values of three types, each under a key. A setter replaces what the key held; a getter
/// never converts and throws for an unknown key or a value of another type.
class ZELPLATFORM_API CMivoCommandArgs
{
public:
    CMivoCommandArgs() = default;
    CMivoCommandArgs(const CMivoCommandArgs&) = default;
    CMivoCommandArgs(CMivoCommandArgs&&) noexcept = default;
    CMivoCommandArgs& operator=(CMivoCommandArgs&&) noexcept = default;
    ~CMivoCommandArgs() = default;

    /// All or nothing.
    CMivoCommandArgs& operator=(const CMivoCommandArgs& other) { return *this = CMivoCommandArgs(other); }

    /// Each stores the value under the key, whatever was there.
    void SetString(std::string_view key, std::string value);
    void SetUInt64(std::string_view key, unsigned long value);

    /// Keeps the seconds and the UTC flag.
    void SetDateTime(std::string_view key, const datetime::CDateTime& value);

    /// True when the key has a value of any type.
    bool Has(std::string_view key) const;

    /// The value; throws "Argument [%1] is not found." and "Argument [%1] has another type.".
    std::string GetString(std::string_view key) const;
    unsigned long GetUInt64(std::string_view key) const;
    datetime::CDateTime GetDateTime(std::string_view key) const;

private:
    using Value = std::variant<std::string, unsigned long, datetime::CDateTime>;

    void set(std::string_view key, Value value);

    template <class T>
    const T& get(std::string_view key) const;

    std::map<std::string, Value, std::less<>> m_values;
};

} // namespace mivo
