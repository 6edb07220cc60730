#include "log_lines.h"

namespace zelmodel_bench
{

std::vector<std::string> makeLogLines(std::size_t count)
{
    const char* severities[] = {"processing", "info", "warn", "error"};
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < count; ++i)
    {
        const auto second = std::to_string(10 + i % 50);
        lines.push_back("2024-03-07 13:05:" + second + " UTC 7929741c-d273-43c0-848a-7e2157894e4a " +
                        severities[i % 4] + " Backing up /export/home/user" + std::to_string(i) +
                        ": 3.2 GB read at 112 MB/s");
    }
    return lines;
}

} // namespace zelmodel_bench
