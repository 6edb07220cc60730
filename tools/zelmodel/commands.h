#pragma once

#include <optional>
#include <string>

#include <zelmodel/datetime/date.h>

#include "describe/text_renderer.h"
#include "input.h"

/// The arguments of `show`.
struct ShowArguments
{
    std::string file;
};

/// The arguments of `next`.
struct NextArguments
{
    std::string file;
    std::string window;                            ///< empty: none
    std::optional<zelplatform::model::CDate> from; ///< nothing: the local date of today
    unsigned count = 10;
};

/// Prints what a document holds. Gives the exit code.
int show(const ShowArguments& arguments, const describe::TextStyle& style, Reading& reading);

/// Prints the next days on which a job starts. Gives the exit code.
int next(const NextArguments& arguments, const describe::TextStyle& style, Reading& reading);
