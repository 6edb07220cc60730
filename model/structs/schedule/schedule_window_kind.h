#pragma once

#include <cstdint>

namespace zelplatform::model::structs
{

/// What a window is outside the hours that its texts list: open (Enabled) or closed (Disabled).
enum EScheduleWindowKind : std::int32_t
{
    Enabled = 0,
    Disabled = 1
};

} // namespace zelplatform::model::structs
