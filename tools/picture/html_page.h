#pragma once

#include <string>

#include "schedule_picture.h"

namespace picture
{

/// The picture as one page of HTML, which needs no other file and has no script: tables, in which every mark is told in
/// words as well.
std::string renderHtml(const SchedulePicture& picture);

} // namespace picture
