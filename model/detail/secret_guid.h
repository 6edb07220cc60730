#pragma once

#include <zelplatform/guid/guid.h>
#include <zelplatform/io/io.h>

namespace zelplatform::model::detail
{

/// Reads a GUID as the stream's operator does, from a form that holds secrets: a wrong length may put them in the place
/// of the text, so a refusal tells how many bytes it has and quotes none.
guid::guid_t readGuidAmongSecrets(io::binary_stream_tt& stream);

} // namespace zelplatform::model::detail
