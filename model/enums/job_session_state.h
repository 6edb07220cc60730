#pragma once

#include <string>

#include <zelmodel/export.h>

namespace zelplatform::model
{

/// The state of a job session. The numbers are stored; 2 to 5 are reserved and have no name.
struct ZELMODEL_API JobSessionState
{
    enum type : int
    {
        SessionPending = 0,
        SessionInProgress = 1,
        SessionFinished = 6,
        SessionFailed = 7,
        SessionIsStopping = 8,
        SessionFinishedWithWarning = 9
    };

    /// The stored name; throws for a reserved or any other number.
    static std::string toStr(type value);

    /// The word shown to people ("Pending", "Running", "Success" ...); throws for a reserved or any other number.
    static std::string toUserFrendlyStr(type value);

    /// True for finished, failed and finished with warning; a stopping session is not finished.
    static bool IsSessionFinished(type value) noexcept;
};

} // namespace zelplatform::model
