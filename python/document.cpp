#include "document.h"

#include <utility>

#include <zelplatform/exc/exc.h>

#include "check/check.h"
#include "check/check_file.h"
#include "check/report.h"
#include "describe/conversion.h"
#include "describe/json_renderer.h"
#include "describe/text_renderer.h"
#include "edit/fields.h"
#include "errors.h"
#include "files/new_file.h"
#include "files/replace_file.h"
#include "values.h"
#include "when/next_days.h"

namespace python
{
namespace
{

namespace structs = zelplatform::model::structs;

describe::TextStyle styleOf(bool showsSecrets)
{
    describe::TextStyle style;
    style.showsSecrets = showsSecrets;
    return style;
}

/// A document as it is for the converter.
struct Told
{
    describe::EDocumentKind kind;
    describe::Node tree;
};

// A refusal of the writer is about no line.
describe::Conversion converted(const std::string& text)
{
    const auto told = onDocument(text, [](const auto& document) { return Told{document.kind(), document.describe()}; });
    return unlocked([&] { return describe::convert(text, told.kind, told.tree); });
}

const structs::BackupWindow* pointerTo(const Window& window)
{
    return window ? &*window : nullptr;
}

std::string findingsOf(const check::CheckedFile& file)
{
    if (!file.failure.empty())
        throw files::InputError(file.failure);
    return dumped(check::toJson(file)["findings"]);
}

} // namespace

Document::Document(std::string text)
    : m_text(std::move(text)), m_kind(onDocument(m_text, [](const auto& document) { return document.kind(); }))
{
}

std::string Document::describe(bool showsSecrets) const
{
    return onDocument(
        m_text, [&](const auto& document) { return describe::renderText(document.describe(), styleOf(showsSecrets)); });
}

std::string Document::tree(bool showsSecrets) const
{
    return onDocument(m_text, [&](const auto& document) {
        const auto tree = document.describe();
        return dumped({{tree.name, describe::toJson(tree, styleOf(showsSecrets))}});
    });
}

std::string Document::check(const Window& window) const
{
    return checkText(m_text, window);
}

std::string Document::next(const when::DaysAsked& asked, const Window& window) const
{
    return onDocument(m_text, [&](const auto& document) {
        const auto fault = when::faultOfUntil(asked);
        if (!fault.empty())
            throw exc::CRuntimeExc(fault + '.');
        const auto schedule = document.readSchedule();
        const when::Evaluation evaluation(schedule, pointerTo(window), asked.from);
        const auto days = when::findDays(evaluation, asked);
        if (days.empty())
            return dumped({{"notScheduled", when::tellWhyNothing(evaluation, m_kind, when::tellNoDay(asked))}});
        const auto tree = when::describeDays(evaluation, asked.from, days);
        return dumped({{tree.name, describe::toJson(tree, {})}});
    });
}

std::string Document::toXml(bool showsSecrets) const
{
    auto conversion = converted(m_text);
    if (conversion.holdsSecrets && !showsSecrets)
        throw Refusal({"The document holds secrets, which are told only to those who ask to reveal them."});
    conversion.text.pop_back();
    return std::move(conversion.text);
}

void Document::write(const std::string& file, bool replaces) const
{
    const auto conversion = converted(m_text);
    onFile(file, [&](const std::string& name) {
        if (replaces)
            files::replaceFile(name, conversion.text);
        else
            files::writeNewFile(name, conversion.text);
    });
}

Document Document::changed(const Fields& fields) const
{
    auto record = onDocument(m_text, [](const auto& document) { return edit::readRecord(document); });
    return Document(unlocked([&] {
        for (const auto& [path, text] : fields)
            edit::setField(record, {path, text});
        return edit::writeRecord(record).text;
    }));
}

zelplatform::model::SBackupJobOptions Document::jobOptions() const
{
    return onDocument(m_text, [](const auto& document) { return document.readJobOptions(); });
}

structs::CScheduleOptions Document::schedule() const
{
    return onDocument(m_text, [](const auto& document) { return document.readSchedule(); });
}

std::shared_ptr<structs::BackupWindow> Document::window() const
{
    return onDocument(m_text, [](const auto& document) { return document.readWindow(); });
}

structs::gfs::SGfsPolicyInfo Document::gfsPolicy() const
{
    return onDocument(m_text, [](const auto& document) {
        bool isShortNames = true;
        return document.readGfsPolicy(isShortNames);
    });
}

std::string checkText(const std::string& text, const Window& window)
{
    return unlocked([&] { return findingsOf({{}, check::checkText(text, pointerTo(window)), {}}); });
}

std::string checkFile(const std::string& file, const Window& window)
{
    return onFile(file, [&](const std::string& name) { return findingsOf(check::checkFile(name, pointerTo(window))); });
}

} // namespace python
