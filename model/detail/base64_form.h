#pragma once

#include <string>

#include <zelplatform/io/io.h>
#include <zelplatform/util/util.h>

namespace zelplatform::model::detail
{

/// The base64 text of a record's binary form; the bytes between are in secure memory.
template <class TRecord>
std::string toBase64Form(const TRecord& record)
{
    io::mem_stream_tt memory;
    io::binary_stream_tt stream(memory);
    record.Serialize(stream);
    return util::toBase64(memory.buffer().data(), memory.buffer().size());
}

/// Reads what toBase64Form writes; bytes left over after the record are passed over.
template <class TRecord>
TRecord fromBase64Form(const std::string& text)
{
    io::mem_stream_tt memory(util::fromBase64(text));
    io::binary_stream_tt stream(memory);
    TRecord record;
    record.Unserialize(stream);
    return record;
}

} // namespace zelplatform::model::detail
