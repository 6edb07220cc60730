#include <enums/sweep_case.h>

#include "operation.h"

namespace zelmodel_test
{
namespace
{

std::string writtenRows(const sweep::Case& enumeration)
{
    std::string written;
    for (const auto& row : enumeration.rows)
        written += enumeration.write(row.value) + '\n';
    return written;
}

} // namespace

// All values of one enumeration are one operation.
Operations enumerationOperations()
{
    Operations operations;
    for (const auto family : {sweep::foundationCases, sweep::jobConfigurationCases, sweep::jobFilterCases,
                              sweep::keyCases, sweep::repositoryCases, sweep::scheduleCases, sweep::sessionCases})
    {
        for (const auto& enumeration : family())
        {
            if (enumeration.write)
                operations = std::move(operations) +
                             asking(enumeration.name,
                                    {{"write", [enumeration](const Nothing&) { return writtenRows(enumeration); }}});
        }
    }
    return operations;
}

} // namespace zelmodel_test
