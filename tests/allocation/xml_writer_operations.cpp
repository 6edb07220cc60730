#include <zelmodel/job_options.h>
#include <zelmodel/repositories.h>
#include <zelmodel/structs/entity_option_key.h>

#include "samples.h"
#include "xml_target.h"

namespace zelmodel_test
{
namespace
{

using namespace zelplatform::model;
using namespace zelplatform::model::structs;

template <class T>
WriteXml toXml(T record)
{
    return [record](xmlpp::CXmlNode& node) { record.ToXml(node); };
}

template <class T>
WriteXml toXmlNode(T record)
{
    return [record](xmlpp::CXmlNode& node) { record.ToXmlNode(node); };
}

Operations scheduleWriters()
{
    const auto schedule = fullSchedule();
    CScheduleCalendar calendar;
    calendar.SetMonthlyOnDay(CScheduleTime(22, 30), CDayOfMonth(15), summer());
    return writing("CScheduleTime.ToXml", toXml(CScheduleTime(22, 30))) + writing("CWeekMask.ToXml", toXml(weekend())) +
           writing("CMonthMask.ToXml", toXml(summer())) + writing("CDayOfMonth.ToXml", toXml(CDayOfMonth(15))) +
           writing("CScheduleCalendar.ToXml", toXml(calendar)) +
           writing("CStartJobScheduleOptions.ToXml", toXml(schedule.GetJobStartOptions())) +
           writing("CFullBackupOptions.ToXml", toXml(schedule.GetActiveFullOptions())) +
           writing("CScheduleOptions.ToXml", toXml(schedule)) +
           writing("BackupWindow.toXml", [window = officeHours()](xmlpp::CXmlNode& node) { window.toXml(node); }) +
           writing("BackupWindow.injectMatrix",
                   [window = officeHours()](xmlpp::CXmlNode& node) { window.injectMatrix(node); });
}

Operations policyWriters()
{
    const auto policy = allRules();
    return writing("SGfsPolicyInfo.toXml", [policy](xmlpp::CXmlNode& node) { policy.toXml(node, true); }) +
           writing("SGfsPolicyInfo.toXmlImpl", [policy](xmlpp::CXmlNode& node) { policy.toXmlImpl(node, false); }) +
           writing("SGfsPolicyInfoBase.toXml", [policy](xmlpp::CXmlNode& node) { policy.yearly->toXml(node, true); });
}

Operations jobWriters()
{
    const SIndexingOptions only{EIndexingType::IndexOnly, longText("/etc")};
    const SOracleArchivedLogsTruncationConfig truncation{EArchivedLogsTruncationMode::ByAge, 10, 24};
    return writing("SIndexingOptions.ToXml", toXml(only)) +
           writing("SIndexingOptions.ToXml.all", toXml(SIndexingOptions{EIndexingType::IndexAll, {}})) +
           writing("SBackupJobOptions.toXml", [job = fullJob()](xmlpp::CXmlNode& node) { job.toXml(node); }) +
           writing("SOracleArchivedLogsTruncationConfig.ToXml", toXml(truncation)) +
           writing("SEntityOptionKey.ToXmlNode", toXmlNode(SEntityOptionKey{longText()}));
}

Operations storageWriters()
{
    const auto s3 = fullS3();
    return writing("SAmazonS3Proxy.ToXmlNode", toXmlNode(*s3.endpoint.proxy)) +
           writing("SAmazonS3Endpoint.ToXmlNode", toXmlNode(s3.endpoint)) +
           writing("SAmazonS3Credentials.ToXmlNode", toXmlNode(s3.credentials)) +
           writing("SAmazonS3SpecificParams.ToXmlNode", toXmlNode(s3)) +
           writing("SObjectStorageImmutabilitySettings.ToXml",
                   toXml(SObjectStorageImmutabilitySettings::CreateDisabled()));
}

// At the top of a document, beside an element of the caller.
Operations topWriters()
{
    const auto make = [] {
        const auto document = xmlpp::CXmlDocument::Unserialize("<Own/>");
        return XmlTarget{document, document.ToNode()};
    };
    return changing<XmlTarget>(
        "top", make, tellXml,
        {{"SBackupJobOptions.toXml", [job = fullJob()](XmlTarget& target) { job.toXml(target.node); }},
         {"SAmazonS3SpecificParams.ToXmlNode", [s3 = fullS3()](XmlTarget& target) { s3.ToXmlNode(target.node); }}});
}

} // namespace

Operations xmlWriterOperations()
{
    return topWriters() + scheduleWriters() + policyWriters() + jobWriters() + storageWriters();
}

} // namespace zelmodel_test
