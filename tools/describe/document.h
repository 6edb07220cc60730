#pragma once

#include <memory>
#include <string>

#include <zelmodel/structs/schedule/backup_window.h>
#include <zelmodel/structs/schedule/schedule_options.h>
#include <zelplatform/xmlpp/xml_document.h>

#include "node.h"

namespace describe
{

/// The kinds of documents that can be told in words.
enum class EDocumentKind
{
    AgentJobOptions,  ///< root "JobOptions"
    ServerJobOptions, ///< root "JobOptionsRoot": the managing server's form, a part of the settings
    ScheduleOptions,  ///< root "ScheduleOptions"
    LoneSchedule,     ///< the parts of a schedule at the document's top, as binary forms carry them
    ScheduleWindow,   ///< root "ScheduleWindow"
    GfsPolicy,        ///< root "GfsPolicy", in the short or the long names
};

/// An XML document of any kind. Reading goes through the library's readers of nodes, so that what is refused is refused
/// with their words, and no message quotes the whole text.
class Document
{
public:
    /// Parses the text; throws exc::CRuntimeExc for malformed XML. What the text is about is asked later.
    explicit Document(const std::string& text);

    /// Told by the element at the top; an unknown one is refused.
    EDocumentKind kind() const;

    /// Everything that the document holds, as a tree. Throws what the library's reader of the kind throws, the pointer
    /// of an unknown window kind included.
    Node describe() const;

    /// The schedule of job options or of a schedule; other kinds are refused.
    zelplatform::model::structs::CScheduleOptions readSchedule() const;

    /// The window of a "ScheduleWindow" document; other kinds are refused.
    std::shared_ptr<zelplatform::model::structs::BackupWindow> readWindow() const;

    /// The line that was read last: after a refusal the one that it is about. 0 when none is known.
    int lastReadLine() const { return m_xml.LastReadLine(); }

private:
    xmlpp::CXmlDocument m_xml;
};

/// "job options in the agent's form", "a backup window" and so on.
std::string nameOf(EDocumentKind kind);

} // namespace describe
