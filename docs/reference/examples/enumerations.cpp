#include <iostream>

#include <zelmodel/enumerations.h>

using namespace zelplatform::model;

int main()
{
    // From a stored name to the number, and to the words for people.
    const auto type = JobSessionType::fromStr("Backup");
    std::cout << type << " is " << JobSessionType::toUserFriendlyStr(type) << ", logs in "
              << JobSessionType::toLogFolderName(type) << '\n';

    const auto state = JobSessionState::SessionFinishedWithWarning;
    std::cout << JobSessionState::toStr(state) << ": " << JobSessionState::toUserFrendlyStr(state)
              << (JobSessionState::IsSessionFinished(state) ? ", at its end" : ", goes on") << '\n';

    // Block sizes are stored by name and used in bytes.
    for (const auto& name : KbBlockSize::toStringList())
        std::cout << name << " = " << KbBlockSize::toBytes(KbBlockSize::fromStr(name)) << " bytes\n";

    // Names are read exactly as they are stored.
    try
    {
        ESnapshotMode::FromString("hybrid");
    }
    catch (const std::exception& refusal)
    {
        std::cout << refusal.what() << '\n';
    }
}
