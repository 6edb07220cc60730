#include "schemas/answer.h"

#include <nlohmann/json.hpp>

#include "schemas/schema_files.h"

namespace schemas
{
namespace
{

using nlohmann::ordered_json;

constexpr const char* Folder = "json/";
constexpr const char* Suffix = ".json";

/// How schemas name definitions: their own, and behind the name of a part and its version those of the part.
constexpr std::string_view Definitions = "#/definitions/";
constexpr std::string_view Parts = "urn:zelmodel:json:part:";

ordered_json read(const std::string& name)
{
    return ordered_json::parse(textOf(Folder + name + Suffix));
}

/// A schema that takes in the definitions of parts that it refers to, and those that they refer to, each once.
class Bundle
{
public:
    explicit Bundle(ordered_json schema) : m_schema(std::move(schema))
    {
        resolve(m_schema, "");
        for (const auto& [name, definition] : m_taken.items())
            m_schema["definitions"][name] = definition;
    }

    std::string text() const { return m_schema.dump(2) + '\n'; }

private:
    /// Changes all references in what stands in the part, or in no part, so that they lead into the bundle.
    void resolve(ordered_json& value, const std::string& part)
    {
        for (const auto& [key, member] : value.items())
        {
            if (key == "$ref")
                member = referenceTo(member.get<std::string>(), part);
            else if (member.is_structured())
                resolve(member, part);
        }
    }

    std::string referenceTo(const std::string& reference, std::string part)
    {
        const auto definitions = reference.find(Definitions);
        const auto name = reference.substr(definitions + Definitions.size());
        if (definitions != 0)
            part = reference.substr(Parts.size(), reference.find(':', Parts.size()) - Parts.size());
        if (part.empty())
            return reference;
        const auto taken = part + '-' + name;
        if (!m_taken.contains(taken))
            take(part, name, taken);
        return std::string(Definitions) + taken;
    }

    void take(const std::string& part, const std::string& name, const std::string& taken)
    {
        m_taken[taken] = nullptr; // one that refers to itself finds itself taken
        auto definition = read("parts/" + part).at("definitions").at(name);
        resolve(definition, part);
        m_taken[taken] = std::move(definition);
    }

    ordered_json m_schema;
    ordered_json m_taken = ordered_json::object();
};

} // namespace

std::vector<std::string> answers()
{
    return namesIn(Folder, Suffix);
}

std::string answerSchemaOf(const std::string& answer)
{
    return Bundle(read(answer)).text();
}

} // namespace schemas
