#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <zelmodel/backup_job_options.h>
#include <zelmodel/structs/gfs/gfs_policy_info.h>
#include <zelmodel/structs/schedule/backup_window.h>
#include <zelmodel/structs/schedule/schedule_options.h>
#include <zelplatform/xmlpp/lookup_record.h>
#include <zelplatform/xmlpp/xml_document.h>

#include "document_kind.h"
#include "ignored.h"
#include "node.h"

namespace describe
{

/// An XML document of any kind. Reading goes through the library's readers, so that what is refused is refused with
/// their words, and no message quotes the whole text.
class Document
{
public:
    /// Parses the text; throws exc::CRuntimeExc for malformed XML. What the text is about is asked later.
    explicit Document(const std::string& text);

    /// See kindOf.
    EDocumentKind kind() const;

    /// Everything that the document holds, as a tree, and last what its reader ignores, when there is any. Throws what
    /// the library's reader of the kind throws, the pointer of an unknown window kind included.
    Node describe() const;

    /// The same without what the reader ignores. A record that lives meanwhile holds what the reader asked for.
    Node describeFields() const;

    /// What the reader ignores, by the questions that a record kept of describeFields.
    std::vector<IgnoredPart> listIgnored(const std::vector<xmlpp::SLookup>& lookups) const;

    /// Job options in either form; other kinds are refused.
    zelplatform::model::SBackupJobOptions readJobOptions() const;

    /// A GFS policy, and whether it uses the short names; other kinds are refused.
    zelplatform::model::structs::gfs::SGfsPolicyInfo readGfsPolicy(bool& isShortNames) const;

    /// The schedule of job options or of a schedule; other kinds are refused.
    zelplatform::model::structs::CScheduleOptions readSchedule() const;

    /// The window of a "ScheduleWindow" document; other kinds are refused.
    std::shared_ptr<zelplatform::model::structs::BackupWindow> readWindow() const;

    /// The document itself, for those who look at more than its reader does.
    xmlpp::CXmlNode top() const { return m_xml.ToNode(); }

    /// The line that was read last: after a refusal the one that it is about. 0 when none is known.
    int lastReadLine() const { return m_xml.LastReadLine(); }

private:
    std::optional<xmlpp::CXmlNode> enclosedElement() const;

    xmlpp::CXmlDocument m_xml;
};

} // namespace describe
