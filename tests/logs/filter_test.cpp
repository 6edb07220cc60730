#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "log_lines.h"
#include "logs/filter.h"

namespace
{

using logs::Filter;
using logs::Record;
using Model = zelplatform::model::CSessionLogLineParser;
using zelmodel_test::logLineAt;

constexpr long At130509 = 1709816709; // 2024-03-07 13:05:09 UTC

bool takes(const Filter& filter, const std::string& line)
{
    Record record;
    EXPECT_TRUE(Model::Parse(line, record.time, record.session, record.severity, record.message)) << line;
    return filter.takes(record, line);
}

bool takesWarning(const Filter& filter)
{
    return takes(filter, logLineAt("13:05:09", "warn Volume /srv was read twice"));
}

TEST(Filter, WithoutWishesTakesAll)
{
    EXPECT_TRUE(takesWarning({}));
}

TEST(Filter, TakesTheSeverityAndWorse)
{
    const char* words[] = {"processing", "info", "warn", "error"};
    for (int least = 0; least < 4; ++least)
    {
        Filter filter;
        filter.leastSeverity = static_cast<logs::ESeverity>(least);
        for (int severity = 0; severity < 4; ++severity)
        {
            EXPECT_EQ(takes(filter, logLineAt("13:05:09", words[severity])), severity >= least);
        }
    }
}

TEST(Filter, TakesAnyOfTheSessions)
{
    const auto first = guid::guid_t::FromAStr(zelmodel_test::FirstSession);
    const auto second = guid::guid_t::FromAStr(zelmodel_test::SecondSession);
    Filter filter;
    filter.sessions = {second};
    EXPECT_FALSE(takesWarning(filter));
    filter.sessions = {second, first};
    EXPECT_TRUE(takesWarning(filter));
}

TEST(Filter, BothEndsOfTheTimeAreTaken)
{
    Filter filter;
    filter.since = At130509;
    filter.until = At130509;
    EXPECT_TRUE(takesWarning(filter));
    filter.since = At130509 + 1;
    filter.until = std::nullopt;
    EXPECT_FALSE(takesWarning(filter));
    filter.since = std::nullopt;
    filter.until = At130509 - 1;
    EXPECT_FALSE(takesWarning(filter));
}

TEST(Filter, LooksForTextAnywhereInTheLineByteByByte)
{
    for (const char* text : {"/srv", "warn V", "13:05:09 UTC", "5f0c2b7a", "twice"})
    {
        Filter filter;
        filter.text = text;
        EXPECT_TRUE(takesWarning(filter)) << text;
    }
    for (const char* text : {"/SRV", "read  twice", ".*", "twice "})
    {
        Filter filter;
        filter.text = text;
        EXPECT_FALSE(takesWarning(filter)) << text;
    }
}

} // namespace
