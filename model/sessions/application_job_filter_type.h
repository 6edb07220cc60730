#pragma once

#include <string>

#include <zelmodel/export.h>
#include <zelplatform/guid/guid.h>

namespace zelplatform::model
{

/// The database engine that a filter record of an application-aware job targets, by a fixed identifier.
struct ZELMODEL_API EApplicationJobFilterType
{
    /// 7929741c-d273-43c0-848a-7e2157894e4a
    static constexpr guid::guid_t OracleDb{
        {0x79, 0x29, 0x74, 0x1c, 0xd2, 0x73, 0x43, 0xc0, 0x84, 0x8a, 0x7e, 0x21, 0x57, 0x89, 0x4e, 0x4a}};

    /// cfe9f04a-d964-4e5e-9400-6b1deea81076
    static constexpr guid::guid_t MySqlDb{
        {0xcf, 0xe9, 0xf0, 0x4a, 0xd9, 0x64, 0x4e, 0x5e, 0x94, 0x00, 0x6b, 0x1d, 0xee, 0xa8, 0x10, 0x76}};

    /// 4c411960-1738-11e9-ab14-d663bd873d93; its stored name is "PostgreSqlDb".
    static constexpr guid::guid_t PostgresDb{
        {0x4c, 0x41, 0x19, 0x60, 0x17, 0x38, 0x11, 0xe9, 0xab, 0x14, 0xd6, 0x63, 0xbd, 0x87, 0x3d, 0x93}};

    /// Throws "Cannot convert application job filter type to string: unknown record type [%1]".
    static std::string ToStr(const guid::guid_t& value);

    /// Throws "Cannot convert application job filter type to user-friendly string: unknown record type [%1]".
    static std::string ToUserFriendlyStr(const guid::guid_t& value);

    /// Compares exactly; throws "Failed to convert string(%1) to EApplicationJobFilterType::type ...".
    static guid::guid_t FromStr(const std::string& text);
};

} // namespace zelplatform::model
