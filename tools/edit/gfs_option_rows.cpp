#include "option_tables.h"

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

namespace edit
{
namespace
{

std::vector<Assignment> rulesOf(const std::string& text)
{
    std::vector<Assignment> all{{"isEnabled", "true"}};
    for (const auto& rule : util::str_tokenize(text, ','))
    {
        const auto equals = rule.find('=');
        if (equals == std::string::npos)
            throw exc::CRuntimeExc("[%1] is no rule such as weekly=4.", rule);
        const auto name = util::str_trim(rule.substr(0, equals));
        all.push_back({name + ".isEnabled", "true"});
        all.push_back({name + ".keepCount", rule.substr(equals + 1)});
    }
    if (all.size() == 1)
        throw exc::CRuntimeExc("There is no rule such as weekly=4.");
    return all;
}

} // namespace

std::vector<NewOption> gfsOptionRows()
{
    return {{"--gfs", "RULES", "Restore points for the long term: weekly=4,monthly=12,yearly=7", rulesOf}};
}

} // namespace edit
