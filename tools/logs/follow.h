#pragma once

#include <functional>
#include <string>

#include "log_reader.h"

namespace logs
{

/// What happened to a file that is followed.
enum class EChange
{
    Replaced,  ///< another file has the name now, as after a rotation
    Truncated, ///< the file is shorter than what was read of it
};

/// What following a file calls.
struct FollowSteps
{
    /// Lines may have come: take all that the reader has.
    std::function<void(LogReader& reader)> read;

    /// Nothing more comes into what the reader reads; the last line without an end is to be taken now.
    std::function<void(LogReader& reader)> finish;

    /// A new reader begins at the first byte of the file.
    std::function<void(EChange change)> changed;

    /// Everything was read. Waits for a while; false ends the following.
    std::function<bool()> wait;
};

/// Reads the file to its end and then what is appended, until waiting says so. It is looked at by its name after each
/// wait: one that was replaced is read to its end first, then the new one from its beginning; one that was truncated is
/// read again from its beginning; while the name is missing the old file is followed. A file that was truncated and has
/// grown beyond what was read of it by the next look is not told from one that grew.
/// Throws files::InputError, and exc::CRuntimeExc for what is no regular file or is compressed.
void follow(const std::string& name, LibraryNotes& notes, const FollowSteps& steps);

} // namespace logs
