#include <algorithm>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "readers/outcome.h"
#include "support/golden.h"

namespace zelmodel_test
{
namespace
{

/// A document and those of its attributes whose values can be wrong, in the order in which the reader takes them. The
/// reader quotes a wrong value, and not the whole document.
struct ReadingOrder
{
    const char* reader;
    const char* document;
    std::vector<std::string> attributes;
};

std::ostream& operator<<(std::ostream& stream, const ReadingOrder& order)
{
    return stream << order.reader;
}

const std::vector<std::string> Days{"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"};
const std::vector<std::string> Months{"January", "February", "March",     "April",   "May",      "June",
                                      "July",    "August",   "September", "October", "November", "December"};

const std::vector<ReadingOrder>& allOrders()
{
    static const std::vector<ReadingOrder> orders{
        {"SJobSessionProgressDetails.FromXml",
         "ProgressDetails/full",
         {"total_size", "total_used_size", "processed_data_size_bytes", "read_data_size_bytes",
          "transferred_data_size_bytes", "processing_speed", "source_read_load", "source_processing_load",
          "network_load", "target_write_load", "network_throttling_enabled", "repository_throttling_enabled"}},
        {"SBackupJobOptions.parseKivJobOptions",
         "JobOptions/full",
         {"Compression", "BlockSize", "MaxPoints", "MaxDays", "IsDedupEnabled", "RetryCount", "RetryTimeOutMs",
          "IgnoreFreezeThawFailures", "FreezeThawScriptsTimeout", "SnapshotMode"}},
        {"CWeekMask.FromXml", "Schedule/calendar_weekly", Days},
        {"CMonthMask.FromXml", "Schedule/calendar_monthly_last_day", Months},
    };
    return orders;
}

std::string badValue(std::size_t number)
{
    return "#" + std::to_string(number) + "#";
}

// The document with wrong values from the attribute of the number on.
std::string withFaultsFrom(const ReadingOrder& order, std::size_t first)
{
    auto text = golden(std::string(order.document) + ".xml");
    for (auto number = first; number < order.attributes.size(); ++number)
    {
        const auto name = ' ' + order.attributes[number] + "=\"";
        const auto begin = text.find(name);
        if (begin == std::string::npos)
            throw std::invalid_argument("There is no" + name);
        const auto value = begin + name.size();
        text.replace(value, text.find('"', value) - value, badValue(number));
    }
    return text;
}

class FaultsOfADocument : public testing::TestWithParam<ReadingOrder>
{
};

TEST_P(FaultsOfADocument, AreToldInReadingOrder)
{
    const auto& reader = readers::find(GetParam().reader);
    for (std::size_t number = 0; number < GetParam().attributes.size(); ++number)
    {
        const auto outcome = readers::attempt(reader, withFaultsFrom(GetParam(), number));
        EXPECT_FALSE(outcome.written) << GetParam().attributes[number];
        EXPECT_NE(outcome.refusal.find(badValue(number)), std::string::npos) << outcome.refusal;
    }
}

std::string orderName(const testing::TestParamInfo<ReadingOrder>& info)
{
    std::string name = info.param.reader;
    std::replace(name.begin(), name.end(), '.', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(All, FaultsOfADocument, testing::ValuesIn(allOrders()), orderName);

} // namespace
} // namespace zelmodel_test
