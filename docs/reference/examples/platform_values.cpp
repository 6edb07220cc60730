#include <iostream>

#include <zelplatform/datetime/datetime.h>
#include <zelplatform/io/io.h>
#include <zelplatform/util/util.h>

using datetime::CDateTime;

int main()
try
{
    // Dates of documents: the format must fit the whole text, and the date must exist.
    const auto moment = CDateTime::fromString("02/29/2024 21:05:00", CDateTime::QorDateFormat);
    std::cout << moment.toStdString("%Y-%m-%d %H:%M") << ", " << datetime::EDayOfWeek::ToStr(moment.getDayOfWeek())
              << " number " << moment.getMonthCurrWeekIndex() << " of " << datetime::EMonth::ToStr(moment.getMonth())
              << '\n';

    // Addresses in one text, and back.
    const auto text = io::net::CNetworkEndpoint::MergeToString({{"backup.example", 9392}, {"fe80::1", 443}});
    std::cout << text << '\n';
    for (const auto& endpoint : io::net::CNetworkEndpoint::ParseFromString(text))
        std::cout << "  " << endpoint.GetHost() << " at " << endpoint.GetPort() << '\n';

    // Numbers are whole texts, in range.
    std::cout << util::str_format("%1 of %2", util::toStr(3), util::toStr(util::fromStr<unsigned>("4"))) << '\n';
    util::fromStr<unsigned>("4 and more");
}
catch (const std::exception& failure)
{
    std::cout << failure.what() << '\n';
}
