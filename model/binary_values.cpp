#include <zelmodel/binary_values.h>

#include <array>
#include <cstdint>

namespace zelplatform::model
{
namespace
{

// With a pair of braces.
constexpr std::size_t LongestText = guid::guid_t::TextSize + 2;

} // namespace

io::binary_stream_tt& operator<<(io::binary_stream_tt& stream, const guid::guid_t& id)
{
    const auto text = id.ToChars();
    stream.write_text({text.data(), text.size()});
    return stream;
}

io::binary_stream_tt& operator>>(io::binary_stream_tt& stream, guid::guid_t& id)
{
    std::uint32_t size = 0;
    stream >> size;
    if (size > LongestText)
    {
        const auto noGuid = stream.read_secure(size);
        id = guid::guid_t::FromAStr({noGuid.data(), noGuid.size()});
        return stream;
    }
    std::array<char, LongestText> text{};
    if (size != 0)
        stream.read_checked(text.data(), size);
    id = guid::guid_t::FromAStr({text.data(), size});
    return stream;
}

} // namespace zelplatform::model
