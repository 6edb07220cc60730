#pragma once

#include "record.h"

namespace edit
{

/// The fields of the record that can be set, as a list with one item for each: its path as the label, what the tree of
/// the document holds there, and which texts it takes. A secret stays one.
describe::Node listFields(const Record& record, const describe::Node& tree);

} // namespace edit
