#pragma once

#include "finding.h"
#include "subject.h"

/// The families of rules. Each looks at a document that was read and adds what it finds.
namespace check
{

/// Names, elements and texts that the reader does not ask for.
void checkNames(const Subject& subject, Findings& findings);

/// Numbers that are cut or out of range, begins that are no dates, limits that only setters look at, older forms.
void checkValues(const Subject& subject, Findings& findings);

/// Calendars on which nothing happens, and full backups that are never made.
void checkCalendars(const Subject& subject, Findings& findings);

/// Windows that never open or close, and starts in closed hours.
void checkWindow(const Subject& subject, Findings& findings);

/// Settings that the document holds in two forms which differ.
void checkForms(const Subject& subject, Findings& findings);

} // namespace check
