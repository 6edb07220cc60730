#include <zelplatform/mivo/command_args.h>

#include <utility>

#include <zelplatform/exc/exc.h>

namespace mivo
{

void CMivoCommandArgs::SetString(std::string_view key, std::string value)
{
    set(key, std::move(value));
}

void CMivoCommandArgs::SetUInt64(std::string_view key, unsigned long value)
{
    set(key, value);
}

void CMivoCommandArgs::SetDateTime(std::string_view key, const datetime::CDateTime& value)
{
    set(key, value);
}

bool CMivoCommandArgs::Has(std::string_view key) const
{
    return m_values.find(key) != m_values.end();
}

std::string CMivoCommandArgs::GetString(std::string_view key) const
{
    return get<std::string>(key);
}

unsigned long CMivoCommandArgs::GetUInt64(std::string_view key) const
{
    return get<unsigned long>(key);
}

datetime::CDateTime CMivoCommandArgs::GetDateTime(std::string_view key) const
{
    return get<datetime::CDateTime>(key);
}

void CMivoCommandArgs::set(std::string_view key, Value value)
{
    m_values.insert_or_assign(std::string(key), std::move(value));
}

template <class T>
const T& CMivoCommandArgs::get(std::string_view key) const
{
    const auto found = m_values.find(key);
    if (found == m_values.end())
        throw exc::CRuntimeExc("Argument [%1] is not found.", std::string(key));
    const auto* const value = std::get_if<T>(&found->second);
    if (value == nullptr)
        throw exc::CRuntimeExc("Argument [%1] has another type.", std::string(key));
    return *value;
}

} // namespace mivo
