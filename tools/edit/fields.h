#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "record.h"

namespace edit
{

/// A field that can be set: its path in the tree of words ("schedule.jobStart.time"), and which texts it takes.
struct SettableField
{
    std::string path;
    std::string help;
};

/// A value for a field.
struct Assignment
{
    std::string path;
    std::string text;
};

/// The record has no settable field of that path; the text names the nearest one, if one is near.
class UnknownField : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// The fields of the record that can be set, in the order of the tree.
std::vector<SettableField> fieldsOf(const Record& record);

/// Sets a field; throws UnknownField, or what the library says of the text. What a calendar's fields mean together is
/// asked when the record is written.
void setField(Record& record, const Assignment& assignment);

} // namespace edit
