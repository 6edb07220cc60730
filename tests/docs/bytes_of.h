#pragma once

#include <string>

#include <zelplatform/io/io.h>

namespace zelmodel_test
{

/// What is written to a stream.
template <class T>
std::string bytesOf(const T& write)
{
    io::mem_stream_tt device;
    io::binary_stream_tt stream(device);
    write(stream);
    return {device.buffer().begin(), device.buffer().end()};
}

} // namespace zelmodel_test
