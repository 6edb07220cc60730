#pragma once

#include <string>
#include <vector>

namespace check
{

/// How grave a finding is.
enum class ESeverity
{
    Refused, ///< the library does not read the document
    Warning, ///< it is read, but surely not as it was meant
    Note,    ///< it is read as it was meant, and still worth knowing
};

/// "refused", "warning" or "note".
const char* nameOf(ESeverity severity);

/// A kind of finding. Its identifier is stable: programs may compare it, people may ask for it.
struct Rule
{
    const char* id;
    ESeverity severity;
    const char* title; ///< in a few words
    const char* cause; ///< why it is found
    const char* cure;  ///< what to do about it
};

/// Every kind of finding, the gravest first, by identifier among equals.
const std::vector<Rule>& allRules();

/// The kind of the identifier, or nothing.
const Rule* findRule(const std::string& id);

/// The identifiers by which findings are made.
namespace rule_id
{

inline constexpr const char* MalformedDocument = "malformed-document";
inline constexpr const char* MissingAttribute = "missing-attribute";
inline constexpr const char* MissingElement = "missing-element";
inline constexpr const char* RefusedValue = "refused-value";
inline constexpr const char* UnknownDocument = "unknown-document";

inline constexpr const char* BeginIsNoDate = "begin-is-no-date";
inline constexpr const char* DayNeverComes = "day-never-comes";
inline constexpr const char* FormsDisagree = "forms-disagree";
inline constexpr const char* FullNeverDue = "full-never-due";
inline constexpr const char* NarrowedNumber = "narrowed-number";
inline constexpr const char* NeverRuns = "never-runs";
inline constexpr const char* NoSuchTime = "no-such-time";
inline constexpr const char* OutOfRange = "out-of-range";
inline constexpr const char* RefusedWhenApplied = "refused-when-applied";
inline constexpr const char* RepeatedElement = "repeated-element";
inline constexpr const char* RetentionBeyondLimits = "retention-beyond-limits";
inline constexpr const char* UnknownName = "unknown-name";
inline constexpr const char* WindowAlwaysClosed = "window-always-closed";
inline constexpr const char* WindowClosedAtStart = "window-closed-at-start";

inline constexpr const char* DayMissesMonths = "day-misses-months";
inline constexpr const char* FullsWithoutEffect = "fulls-without-effect";
inline constexpr const char* IgnoredText = "ignored-text";
inline constexpr const char* NoBegin = "no-begin";
inline constexpr const char* OlderForm = "older-form";
inline constexpr const char* RestNotChecked = "rest-not-checked";
inline constexpr const char* WindowNeverCloses = "window-never-closes";

} // namespace rule_id

} // namespace check
