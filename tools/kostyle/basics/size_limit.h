// The limit on the size of files that are read.
#pragma once

#include <cstddef>
#include <string>

namespace tool {

/// Why a file that is larger is not read.
std::string largerThan(std::size_t limit);

}  // namespace tool
