#include <zelmodel/binary_values.h>

#include <cstdint>
#include <string_view>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/secret_guid.h"

namespace zelplatform::model
{
namespace
{

// With a pair of braces.
constexpr std::size_t LongestText = guid::guid_t::TextSize + 2;

/// Most texts need no memory of their own. All are erased: a damaged form can have anything there.
template <class TParse>
guid::guid_t readGuidText(io::binary_stream_tt& stream, TParse parse)
{
    std::uint32_t size = 0;
    stream >> size;
    if (size > LongestText)
    {
        const auto noGuid = stream.read_secure(size);
        return parse({noGuid.data(), noGuid.size()});
    }
    crypto::sec_array_t<LongestText> text;
    if (size != 0)
        stream.read_checked(text.data(), size);
    return parse({text.data(), size});
}

} // namespace

io::binary_stream_tt& operator<<(io::binary_stream_tt& stream, const guid::guid_t& id)
{
    const auto text = id.ToChars();
    stream.write_text({text.data(), text.size()});
    return stream;
}

io::binary_stream_tt& operator>>(io::binary_stream_tt& stream, guid::guid_t& id)
{
    id = readGuidText(stream, guid::guid_t::FromAStr);
    return stream;
}

guid::guid_t detail::readGuidAmongSecrets(io::binary_stream_tt& stream)
{
    return readGuidText(stream, [](std::string_view text) {
        const auto id = guid::guid_t::TryFromAStr(text);
        if (!id)
            throw exc::CRuntimeExc("Unable to convert string [(hidden, %1 bytes)] to GUID.", util::toStr(text.size()));
        return *id;
    });
}

} // namespace zelplatform::model
