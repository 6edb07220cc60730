#pragma once

#include <cstddef>
#include <string>

#include <zelplatform/io/io.h>
#include <zelplatform/util/util.h>

namespace zelplatform::model::detail
{

/// The base64 text of the binary form that is written to a stream, of so many bytes; they are in secure memory.
template <class TWrite>
std::string toBase64Form(std::size_t size, TWrite write)
{
    io::mem_stream_tt memory;
    memory.reserve(size);
    io::binary_stream_tt stream(memory);
    write(stream);
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
