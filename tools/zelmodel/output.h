#pragma once

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "describe/text_renderer.h"

/// The options of output that every command has.
struct OutputOptions
{
    bool isJson = false;
    bool isPlain = false;
    bool showsSecrets = false;
};

/// The version of the layout of every JSON answer, its member "schema".
inline constexpr int JsonSchema = 1;

/// Where and how a command prints: text for people, coloured and as wide as the terminal on one, or JSON.
class Output
{
public:
    explicit Output(const OutputOptions& options);

    bool isJson() const noexcept { return m_isJson; }
    const describe::TextStyle& style() const noexcept { return m_style; }

    /// Whether standard output is a file, so that nobody reads along.
    bool isFile() const;

    /// Whether the user wants neither colours nor moving pictures.
    bool isPlain() const noexcept { return m_isPlain; }

    /// Hands on what was printed so far, for whoever reads along.
    void flush() const;

    /// Whether standard output took everything so far.
    bool isGood() const;

    /// Prints text for people on standard output. What comes from outside must be escaped by then (see
    /// describe::printable).
    void print(const std::string& text) const;

    /// Prints one JSON document on standard output: the kind, the version of its layout and the file, followed by
    /// the members of the body. Bytes that are no UTF-8 are replaced.
    void printJson(const std::string& kind, const std::string& file, const nlohmann::ordered_json& body) const;

    /// Prints one JSON document of a layout that others have set, likewise.
    void printForeignJson(const nlohmann::ordered_json& document) const;

    /// A refusal: on standard error for people, on standard output as JSON of the kind "error". The line is 0 when
    /// none is known. Sentences may hold anything.
    void printRefusal(const std::string& file, int line, const std::vector<std::string>& sentences) const;

    /// An input or output that failed; likewise.
    void printFailure(const std::string& file, const std::string& reason) const;

    /// A call that was wrong; likewise, about no file.
    void printUsageError(const std::string& reason) const;

private:
    bool m_isJson;
    bool m_isPlain;
    describe::TextStyle m_style;
};
