#include <zelplatform/guid/guid.h>

#include <algorithm>
#include <exception>
#include <optional>
#include <stdexcept>

#include <boost/uuid/random_generator.hpp>
#include <boost/uuid/string_generator.hpp>
#include <boost/uuid/uuid.hpp>
#include <boost/uuid/uuid_io.hpp>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/numbers.h>

namespace guid
{
namespace
{

constexpr std::size_t TextSize = 36;
constexpr std::size_t BracedTextSize = TextSize + 2;

// The lengths are tested because the generator would also take digits without hyphens.
std::optional<boost::uuids::uuid> parsed(std::string_view text)
try
{
    if (text.size() != TextSize && text.size() != BracedTextSize)
        return std::nullopt;
    return boost::uuids::string_generator()(text.begin(), text.end());
}
catch (std::runtime_error&)
{
    return std::nullopt;
}

} // namespace

guid_t guid_t::CreateNew()
try
{
    const auto random = boost::uuids::random_generator()();
    guid_t id;
    std::copy(random.begin(), random.end(), id.m_bytes.begin());
    return id;
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Unable to create GUID.", cause);
}

guid_t guid_t::FromAStr(std::string_view text)
{
    guid_t id;
    if (text.empty())
        return id;
    const auto bytes = parsed(text);
    if (!bytes)
        throw exc::CRuntimeExc("Unable to convert string [%1] to GUID.", std::string(text));
    std::copy(bytes->begin(), bytes->end(), id.m_bytes.begin());
    return id;
}

std::string guid_t::ToAStr() const
{
    boost::uuids::uuid bytes;
    std::copy(m_bytes.begin(), m_bytes.end(), bytes.begin());
    return boost::uuids::to_string(bytes);
}

} // namespace guid

std::string util::toStr(const guid::guid_t& id)
{
    return id.ToAStr();
}
