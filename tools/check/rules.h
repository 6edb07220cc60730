#pragma once

#include "finding.h"
#include "subject.h"

/// The families of rules. Each looks at a document that was read and adds what it finds.
namespace check
{

/// Names, elements and texts that the reader does not ask for.
void checkNames(const Subject& subject, Findings& findings);

} // namespace check
