#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <zelplatform/io/binary_stream.h>

#include "walk.h"

namespace dump
{

/// A binary form: the library's own reader of it, and the names of its fields.
struct Form
{
    const char* name;  ///< for the option --kind
    const char* title; ///< "Key bundle"

    /// The library's reader, which judges: what it throws is the refusal, and where it stopped is how far it came.
    void (*read)(io::binary_stream_tt& stream);

    void (*walk)(Walk& walk);

    bool holdsKeys = false;
    bool isText = false;      ///< never travels as base64
    bool isRecognised = true; ///< tried when nobody names the form
};

/// All forms, the most specific first.
const std::vector<Form>& allForms();

/// Nothing when there is none of the name.
const Form* findForm(std::string_view name);

} // namespace dump
