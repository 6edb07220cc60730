#include "rule.h"

#include <algorithm>

namespace check
{
namespace
{

constexpr auto Refused = ESeverity::Refused;
constexpr auto Warning = ESeverity::Warning;
constexpr auto Note = ESeverity::Note;

} // namespace

const char* nameOf(ESeverity severity)
{
    switch (severity)
    {
    case ESeverity::Refused: return "refused";
    case ESeverity::Warning: return "warning";
    case ESeverity::Note: break;
    }
    return "note";
}

const std::vector<Rule>& allRules()
{
    static const std::vector<Rule> rules{
        {rule_id::MalformedDocument, Refused, "no acceptable XML",
         "The text is no XML that the library accepts: a tag is not closed, a name stands twice on an element, a "
         "character does not belong there, or a limit of size or depth is passed. Nothing behind that place is read.",
         "Repair the text at the line that is told, and check again: further faults show only then."},
        {rule_id::MissingAttribute, Refused, "a required attribute is missing",
         "The reader needs an attribute that the element does not have. Names count letter by letter, so a "
         "misspelled one is missing too; see unknown-name on the same element.",
         "Add the attribute, or correct the name of the one that was meant."},
        {rule_id::MissingElement, Refused, "a required element is missing",
         "The reader needs a child element that is not there, under exactly that name.",
         "Add the element, or correct the name of the one that was meant."},
        {rule_id::RefusedValue, Refused, "a value is not accepted",
         "A value that is there must be right: the whole text counts, blanks around it are a fault, words are "
         "compared letter by letter, and numbers must be in range.",
         "Write a value of the kind that the last sentence names."},
        {rule_id::UnknownDocument, Refused, "no document of a known kind",
         "The element at the top belongs to no document that the library reads.",
         "Check that this is the right file, and correct the name of the element at the top."},

        {rule_id::BeginIsNoDate, Warning, "the begin of a GFS rule is no date",
         "The text is no date of the form MM/DD/YYYY HH:MM:SS. The reader takes 01/01/1970 for it, so the rule is in "
         "force at once.",
         "Write a date of that form, or 01/01/1970 00:00:00 if the rule is meant to be in force at once."},
        {rule_id::DayNeverComes, Warning, "the chosen day comes in none of the chosen months",
         "No chosen month has the day: April has no 31st, February no 30th. Nothing ever happens on this calendar.",
         "Choose a day that the months have, 32 for the last day of each month, or other months."},
        {rule_id::FormsDisagree, Warning, "an older and a newer form say different things",
         "The same setting stands in the document twice and the two differ. The reader takes one of them and does "
         "not look at the other; other programs may do it the other way round.",
         "Keep the newer form alone, or make both say the same."},
        {rule_id::FullNeverDue, Warning, "a full backup is never made",
         "The full backup is enabled, but none of its days is a day on which the job starts.",
         "Choose a day for the full backup on which the job starts, or let the job start on that day."},
        {rule_id::NarrowedNumber, Warning, "a number is cut when it is read",
         "The format keeps fewer bits than the number needs, eight for hours and minutes. The reader cuts the rest "
         "off without a word, so that the value in force is another one: 300 hours read as 44.",
         "Write the number that is meant, in range."},
        {rule_id::NeverRuns, Warning, "the calendar has no day at all",
         "No week day or no month is chosen, or the calendar is of a kind that does not exist. Readers accept that; "
         "nothing ever happens on such a calendar.",
         "Choose at least one day and one month, or switch the calendar off."},
        {rule_id::NoSuchTime, Warning, "the time is none",
         "Hours go from 0 to 23 and minutes from 0 to 59; a period has at most 24 hours and is longer than nothing. "
         "Readers accept any number.",
         "Write a time that a clock can show, or a period that can pass."},
        {rule_id::OutOfRange, Warning, "a number is read as if it were missing",
         "The number is beyond what the field can hold, and the reader takes it for not set: a day of the month "
         "above 32, for example.",
         "Write a number in range: 1 to 31, or 32 for the last day of the month."},
        {rule_id::RefusedWhenApplied, Warning, "the settings are refused when they are applied",
         "The document can be read, but the agent checks the settings again before it uses them, and refuses these.",
         "Change the value as the sentence demands."},
        {rule_id::RepeatedElement, Warning, "an element stands there twice",
         "Of several elements of the same name the first one counts. The reader does not look at the others.",
         "Keep the one that is meant."},
        {rule_id::RetentionBeyondLimits, Warning, "retention beyond the limits of 1 and 730",
         "Readers accept any number, but every setter refuses none and more than 730 restore points or days: as soon "
         "as somebody edits the job, it cannot be saved.",
         "Write a number from 1 to 730."},
        {rule_id::UnknownName, Warning, "nobody knows the name",
         "The reader does not ask for an attribute or element of this name here, so it has no effect. Names count "
         "letter by letter, letter case included. Newer programs may add names of their own.",
         "Correct the name, move it to the element where it belongs, or remove it."},
        {rule_id::WindowAlwaysClosed, Warning, "the window never opens",
         "No hour of the week is open in the backup window: a job with this window never runs.",
         "List the hours that are meant, and check the kind: 1 opens the listed hours, 0 closes them."},
        {rule_id::WindowClosedAtStart, Warning, "the window is closed whenever the job starts",
         "At every time at which the job starts, the backup window is closed.",
         "Move the start into an open hour, or open the hour at which the job starts."},

        {rule_id::DayMissesMonths, Note, "the chosen day is missing in some of the chosen months",
         "Some of the chosen months do not have the day. Nothing happens in them.",
         "Choose 32, the last day of the month, if every month is meant."},
        {rule_id::FullsWithoutEffect, Note, "full backups have no effect with this start",
         "Full backups are tied to days. A periodical or continuous job makes none by a calendar.",
         "Start the job weekly or monthly, or switch the full backup off."},
        {rule_id::IgnoredText, Note, "a text that nobody reads",
         "The element holds a text that its reader does not look at.",
         "Move the text to where it belongs, or remove it."},
        {rule_id::NoBegin, Note, "the begin of a GFS rule was never set",
         "01/01/0001 is the managing server's way to say that no begin was set. The rule is in force at once.",
         "Nothing, if that is meant; else write the date."},
        {rule_id::OlderForm, Note, "an older form is used",
         "The value is read from a name or layout of an older version. It counts, and writers replace it.",
         "Nothing; convert the document if other programs are to read the current form alone."},
        {rule_id::RestNotChecked, Note, "the rest was not checked",
         "A fault could not be repaired in memory to read on behind it, or there are too many of them. What stands "
         "behind the last one that is told was not looked at.",
         "Repair what was told, and check again."},
        {rule_id::WindowNeverCloses, Note, "the window never closes",
         "Every hour of the week is open: the backup window restricts nothing.",
         "Remove the window, or list the hours that are meant, and check the kind."},
    };
    return rules;
}

const Rule* findRule(const std::string& id)
{
    const auto& rules = allRules();
    const auto found = std::find_if(rules.begin(), rules.end(), [&](const Rule& rule) { return id == rule.id; });
    return found != rules.end() ? &*found : nullptr;
}

} // namespace check
