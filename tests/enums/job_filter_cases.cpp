#include "sweep_case.h"

#include <array>
#include <stdexcept>

#include <zelmodel/sessions/application_job_filter_type.h>
#include <zelmodel/sessions/job_filter_object.h>
#include <zelmodel/sessions/job_filter_type.h>

namespace sweep
{

using namespace zelplatform::model;

namespace
{

/// Which of the three engines the text stands for.
int engineNumber(const std::string& text)
{
    const std::array<std::string, 3> engines{"7929741c-d273-43c0-848a-7e2157894e4a",
                                             "cfe9f04a-d964-4e5e-9400-6b1deea81076",
                                             "4c411960-1738-11e9-ab14-d663bd873d93"};
    const std::string found = EApplicationJobFilterType::FromStr(text).ToAStr();
    for (std::size_t number = 0; number < engines.size(); ++number)
    {
        if (engines[number] == found)
            return static_cast<int>(number);
    }
    throw std::out_of_range(found);
}

} // namespace

std::vector<Case> jobFilterCases()
{
    return {
        {"EJobFilterType",
         writer(&EJobFilterType::toStr),
         reader(&EJobFilterType::fromStr),
         Letters::Exact,
         {{0, "Unknown"}, {1, "Include"}, {2, "Exclude"}},
         {},
         "Cannot convert job filter type to string: unknown record type [%1]",
         "Cannot convert string to job filter record type: unknown record type [%1]"},
        {"EJobFilterTypeUserFriendly",
         writer(&EJobFilterType::toUserFriendlyStr),
         {},
         Letters::Exact,
         {{0, "Unknown"}, {1, "Include"}, {2, "Exclude"}},
         {},
         "Cannot convert job filter type to string: unknown record type [%1]",
         {}},
        {"EJobFilterObjectWritten",
         writer(&EJobFilterObject::toStr),
         {},
         Letters::Exact,
         {{0, "Unknown"},
          {1, "SimpleDisk"},
          {2, "AllSystem"},
          {4, "FileMask"},
          {5, "Directory"},
          {7, "MountPoint"},
          {8, "SimpleDisk"},
          {9, "UserProfile"},
          {10, "UsbDrive"}},
         {},
         "Unable to convert filter to string. Unknown filter type: [%1].",
         {}},
        {"EJobFilterObjectRead",
         {},
         reader(&EJobFilterObject::fromStr),
         Letters::Exact,
         {},
         {{0, "Unknown"},
          {1, "SimpleDisk"},
          {1, "LVMObject"},
          {2, "AllSystem"},
          {4, "FileMask"},
          {5, "Directory"},
          {7, "MountPoint"},
          {9, "UserProfile"},
          {10, "UsbDrive"}},
         {},
         "Unable to convert string to filter type. Unknown filter type string: [%1]."},
        {"EJobFilterObjectUserFrendly",
         writer(&EJobFilterObject::toUserFrendlyStr),
         {},
         Letters::Exact,
         {{0, "Unknown object"},
          {1, "Disk"},
          {2, "All System"},
          {4, "File mask"},
          {5, "Directory"},
          {7, "Mount point"},
          {8, "Disk"},
          {9, "User profile"},
          {10, "USB drive"}},
         {},
         "Unable to convert filter type to string. Unknown filter type: [%1].",
         {}},
        {"EApplicationJobFilterType",
         {},
         engineNumber,
         Letters::Exact,
         {},
         {{0, "OracleDb"}, {1, "MySqlDb"}, {2, "PostgreSqlDb"}},
         {},
         "Failed to convert string(%1) to EApplicationJobFilterType::type Unknown application job filter type"},
    };
}

} // namespace sweep
