#include <zelmodel/enums/job_session_state.h>

#include <zelplatform/exc/exc.h>
#include <zelplatform/util/util.h>

#include "detail/enum_rows.h"

namespace zelplatform::model
{
namespace
{

using Rows = JobSessionState;

constexpr auto StoredNames = detail::enumRows<Rows::type>({
    {Rows::SessionPending, "SessionPending"},
    {Rows::SessionInProgress, "SessionInProgress"},
    {Rows::SessionFinished, "SessionFinished"},
    {Rows::SessionFailed, "SessionFailed"},
    {Rows::SessionIsStopping, "SessionIsStopping"},
    {Rows::SessionFinishedWithWarning, "SessionFinishedWithWarning"},
});

constexpr auto FriendlyNames = detail::enumRows<Rows::type>({
    {Rows::SessionPending, "Pending"},
    {Rows::SessionInProgress, "Running"},
    {Rows::SessionFinished, "Success"},
    {Rows::SessionFailed, "Failed"},
    {Rows::SessionIsStopping, "Stopping"},
    {Rows::SessionFinishedWithWarning, "Warning"},
});

template <std::size_t N>
std::string textOf(const detail::EnumRows<Rows::type, N>& rows, Rows::type value)
try
{
    if (const auto text = detail::findText(rows, value))
        return std::string(*text);
    throw exc::CRuntimeExc("Unknown state: [%1].", util::toStr(value));
}
catch (std::exception& cause)
{
    exc::RegenTraceExc("Unable to convert SessionStatus to string.", cause);
}

} // namespace

std::string JobSessionState::toStr(type value)
{
    return textOf(StoredNames, value);
}

std::string JobSessionState::toUserFrendlyStr(type value)
{
    return textOf(FriendlyNames, value);
}

bool JobSessionState::IsSessionFinished(type value) noexcept
{
    return value == SessionFinished || value == SessionFailed || value == SessionFinishedWithWarning;
}

} // namespace zelplatform::model
