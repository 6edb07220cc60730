#pragma once

#include <zelplatform/export.h>

/// Devices and binary streams over them.
namespace io
{

/// Something bytes are written to and read from: a file, a connection, memory.
struct ZELPLATFORM_API io_dev_redirector_t
{
    virtual ~io_dev_redirector_t();

    /// Takes up to `size` bytes; returns how many it took, negative on failure.
    virtual long write(const void* data, unsigned long size) = 0;

    /// Gives up to `size` bytes; returns how many it gave, negative on failure.
    virtual long read(void* data, unsigned long size) = 0;

    /// How many bytes can still be read, -1 when nobody knows. Lets a reader refuse a length before it allocates.
    virtual long remaining() const;
};

namespace detail
{

/// Calls the device once. Throws when it takes another number of bytes than given; a size of 0 is not checked. Returns
/// the number of bytes written.
ZELPLATFORM_API unsigned long write_to_device(io_dev_redirector_t& device, const void* data, unsigned long size);

/// Calls the device once. Throws when it gives another number of bytes than asked for; a size of 0 is not checked.
/// Returns the number of bytes read.
ZELPLATFORM_API unsigned long read_from_device(io_dev_redirector_t& device, void* data, unsigned long size);

} // namespace detail

} // namespace io
