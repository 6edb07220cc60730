#include <zelmodel/binary_values.h>

namespace zelplatform::model
{

io::binary_stream_tt& operator<<(io::binary_stream_tt& stream, const guid::guid_t& id)
{
    stream.write_text(id.ToAStr());
    return stream;
}

io::binary_stream_tt& operator>>(io::binary_stream_tt& stream, guid::guid_t& id)
{
    id = guid::guid_t::FromAStr(stream.read_text());
    return stream;
}

} // namespace zelplatform::model
