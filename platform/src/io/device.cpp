#include <zelplatform/io/device.h>

#include <io/transfer_errors.h>
#include <zelplatform/exc/exc.h>
#include <zelplatform/util/numbers.h>

namespace io
{
namespace
{

bool isComplete(long count, unsigned long expected) noexcept
{
    return count >= 0 && static_cast<unsigned long>(count) == expected;
}

} // namespace

io_dev_redirector_t::~io_dev_redirector_t() = default;

long io_dev_redirector_t::remaining() const
{
    return -1;
}

void detail::failRead(long count, unsigned long expected)
{
    throw exc::CRuntimeExc(
        "Failed to retrieve value from the binary stream: received less bytes (%1) than expected (%2).",
        util::toStr(count), util::toStr(expected));
}

unsigned long detail::write_to_device(io_dev_redirector_t& device, const void* data, unsigned long size)
{
    const long count = device.write(data, size);
    if (size != 0 && !isComplete(count, size))
        throw exc::CRuntimeExc(
            "Failed to write value to the binary stream: written less bytes (%1) than expected (%2).",
            util::toStr(count), util::toStr(size));
    return size;
}

unsigned long detail::read_from_device(io_dev_redirector_t& device, void* data, unsigned long size)
{
    const long count = device.read(data, size);
    if (size != 0 && !isComplete(count, size))
        failRead(count, size);
    return size;
}

} // namespace io
