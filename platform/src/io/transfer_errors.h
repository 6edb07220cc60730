#pragma once

namespace io::detail
{

/// The count is what the device reported, negative on its failure, or what it could give.
[[noreturn]] void failRead(long count, unsigned long expected);

} // namespace io::detail
