#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace zelmodel_bench
{

/// Lines of a session log, of about 120 bytes, without their ends.
std::vector<std::string> makeLogLines(std::size_t count);

} // namespace zelmodel_bench
