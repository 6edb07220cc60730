#pragma once

#include <string>

#include "schedule_picture.h"

namespace picture
{

/// The picture as one SVG file, which needs no other file and has no script.
std::string renderSvg(const SchedulePicture& picture);

} // namespace picture
