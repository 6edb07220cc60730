#pragma once

#include <zelmodel/export.h>

/// What the library says of itself.
namespace zelmodel
{

/// The version of the library that was loaded, as "MAJOR.MINOR.PATCH": what was linked at run time, which may be newer
/// than what was compiled against. The text lives as long as the library.
ZELMODEL_API const char* Version() noexcept;

} // namespace zelmodel
