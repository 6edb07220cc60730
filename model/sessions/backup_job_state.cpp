#include <zelmodel/sessions/backup_job_state.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>
#include <zelplatform/xmlpp/xml_document.h>

#include "detail/session_names.h"

namespace zelplatform::model
{
namespace
{

namespace names = detail::session_names;

constexpr const char* WrittenVersion = "2";
constexpr const char* ReadFailed = "Failed to deserialize SBackupJobState.";

const char* modeName(unsigned long version)
{
    switch (version)
    {
    case 1: return names::ObjectStorageBackupMode;
    case 2: return names::ObjectStorageOperationMode;
    default: throw exc::CRuntimeExc("Unsupported backup job state xml version %1.", util::toStr(version));
    }
}

SBackupJobState readState(const xmlpp::CXmlNode& root)
{
    const auto* mode = modeName(root.GetUint64Attribute(names::Version));
    return {util::fromStr<long>(root.GetAttribute(mode))};
}

} // namespace

std::string SBackupJobState::ToXmlString() const
try
{
    xmlpp::CXmlDocument document;
    auto root = document.AddRootNode(names::BackupJobState);
    root.SetAttribute(names::Version, WrittenVersion);
    root.SetInt64Attribute(names::ObjectStorageOperationMode, objectStorageOperationMode);
    return document.Serialize();
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Failed to serialize SBackupJobState.", cause);
}

SBackupJobState SBackupJobState::FromXmlStr(const std::string& text)
try
{
    return readState(xmlpp::CXmlDocument::Unserialize(text).GetRootNode());
}
catch (std::exception& cause)
{
    exc::RegenTraceExc(ReadFailed, cause);
}

SBackupJobState SBackupJobState::FromXmlNode(const xmlpp::CXmlNode& root)
try
{
    return readState(root);
}
catch (std::exception& cause)
{
    exc::RegenTraceExc(ReadFailed, cause);
}

} // namespace zelplatform::model
