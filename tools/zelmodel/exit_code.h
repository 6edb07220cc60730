#pragma once

#include <iterator>

/// What the command's exit status says. Of several files, the greatest one counts.
namespace exit_code
{

enum Code : int
{
    Fine,
    Findings,
    Usage,
    Refused,
    CannotRead,
    NotScheduled,
    Count ///< of the codes
};

/// The words for each code, in their order.
inline constexpr const char* Meanings[] = {"fine",
                                           "there are findings or differences",
                                           "the call was wrong",
                                           "a document was refused",
                                           "a file cannot be read or written",
                                           "the job is not scheduled then"};
static_assert(std::size(Meanings) == Count);

} // namespace exit_code
