#pragma once

#include <optional>
#include <string>
#include <utility>

#include <zelmodel/export.h>
#include <zelplatform/xmlpp/xml_node.h>

namespace zelplatform::model::structs
{

/// A time of day, or the length of a period, in hours and minutes. Construction and the setters store whatever they
/// are given; only Validate checks, and the owner calls it.
class ZELMODEL_API CScheduleTime
{
public:
    /// Any numbers.
    CScheduleTime(unsigned long hours, unsigned long minutes) noexcept;

    /// Reads "HH:MM"; each part is a decimal number of 32 bits without further range check. The flag plays no part.
    /// Throws "Unable to parse time. ...".
    static CScheduleTime FromTimeStr(const std::string& text, bool periodical);

    /// Takes the hours and minutes of a duration in seconds; the rest of a minute is dropped. Throws "Failed to convert
    /// from UnixTime. ..." when the hours or minutes do not fit into 0..255.
    static CScheduleTime FromUnixTime(long seconds);

    /// Stores any numbers.
    void Set(unsigned long hours, unsigned long minutes) noexcept;
    void SetHours(unsigned long hours) noexcept;
    void SetMinutes(unsigned long minutes) noexcept;

    /// Sets 0:00, whatever the flag says.
    void Reset(bool periodical) noexcept;

    /// With the flag, a period of 0:00 becomes 24:00: that is how the managing server writes a whole day.
    void FixQorTimeFormat(bool periodical) noexcept;

    /// Hours and minutes.
    std::pair<unsigned long, unsigned long> Get() const noexcept;
    unsigned long GetHours() const noexcept;
    unsigned long GetMinutes() const noexcept;

    /// Hours times 3600 plus minutes times 60; wraps as unsigned arithmetic does.
    unsigned long ToSeconds() const noexcept;

    /// Checks hours (at most 24 for a period, 23 for a time of day) and minutes (at most 59). Throws "Failed to
    /// validate time [%1] (schedule is periodically? [%2]). ...".
    void Validate(bool periodically) const;

    /// "07:05": two digits each, more when the number has more.
    std::string ToTimeStr() const;

    /// "1 hour 30 minutes", "2 hours", "45 minutes", "0 minutes".
    std::string ToUserFriendlyStr() const;

    /// The decimal number with a leading zero when it has one digit.
    static std::string NumberToTwoDigitNumber(unsigned long number);

    /// "1 hour", "2 hours", "0 hours".
    static std::string HoursToUserFriendlyStr(unsigned long hours);

    /// "1 minute", "2 minutes", "0 minutes".
    static std::string MinutesToUserFriendlyStr(unsigned long minutes);

    /// Adds the child "Time" with "Hours" and "Minutes". Throws "ScheduleTime: Failed to serialize to Xml. ...".
    void ToXml(xmlpp::CXmlNode& parent) const;

    /// Reads the child "Time", or the node's own attributes as older documents carry them. Gives nothing when neither
    /// "Hours" nor "Minutes" is there; isPeriodical tells whether "Type" is 1. Of each number only the low 8 bits are
    /// kept. Throws "ScheduleTime: Failed to deserialize from Xml (safe) ..." for what is no number.
    static std::optional<CScheduleTime> FromXmlSafe(const xmlpp::CXmlNode& node, bool& isPeriodical);

    /// As FromXmlSafe, but a node without a time fails: "ScheduleTime: Failed to deserialize from Xml. ...".
    static CScheduleTime FromXml(const xmlpp::CXmlNode& node);

    friend bool operator==(const CScheduleTime& a, const CScheduleTime& b) noexcept
    {
        return a.m_hours == b.m_hours && a.m_minutes == b.m_minutes;
    }
    friend bool operator!=(const CScheduleTime& a, const CScheduleTime& b) noexcept { return !(a == b); }

private:
    unsigned long m_hours;
    unsigned long m_minutes;
};

} // namespace zelplatform::model::structs
