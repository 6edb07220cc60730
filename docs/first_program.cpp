#include <iostream>
#include <iterator>

#include <zelmodel/zelmodel.h>

int main()
try
{
    const std::string text(std::istreambuf_iterator<char>(std::cin), {});
    const auto job = zelplatform::model::SBackupJobOptions::fromStr(text);
    std::cout << job.maxDays << " days are kept; starts: " << job.schedule.GetJobStartOptions().ToLogStr(false) << '\n';
    return 0;
}
catch (const std::exception& refusal)
{
    std::cerr << refusal.what() << '\n';
    return 1;
}
