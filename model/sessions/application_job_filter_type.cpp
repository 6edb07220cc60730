#include <zelmodel/sessions/application_job_filter_type.h>

#include <string_view>

#include <zelplatform/exc/exc.h>

namespace zelplatform::model
{
namespace
{

struct Row
{
    guid::guid_t value;
    std::string_view name;
    std::string_view words;
};

constexpr Row Rows[] = {
    {EApplicationJobFilterType::OracleDb, "OracleDb", "Oracle database"},
    {EApplicationJobFilterType::MySqlDb, "MySqlDb", "MySQL database"},
    {EApplicationJobFilterType::PostgresDb, "PostgreSqlDb", "Postgres database"},
};

std::string textOf(const guid::guid_t& value, std::string_view Row::*column, const char* message)
{
    for (const auto& row : Rows)
    {
        if (row.value == value)
            return std::string(row.*column);
    }
    throw exc::CRuntimeExc(message, value.ToAStr());
}

} // namespace

std::string EApplicationJobFilterType::ToStr(const guid::guid_t& value)
{
    return textOf(value, &Row::name, "Cannot convert application job filter type to string: unknown record type [%1]");
}

std::string EApplicationJobFilterType::ToUserFriendlyStr(const guid::guid_t& value)
{
    return textOf(value, &Row::words,
                  "Cannot convert application job filter type to user-friendly string: unknown record type [%1]");
}

guid::guid_t EApplicationJobFilterType::FromStr(const std::string& text)
try
{
    for (const auto& row : Rows)
    {
        if (row.name == text)
            return row.value;
    }
    throw exc::CRuntimeExc("Unknown application job filter type");
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Failed to convert string(%1) to EApplicationJobFilterType::type", text, cause);
}

} // namespace zelplatform::model
