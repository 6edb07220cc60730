#include "schemas/schema.h"

#include <set>
#include <string_view>
#include <utility>

#include "schemas/schema_files.h"

namespace schemas
{
namespace
{

/// How the files of a language begin, end and name other files.
struct Language
{
    std::string_view suffix;
    std::string_view root;    ///< the beginning of the root's tag
    std::string_view rootEnd; ///< its end tag
    std::string_view include; ///< what stands before the path of an included file
};

constexpr Language Xsd{".xsd", "<xs:schema", "</xs:schema>", "<xs:include schemaLocation=\""};
constexpr Language RelaxNg{".rng", "<grammar", "</grammar>", "<include href=\""};

constexpr std::string_view Parts = "parts/";
constexpr std::string_view IncludeEnd = "\"/>\n";

/// What stands in the root of the text, and where it begins. The roots of all files of a language are alike.
std::pair<std::string_view, std::size_t> bodyOf(std::string_view text, const Language& language)
{
    const auto root = text.find('\n' + std::string(language.root)) + 1;
    const auto body = text.find('>', root) + 1;
    return {text.substr(body, text.rfind(language.rootEnd) - body), body};
}

/// The body with the files that it includes in their places, each once.
std::string resolved(std::string_view body, const Language& language, std::set<std::string>& known)
{
    std::string result;
    for (auto at = body.find(language.include); at != std::string_view::npos; at = body.find(language.include))
    {
        const auto name = at + language.include.size();
        const auto end = body.find(IncludeEnd, name);
        const auto lineBegin = body.rfind('\n', at) + 1;
        result += body.substr(0, lineBegin);
        auto path = std::string(body.substr(name, end - name));
        body.remove_prefix(end + IncludeEnd.size());
        if (path.compare(0, Parts.size(), Parts) != 0)
            path.insert(0, Parts); // parts include their neighbours
        if (!known.insert(path).second)
            continue;
        result += resolved(bodyOf(textOf(path), language).first, language, known);
    }
    return result.append(body);
}

} // namespace

std::vector<std::string> kinds()
{
    return namesIn("", Xsd.suffix);
}

std::string schemaOf(const std::string& kind, ESchema which)
{
    const auto& language = which == ESchema::Written ? Xsd : RelaxNg;
    const auto whole = textOf(kind + std::string(language.suffix));
    const auto [body, begin] = bodyOf(whole, language);
    std::set<std::string> known;
    std::string text(whole.substr(0, begin));
    text += resolved(body, language, known);
    return text.append(language.rootEnd).append("\n");
}

} // namespace schemas
