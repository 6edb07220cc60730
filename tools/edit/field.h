#pragma once

#include <functional>
#include <string>
#include <vector>

namespace edit
{

/// A field of a record that can be set from text. The path is that of the field in the tree of words.
template <class TRecord>
struct Field
{
    std::string path;
    std::string help; ///< which texts it takes
    std::function<void(TRecord& record, const std::string& text)> set;
};

template <class TRecord>
using Fields = std::vector<Field<TRecord>>;

/// Adds the fields of a part of the record under the name of the part. The last argument gives the part of a record.
template <class TRecord, class TPart, class TAccess>
void addPart(Fields<TRecord>& fields, const std::string& name, const Fields<TPart>& partFields, TAccess partOf)
{
    for (const auto& field : partFields)
    {
        fields.push_back(
            {name + '.' + field.path, field.help,
             [set = field.set, partOf](TRecord& record, const std::string& text) { set(partOf(record), text); }});
    }
}

} // namespace edit
