#include "progress_bar.h"

#include <algorithm>
#include <iostream>
#include <string>

#include <sys/ioctl.h>
#include <unistd.h>

namespace
{

constexpr std::size_t WidestBar = 50;
constexpr std::size_t Around = 16; // "reading [", "] 100 %" and the last column, which some terminals wrap at
constexpr const char* EraseLine = "\r\x1b[K";

std::size_t barWidth()
{
    struct winsize size = {};
    if (::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col <= Around)
        return 0;
    return std::min(WidestBar, size.ws_col - Around);
}

} // namespace

ProgressBar::ProgressBar(bool isWanted, std::uint64_t total)
    : m_total(isWanted && total >= LeastTotal && ::isatty(STDERR_FILENO) != 0 ? total : 0), m_width(barWidth())
{
}

void ProgressBar::show(std::uint64_t done)
{
    if (m_total == 0)
        return;
    // A file may grow while it is read.
    const auto percent = static_cast<unsigned>(std::min(done, m_total) / (m_total / 100));
    if (m_isShown && percent == m_percent)
        return;
    m_isShown = true;
    m_percent = std::min(percent, 100U);
    const auto filled = m_width * m_percent / 100;
    const auto number = std::to_string(m_percent);
    std::cerr << EraseLine << "reading [" << std::string(filled, '#') << std::string(m_width - filled, ' ') << "] "
              << std::string(3 - number.size(), ' ') << number << " %" << std::flush;
}

void ProgressBar::hide()
{
    if (!m_isShown)
        return;
    m_isShown = false;
    std::cerr << EraseLine << std::flush;
}
