#pragma once

#include <string>

#include <zelmodel/enums/oib_algorithm.h>
#include <zelmodel/export.h>
#include <zelplatform/guid/guid.h>
#include <zelplatform/xmlpp/xml_node.h>

namespace zelplatform::model
{

/// Where the backup of a session goes, what it makes and how its retries stand, document "Details".
struct ZELMODEL_API JobSessionDetails
{
    /// The name of the element and those of its attributes.
    static constexpr const char* m_xml_Details = "Details";
    static constexpr const char* m_xml_RepoName = "repo_name";
    static constexpr const char* m_xml_BackupType = "backup_type";
    static constexpr const char* m_xml_OibId = "oib_id";
    static constexpr const char* m_xml_RepoFreeSpace = "repo_free_space";
    static constexpr const char* m_xml_RepoTotalSpace = "repo_total_space";
    static constexpr const char* m_xml_IsJobAwaitingForRetry = "is_job_awaiting_for_retry";
    static constexpr const char* m_xml_InitialRetriesNumber = "initial_retries_number";
    static constexpr const char* m_xml_CurrentAttemptNumber = "current_attempt_number";

    /// The target, the kind of the restore point that is made, and its identifier, all zero before there is one.
    std::string repositoryName;
    OibAlgorithm::type backupType = OibAlgorithm::Full;
    guid::guid_t restorePointId;

    /// In bytes; -1 is unknown.
    long repositoryFreeSpace = -1;
    long repositoryTotalSpace = -1;

    /// How many retries the job began with, and which attempt this is.
    unsigned long initialRetriesNumber = 0;
    unsigned long currentAttemptNumber = 0;

    /// True while the next attempt is waited for.
    bool isJobAwaitingForRetry = false;

    /// True when there is no repository name, whatever the rest says.
    bool isEmpty() const noexcept { return repositoryName.empty(); }

    /// Throws for a backup type without a name.
    std::string toXmlStr() const;

    /// Every attribute but "oib_id" must be there. A failure is logged with the whole input and thrown as "Failed to
    /// deserialize session details. ...".
    static JobSessionDetails fromXmlStr(const std::string& text);

    /// Reads the element of such a document, whose name is not looked at, in the same way; a failure is not logged.
    static JobSessionDetails fromXmlNode(const xmlpp::CXmlNode& root);

    friend bool operator==(const JobSessionDetails& a, const JobSessionDetails& b)
    {
        return a.repositoryName == b.repositoryName && a.backupType == b.backupType &&
               a.restorePointId == b.restorePointId && a.repositoryFreeSpace == b.repositoryFreeSpace &&
               a.repositoryTotalSpace == b.repositoryTotalSpace && a.initialRetriesNumber == b.initialRetriesNumber &&
               a.currentAttemptNumber == b.currentAttemptNumber && a.isJobAwaitingForRetry == b.isJobAwaitingForRetry;
    }
    friend bool operator!=(const JobSessionDetails& a, const JobSessionDetails& b) { return !(a == b); }
};

} // namespace zelplatform::model
