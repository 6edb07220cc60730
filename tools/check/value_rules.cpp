#include "rules.h"

#include <cstdint>
#include <optional>

#include <zelmodel/backup_job_options.h>
#include <zelplatform/datetime/date_time.h>
#include <zelplatform/util/util.h>

#include "fields.h"

namespace check
{
namespace
{

using describe::EOrigin;
using describe::EValueType;
using describe::Node;
using zelplatform::model::SBackupJobOptions;

constexpr const char* NoBeginTime = "01/01/0001 00:00:00";

std::string quoted(const Node& field)
{
    return field.origin.name + "=\"" + field.origin.text + '"';
}

// Numbers of 64 bits, signed or not, as their bits.
std::optional<unsigned long> bitsOf(const std::string& text)
try
{
    if (!text.empty() && text.front() == '-')
        return static_cast<unsigned long>(util::fromStr<long>(text));
    return util::fromStr<unsigned long>(text);
}
catch (const std::exception&)
{
    return std::nullopt;
}

bool isCutFrom(unsigned long read, unsigned long written)
{
    const auto low32 = static_cast<std::int32_t>(static_cast<std::uint32_t>(written));
    return read != written &&
           (read == static_cast<std::uint8_t>(written) || read == static_cast<unsigned long>(static_cast<long>(low32)));
}

void checkNumber(const Node& field, Findings& findings)
{
    const auto written = bitsOf(field.origin.text);
    const auto read = bitsOf(field.value);
    if (!written || !read)
        return;
    if (field.name == "dayOfMonth" && *written != *read)
        findings.add(rule_id::OutOfRange, field.origin.line, quoted(field) + " is no day and reads as not set");
    else if (isCutFrom(*read, *written))
        findings.add(rule_id::NarrowedNumber, field.origin.line, quoted(field) + " reads as " + field.value);
}

void checkBegin(const Node& field, Findings& findings)
try
{
    if (field.origin.text == NoBeginTime)
        findings.add(rule_id::NoBegin, field.origin.line, quoted(field) + " means that no begin was set");
    else
        datetime::CDateTime::fromString(field.origin.text, datetime::CDateTime::QorDateFormat);
}
catch (const std::exception&)
{
    findings.add(rule_id::BeginIsNoDate, field.origin.line, quoted(field) + " is no date and reads as " + field.value);
}

template <class TVerify>
void checkLimit(const Node* count, bool isInForce, TVerify verify, const Subject& subject, Findings& findings)
{
    if (count == nullptr || !subject.isWritten(*count))
        return;
    const auto number = bitsOf(count->value);
    if (!number || (*number == 0 && !isInForce))
        return;
    try
    {
        verify(*number);
    }
    catch (const std::exception& refusal)
    {
        findings.add(rule_id::RetentionBeyondLimits, count->origin.line,
                     count->label + " " + count->value + ": " + refusal.what());
    }
}

void checkRetention(const Subject& subject, Findings& findings)
{
    const auto* type = findField(subject.tree(), {"retentionType"});
    if (type == nullptr)
        return;
    checkLimit(findField(subject.tree(), {"maxPoints"}), type->value == "Cycles", SBackupJobOptions::verifyMaxPoints,
               subject, findings);
    checkLimit(
        findField(subject.tree(), {"maxDays"}), type->value == "Days",
        [](unsigned long days) {
            SBackupJobOptions(zelplatform::model::KbBlockSize::KbBlockSize1024).setMaxDays(days);
        },
        subject, findings);
}

} // namespace

void checkValues(const Subject& subject, Findings& findings)
{
    forEachField(subject.tree(), [&](const Node& field) {
        if (!subject.isWritten(field))
            return;
        if (field.name == "fault")
            findings.add(rule_id::RefusedWhenApplied, field.origin.line, field.words);
        else if (field.name == "beginTimeUtc")
            checkBegin(field, findings);
        else if (field.valueType == EValueType::Number)
            checkNumber(field, findings);
        if (field.origin.kind == EOrigin::Older)
            findings.add(rule_id::OlderForm, field.origin.line, field.origin.name + " is read as an older form");
    });
    checkRetention(subject, findings);
}

} // namespace check
