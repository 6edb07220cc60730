#pragma once

#include <csignal>

/// Turns SIGINT and SIGTERM into a question for as long as the object lives, so that work without an end can be ended
/// cleanly. There is one at a time.
class StopSignal
{
public:
    StopSignal();
    StopSignal(const StopSignal&) = delete;
    StopSignal& operator=(const StopSignal&) = delete;
    ~StopSignal();

    /// Whether one of the signals came.
    bool isRaised() const noexcept;

    /// Waits so long, or until a signal comes.
    void wait(int milliseconds) const noexcept;

private:
    struct sigaction m_interrupt = {};
    struct sigaction m_terminate = {};
};
