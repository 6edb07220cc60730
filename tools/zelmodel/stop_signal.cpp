#include "stop_signal.h"

#include <poll.h>

namespace
{

volatile std::sig_atomic_t signalCame = 0;

extern "C" void noteSignal(int)
{
    signalCame = 1;
}

} // namespace

StopSignal::StopSignal()
{
    signalCame = 0;
    struct sigaction action = {};
    action.sa_handler = noteSignal;
    ::sigemptyset(&action.sa_mask);
    ::sigaction(SIGINT, &action, &m_interrupt);
    ::sigaction(SIGTERM, &action, &m_terminate);
}

StopSignal::~StopSignal()
{
    ::sigaction(SIGINT, &m_interrupt, nullptr);
    ::sigaction(SIGTERM, &m_terminate, nullptr);
}

bool StopSignal::isRaised() const noexcept
{
    return signalCame != 0;
}

void StopSignal::wait(int milliseconds) const noexcept
{
    // A signal between the question and the wait is seen when the wait is over.
    if (!isRaised())
        ::poll(nullptr, 0, milliseconds);
}
