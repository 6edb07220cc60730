#include <crypto/pem_block.h>

#include <cstddef>
#include <string>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/numbers.h>

namespace crypto::openssl
{
namespace
{

constexpr std::size_t MaxSize = std::size_t{1} << 20;
constexpr std::size_t MaxLabelSize = 64;

constexpr std::string_view Begin = "-----BEGIN ";
constexpr std::string_view End = "-----END ";
constexpr std::string_view Dashes = "-----";

[[noreturn]] void failPair()
{
    throw exc::CRuntimeExc("There is no complete pair of BEGIN and END.");
}

// The text begins behind the BEGIN line. No data holds dashes, so the next ones must be those of the END.
std::string_view bodyOf(std::string_view text, std::string_view label)
{
    const auto size = text.find(Dashes);
    const std::string end = std::string(End).append(label).append(Dashes);
    if (size == std::string_view::npos || text.substr(size, end.size()) != end)
        failPair();
    return text.substr(0, size);
}

} // namespace

PemBlock findPemBlock(std::string_view text, bool (*isWanted)(std::string_view label))
{
    if (text.size() > MaxSize)
        throw exc::CRuntimeExc("Text of [%1] bytes is longer than [%2].", util::toStr(text.size()),
                               util::toStr(MaxSize));
    for (auto begin = text.find(Begin); begin != std::string_view::npos; begin = text.find(Begin))
    {
        text.remove_prefix(begin + Begin.size());
        const auto label = text.substr(0, text.substr(0, MaxLabelSize + Dashes.size()).find(Dashes));
        if (label.size() < text.size() && isWanted(label))
            return {label, bodyOf(text.substr(label.size() + Dashes.size()), label)};
    }
    failPair();
}

} // namespace crypto::openssl
