#pragma once

#include <memory>
#include <string>

#include <zelmodel/export.h>
#include <zelplatform/datetime/date_time.h>
#include <zelplatform/mivo/mivo.h>
#include <zelplatform/xmlpp/xml_node.h>

namespace zelplatform::model
{

/// One line of a task's log as the managing side sees it. Exchanged as command arguments, and read from XML.
struct ZELMODEL_API STaskLogRecord
{
    /// A severity word: "processing", "info", "warn" or "error".
    std::string status;

    /// The position in the log.
    unsigned long ordinalId = 0;

    /// Grows each time the record changes.
    unsigned long updateUsn = 0;

    /// What people read.
    std::string title;
    std::string description;

    /// In UTC.
    datetime::CDateTime updateTime{true};

    /// The name of what the line is about.
    std::string object;

    /// In UTC.

    /// In UTC.
    datetime::CDateTime startTime{true};

    /// Returned to the writer unchanged.
    std::string cookie;

    /// Throws "STaskLogRecord: Failed to unserial from mivo ..." for a missing argument, one of another type and an
    /// empty pointer.
    static STaskLogRecord FromMivo(const std::shared_ptr<mivo::CMivoCommandArgs>& arguments);

    /// The arguments that FromMivo reads.
    std::shared_ptr<mivo::CMivoCommandArgs> ToMivo() const;

    /// Reads the attributes of the node, all of which must be there; the managing side's status names become severity
    /// words. Throws "STaskLogRecord: Failed to unserial from xml. ...".
    static STaskLogRecord FromXml(const xmlpp::CXmlNode& node);

    friend bool operator==(const STaskLogRecord& a, const STaskLogRecord& b)
    {
        return a.status == b.status && a.ordinalId == b.ordinalId && a.updateUsn == b.updateUsn && a.title == b.title &&
               a.description == b.description && a.updateTime == b.updateTime && a.object == b.object &&
               a.startTime == b.startTime && a.cookie == b.cookie;
    }
    friend bool operator!=(const STaskLogRecord& a, const STaskLogRecord& b) { return !(a == b); }
};

} // namespace zelplatform::model
