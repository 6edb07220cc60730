#pragma once

/// Values in binary streams.
/// The operators << and >> of namespace zelplatform::model put a GUID into an io::binary_stream_tt and take it out: its
/// text form with a length of four bytes in front, the same bytes on every machine. Strings and numbers have the
/// stream's own operators. A device that takes or gives fewer bytes than it should makes the operator throw with both
/// counts; nothing is retried, and the stream stays where the device left it.

#include <zelmodel/binary_values.h>
