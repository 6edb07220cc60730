#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <zelmodel/backup_job_options.h>
#include <zelmodel/structs/gfs/gfs_policy_info.h>
#include <zelmodel/structs/schedule/backup_window.h>
#include <zelmodel/structs/schedule/schedule_options.h>

#include "describe/document_kind.h"
#include "when/days_asked.h"

namespace python
{

/// A window that plays a part in an answer, or none.
using Window = std::optional<zelplatform::model::structs::BackupWindow>;

/// Paths of fields and the texts that they are set to, one after the other.
using Fields = std::vector<std::pair<std::string, std::string>>;

/// A document of a kind that is known. It holds the text, never changes, and answers from any thread; each answer is
/// the one that the command gives for the text, and gives up the interpreter lock while it is made. What the library
/// refuses is thrown as a Refusal.
class Document
{
public:
    explicit Document(std::string text);

    describe::EDocumentKind kind() const noexcept { return m_kind; }

    /// What `zelmodel show` prints.
    std::string describe(bool showsSecrets) const;

    /// The same as JSON: an object with the tree of fields under its name.
    std::string tree(bool showsSecrets) const;

    /// What `zelmodel check` finds, as a JSON array.
    std::string check(const Window& window) const;

    /// What `zelmodel next` answers, as JSON: {"next": ...} or {"notScheduled": ...}.
    std::string next(const when::DaysAsked& asked, const Window& window) const;

    /// What `zelmodel convert` writes, without the line break at the end; refuses to tell secrets unless they may be
    /// shown.
    std::string toXml(bool showsSecrets) const;

    /// The same into a file: a new one, or in place of the one that is there.
    void write(const std::string& file, bool replaces) const;

    /// The document after `zelmodel set` with these fields.
    Document changed(const Fields& fields) const;

    zelplatform::model::SBackupJobOptions jobOptions() const;
    zelplatform::model::structs::CScheduleOptions schedule() const;
    std::shared_ptr<zelplatform::model::structs::BackupWindow> window() const;
    zelplatform::model::structs::gfs::SGfsPolicyInfo gfsPolicy() const;

private:
    std::string m_text;
    describe::EDocumentKind m_kind;
};

/// What `zelmodel check` finds in a text, which may be no document at all, as a JSON array.
std::string checkText(const std::string& text, const Window& window);

/// The same of a file.
std::string checkFile(const std::string& file, const Window& window);

} // namespace python
