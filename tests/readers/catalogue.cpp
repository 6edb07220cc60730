#include "reader.h"

#include <algorithm>
#include <stdexcept>

namespace readers
{

const Readers& all()
{
    static const Readers readers = [] {
        Readers joined;
        for (const auto family : {scheduleReaders, scheduleTextReaders, jobReaders, repositoryReaders, sessionReaders,
                                  transformReaders, binaryReaders, valueReaders, enumerationReaders, toolReaders})
        {
            auto members = family();
            std::move(members.begin(), members.end(), std::back_inserter(joined));
        }
        return joined;
    }();
    return readers;
}

const Reader& find(const std::string& name)
{
    const auto& readers = all();
    const auto found =
        std::find_if(readers.begin(), readers.end(), [&](const Reader& reader) { return reader.name == name; });
    if (found == readers.end())
        throw std::out_of_range("There is no reader " + name + ".");
    return *found;
}

} // namespace readers
