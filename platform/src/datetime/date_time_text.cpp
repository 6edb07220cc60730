#include <zelplatform/datetime/date_time.h>

#include <algorithm>
#include <ctime>
#include <iomanip>
#include <locale>
#include <sstream>
#include <string_view>

#include <boost/date_time/gregorian/gregorian_types.hpp>

#include <zelplatform/exc/exc.h>

namespace datetime
{
namespace
{

// Takes between minDigits and maxDigits decimal digits off the front of the text.
bool takeNumber(std::string_view& text, std::size_t minDigits, std::size_t maxDigits, int& value) noexcept
{
    const auto most = std::min(maxDigits, text.size());
    int number = 0;
    std::size_t count = 0;
    for (; count < most; ++count)
    {
        const auto digit = static_cast<unsigned>(text[count] - '0');
        if (digit > 9)
            break;
        number = number * 10 + static_cast<int>(digit);
    }
    value = number;
    text.remove_prefix(count);
    return count >= minDigits;
}

struct Fields
{
    int year = 1970;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;

    int* find(char directive) noexcept
    {
        switch (directive)
        {
        case 'Y': return &year;
        case 'm': return &month;
        case 'd': return &day;
        case 'H': return &hour;
        case 'M': return &minute;
        case 'S': return &second;
        default: return nullptr;
        }
    }
};

bool parse(std::string_view text, std::string_view format, Fields& fields) noexcept
{
    for (std::size_t i = 0; i < format.size(); ++i)
    {
        int* field = format[i] == '%' && i + 1 < format.size() ? fields.find(format[i + 1]) : nullptr;
        if (field != nullptr)
        {
            ++i;
            const bool isYear = format[i] == 'Y';
            if (!takeNumber(text, isYear ? 4 : 1, isYear ? 4 : 2, *field))
                return false;
            continue;
        }
        if (text.empty() || text.front() != format[i])
            return false;
        text.remove_prefix(1);
    }
    return text.empty();
}

void appendNumber(std::string& out, int value, int digits)
{
    for (int divisor = digits == 4 ? 1000 : 10; divisor > 0; divisor /= 10)
        out.push_back(static_cast<char>('0' + value / divisor % 10));
}

// Handles the directives that stored documents use; false for a format with any other.
bool formatFields(Fields& fields, std::string_view format, std::string& out)
{
    for (std::size_t i = 0; i < format.size(); ++i)
    {
        if (format[i] != '%')
        {
            out.push_back(format[i]);
            continue;
        }
        const int* field = i + 1 < format.size() ? fields.find(format[i + 1]) : nullptr;
        if (field == nullptr)
            return false;
        ++i;
        appendNumber(out, *field, format[i] == 'Y' ? 4 : 2);
    }
    return true;
}

} // namespace

CDateTime CDateTime::fromString(std::string_view text, std::string_view format, bool isUtc)
try
{
    Fields fields;
    if (!parse(text, format, fields))
        throw exc::CRuntimeExc("The text does not match the format [%1].", std::string(format));
    CDateTime result(isUtc);
    result.setDate(fields.year, fields.month, fields.day);
    result.setTime(fields.hour, fields.minute, fields.second);
    return result;
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Unable to convert string [%1] to date-time.", std::string(text), cause);
}

std::string CDateTime::toStdString(std::string_view format) const
{
    Fields fields;
    getDate(fields.year, fields.month, fields.day);
    fields.hour = hour();
    fields.minute = minute();
    fields.second = second();
    std::string text;
    text.reserve(format.size() + 8);
    if (formatFields(fields, format, text))
        return text;

    std::tm broken{};
    broken.tm_year = fields.year - 1900;
    broken.tm_mon = fields.month - 1;
    broken.tm_mday = fields.day;
    broken.tm_hour = fields.hour;
    broken.tm_min = fields.minute;
    broken.tm_sec = fields.second;
    broken.tm_wday = getDayOfWeek();
    using boost::gregorian::date;
    broken.tm_yday = date(static_cast<unsigned short>(fields.year), static_cast<unsigned short>(fields.month),
                          static_cast<unsigned short>(fields.day))
                         .day_of_year() -
                     1;
    std::ostringstream out;
    // Without it a text that there is no memory for would be cut in silence.
    out.exceptions(std::ios::badbit);
    out.imbue(std::locale::classic());
    out << std::put_time(&broken, std::string(format).c_str());
    return out.str();
}

} // namespace datetime
