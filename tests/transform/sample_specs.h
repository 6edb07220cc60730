#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include <zelplatform/guid/guid.h>
#include <zelplatform/xmlpp/xmlpp.h>

namespace zelmodel_test
{

inline guid::guid_t sessionId()
{
    return guid::guid_t::FromAStr("0f8fad5b-d9cb-469f-a165-70867728950e");
}

inline guid::guid_t backupId()
{
    return guid::guid_t::FromAStr("7c9e6679-7425-40de-944b-e07fc1f90ae7");
}

/// Three points, not in the order of their ids.
inline std::vector<guid::guid_t> threePoints()
{
    return {guid::guid_t::FromAStr("cccccccc-0000-0000-0000-000000000003"),
            guid::guid_t::FromAStr("aaaaaaaa-0000-0000-0000-000000000001"),
            guid::guid_t::FromAStr("bbbbbbbb-0000-0000-0000-000000000002")};
}

/// The id whose last digits are the number.
inline std::string numberedId(unsigned number)
{
    char text[37];
    std::snprintf(text, sizeof text, "12345678-9abc-def0-1234-%012x", number);
    return text;
}

inline std::vector<guid::guid_t> manyPoints(unsigned count)
{
    std::vector<guid::guid_t> points;
    for (unsigned number = 0; number < count; ++number)
        points.push_back(guid::guid_t::FromAStr(numberedId(number)));
    return points;
}

inline xmlpp::CXmlNode rootOf(const std::string& text)
{
    return xmlpp::CXmlDocument::Unserialize(text).GetRootNode();
}

/// The attributes "Id" and "BackupId".
inline std::string idAttributes()
{
    return " Id=\"0f8fad5b-d9cb-469f-a165-70867728950e\" BackupId=\"7c9e6679-7425-40de-944b-e07fc1f90ae7\"";
}

} // namespace zelmodel_test
