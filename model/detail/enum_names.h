#pragma once

/// Names of enumerators by reflection, for the few enumerations whose stored names are those of the code. The header of
/// the library moved between its versions.
#if __has_include(<magic_enum/magic_enum.hpp>)
#include <magic_enum/magic_enum.hpp>
#else
#include <magic_enum.hpp>
#endif
