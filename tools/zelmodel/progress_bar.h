#pragma once

#include <cstddef>
#include <cstdint>

/// Shows on standard error how far a long work is, in a line that is removed when the work ends. Shows nothing when it
/// is not wanted, standard error is no terminal or the work is small.
class ProgressBar
{
public:
    /// Work below so many bytes is done before anyone has read a bar.
    static constexpr std::uint64_t LeastTotal = 16UL * 1024 * 1024;

    ProgressBar(bool isWanted, std::uint64_t total);
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;
    ~ProgressBar() { hide(); }

    /// So many bytes of the total are done.
    void show(std::uint64_t done);

    /// Removes the line, so that other text can be written.
    void hide();

private:
    std::uint64_t m_total; ///< 0: nothing is shown
    std::size_t m_width;   ///< columns of the bar itself
    unsigned m_percent = 0;
    bool m_isShown = false;
};
