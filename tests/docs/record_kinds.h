#pragma once

#include <vector>

#include "document_kinds.h"

namespace zelmodel_test
{

/// The kinds of the documents around the jobs: processing, repositories, storage, sessions, transforms, values.
std::vector<DocumentKind> recordKinds();

} // namespace zelmodel_test
