#pragma once

#include <functional>
#include <string>
#include <vector>

namespace readers
{

/// What the text that a reader's partner writes is good for.
enum class EWritten
{
    ReadsBack, ///< the same reader takes it, and it is written again as it is
    Words,     ///< it only tells what was read
};

/// One way in which outside input reaches the library: reading it and writing what was read. Every proof that holds for
/// all input walks over all readers.
struct Reader
{
    std::string name;                                       ///< fit for a file's name: "SGfsPolicyInfo.fromXml.short"
    std::function<std::string(const std::string&)> rewrite; ///< throws what the library throws
    std::vector<std::string> samples;                       ///< inputs that are read
    EWritten written = EWritten::ReadsBack;
};

using Readers = std::vector<Reader>;

// The families.
Readers scheduleReaders();
Readers scheduleTextReaders();
Readers jobReaders();
Readers repositoryReaders();
Readers sessionReaders();
Readers transformReaders();
Readers binaryReaders();
Readers valueReaders();
Readers enumerationReaders();
Readers toolReaders();

/// Every reader, in the order of the families.
const Readers& all();

/// Throws std::out_of_range when there is none of the name.
const Reader& find(const std::string& name);

} // namespace readers
