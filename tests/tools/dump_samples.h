#pragma once

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <keys/sample_keys.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/io/io.h>
#include <zelplatform/util/util.h>

#include "describe/sentences.h"
#include "dump/dump.h"

namespace zelmodel_test
{

/// The bytes of an example of a binary form.
inline std::string exampleBytes(const std::string& file)
{
    std::ifstream stream(std::string(ZELMODEL_EXAMPLES_DIR) + "/binary/" + file, std::ios::binary);
    std::ostringstream text;
    text << stream.rdbuf();
    if (file.find(".b64") == std::string::npos)
        return text.str();
    const auto bytes = util::fromBase64(text.str());
    return {bytes.begin(), bytes.end()};
}

/// A form and the bytes of its example.
struct DumpSample
{
    const dump::Form& form;
    std::string bytes;
};

/// An example for each form.
inline std::vector<DumpSample> dumpSamples()
{
    std::vector<DumpSample> samples;
    for (const auto& form : dump::allForms())
        samples.push_back({form, exampleBytes(std::string(form.name) + (form.isText ? ".txt" : ".b64"))});
    return samples;
}

/// Why the library refuses the bytes, read straight from memory; nothing when it does not.
inline std::vector<std::string> libraryRefusal(const dump::Form& form, const std::string& bytes)
{
    io::mem_stream_tt device(crypto::sec_buffer_t(bytes.begin(), bytes.end()));
    io::binary_stream_tt stream(device);
    try
    {
        form.read(stream);
    }
    catch (const exc::CRuntimeExc& refusal)
    {
        return describe::sentencesOf(refusal.trace());
    }
    return {};
}

/// The field at the path of names and numbers of items from 0, "keySets/0/alg".
inline const dump::Field& fieldAt(const std::vector<dump::Field>& root, std::string_view path)
{
    const auto* fields = &root;
    const dump::Field* found = nullptr;
    std::istringstream names{std::string(path)};
    for (std::string name; std::getline(names, name, '/'); fields = &found->fields)
    {
        const bool isItem = found != nullptr && found->node.isList;
        if (isItem)
            found = &fields->at(std::stoul(name));
        else
        {
            found = nullptr;
            for (const auto& field : *fields)
                found = field.node.name == name ? &field : found;
        }
        if (found == nullptr)
            throw std::runtime_error("There is no field " + std::string(path) + ".");
    }
    return *found;
}

inline std::string valueAt(const dump::Dump& told, std::string_view path)
{
    return fieldAt(told.fields, path).node.value;
}

inline std::string wordsAt(const dump::Dump& told, std::string_view path)
{
    return fieldAt(told.fields, path).node.words;
}

} // namespace zelmodel_test
