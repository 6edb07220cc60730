#include <exception>
#include <iostream>
#include <iterator>
#include <string>

#include <zelmodel/zelmodel.h>
#include <zelplatform/exc/exc.h>

// Tells a job from standard input. The library's own exception must be known on this side of its border.
int main()
try
{
    const std::string text(std::istreambuf_iterator<char>(std::cin), {});
    const auto job = zelplatform::model::SBackupJobOptions::fromStr(text);
    std::cout << job.maxDays << " days are kept; starts: " << job.schedule.GetJobStartOptions().ToLogStr(false) << '\n';
    return 0;
}
catch (const exc::CRuntimeExc& refusal)
{
    std::cout << "refused: " << refusal.trace().front() << '\n';
    return 3;
}
catch (const std::exception& other)
{
    std::cout << "another exception: " << other.what() << '\n';
    return 1;
}
