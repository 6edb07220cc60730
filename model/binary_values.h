#pragma once

#include <zelmodel/export.h>

#include <zelplatform/guid/guid.h>
#include <zelplatform/io/io.h>

namespace zelplatform::model
{

/// Writes the text form of the GUID with its length in front (4 bytes); throws when the device takes less than given.
ZELMODEL_API io::binary_stream_tt& operator<<(io::binary_stream_tt& stream, const guid::guid_t& id);

/// Reads a GUID in its text form; the empty text gives the zero GUID. Throws when the device gives less than announced
/// or the text is no GUID, and leaves the GUID unchanged then.
ZELMODEL_API io::binary_stream_tt& operator>>(io::binary_stream_tt& stream, guid::guid_t& id);

} // namespace zelplatform::model
