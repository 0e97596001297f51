// The name that was probably meant.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tool {

/// The candidate that takes the fewest slips of the keyboard to become `name`; empty when all take too
/// many.
std::string nearName(std::string_view name, const std::vector<std::string>& candidates);

/// The same as the end of a message: `; did you mean "x"?`, or nothing.
std::string meant(std::string_view name, const std::vector<std::string>& candidates);

}  // namespace tool
