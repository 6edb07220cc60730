#include "recognition.h"

#include <algorithm>
#include <optional>
#include <string>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

namespace dump
{
namespace
{

std::vector<Candidate> candidatesFor(std::string_view bytes, const Form* named)
{
    std::vector<Candidate> candidates;
    for (const auto& form : allForms())
    {
        if (named == nullptr ? !form.isRecognised : &form != named)
            continue;
        candidates.push_back({&form, Walk(bytes), {}});
        form.walk(candidates.back().walk);
    }
    std::stable_sort(candidates.begin(), candidates.end(),
                     [](const Candidate& a, const Candidate& b) { return a.walk.explained() > b.walk.explained(); });
    return candidates;
}

/// The first candidate that the library reads; else nothing.
std::optional<std::size_t> findRead(std::vector<Candidate>& candidates, std::string_view bytes)
{
    for (std::size_t at = 0; at < candidates.size(); ++at)
    {
        auto& candidate = candidates[at];
        if (!candidate.walk.isWhole())
            continue;
        candidate.verdict = judge(*candidate.form, bytes);
        if (!candidate.verdict.isRefused())
            return at;
    }
    return std::nullopt;
}

/// What else the bytes may be. Keys are read by no reader but their own.
std::vector<const Form*> othersThan(const Form& chosen, std::vector<Candidate>& candidates, std::string_view bytes)
{
    std::vector<const Form*> others;
    for (auto& candidate : candidates)
    {
        if (candidate.form == &chosen || !candidate.walk.isWhole())
            continue;
        if (chosen.holdsKeys || !judge(*candidate.form, bytes).isRefused())
            others.push_back(candidate.form);
    }
    return others;
}

Recognised choose(std::string_view bytes, const Form* named)
{
    auto candidates = candidatesFor(bytes, named);
    const auto found = findRead(candidates, bytes);
    const auto at = found.value_or(0);
    Recognised result{bytes, {}, false, named != nullptr, found.has_value(), candidates[at], {}};
    if (!found)
    {
        result.chosen.verdict = judge(*result.chosen.form, bytes);
        result.isRead = result.isNamed && !result.chosen.verdict.isRefused();
        return result;
    }
    result.others = othersThan(*result.chosen.form, candidates, bytes);
    return result;
}

bool isBlank(char c) noexcept
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool isBase64Digit(char c) noexcept
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '+' || c == '/' ||
           c == '=';
}

/// Binary forms begin with a length or a number, so they hold bytes that no text has. Base64 has at least four digits.
bool looksLikeText(std::string_view input)
{
    constexpr std::size_t least = 4;
    return input.size() >= least &&
           std::all_of(input.begin(), input.end(), [](char c) { return isBlank(c) || (c > ' ' && c <= '~'); });
}

std::string whyNoBase64(std::string_view input)
{
    const auto isForeign = [](char c) { return !isBlank(c) && !isBase64Digit(c); };
    const auto place = static_cast<std::size_t>(std::find_if(input.begin(), input.end(), isForeign) - input.begin());
    if (input.substr(place, 1) == "<")
        return "The input looks like an XML document, which the command show tells.";
    if (place < input.size())
        return "The input is a text, and none of base64: the byte at offset " + util::toStr(place) +
               " does not belong there.";
    return "The input is a text, and none of base64: digits are missing or too many at the end, or padding stands "
           "where "
           "none belongs.";
}

/// The bytes of a text that must be base64.
crypto::sec_buffer_t decoded(std::string_view text)
try
{
    return util::fromBase64(text);
}
catch (const exc::CRuntimeExc& cause)
{
    exc::RegenTraceExc(whyNoBase64(text), cause);
}

} // namespace

Recognised recognise(std::string_view input, const Form* named)
{
    auto raw = choose(input, named);
    if (raw.isRead || !looksLikeText(input) || (named != nullptr && named->isText))
        return raw;
    auto bytes = decoded(input);
    auto result = choose({bytes.data(), bytes.size()}, named);
    result.isBase64 = true;
    result.decoded = std::move(bytes);
    return result;
}

} // namespace dump
