#include <zelmodel/enums/credential_type.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/enum_rows.h"

namespace zelplatform::model
{
namespace
{

using Rows = ECredentialType;

constexpr const char* TypeWords = "credential type";

constexpr auto StoredNames = detail::enumRows<Rows::type>({
    {Rows::Unknown, "Unknown"},
    {Rows::AAP, "AAP"},
    {Rows::ObjectStorageAWS, "ObjectStorageAWS"},
    {Rows::ObjectStorageGoogle, "ObjectStorageGoogle"},
    {Rows::ObjectStorageS3Compat, "ObjectStorageS3Compat"},
    {Rows::ObjectStorageAzure, "ObjectStorageAzure"},
});

} // namespace

std::string ECredentialType::ToStr(type value)
{
    if (const auto text = detail::findText(StoredNames, value))
        return std::string(*text);
    throw exc::CRuntimeExc("Unable to convert %1 [%2] to string.", TypeWords, util::toStr(value));
}

ECredentialType::type ECredentialType::FromStr(const std::string& text)
{
    if (const auto value = detail::findValue(StoredNames, text))
        return *value;
    throw exc::CRuntimeExc("Unable to convert %1 from string [%2].", TypeWords, text);
}

} // namespace zelplatform::model
