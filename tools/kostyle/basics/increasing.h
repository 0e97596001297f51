// The longest increasing sequence in a list of numbers.
#pragma once

#include <cstddef>
#include <vector>

namespace tool {

/// The places in a list of numbers, none of which stands there twice, whose numbers increase and which
/// are the most that can.
std::vector<std::size_t> longestIncreasing(const std::vector<std::size_t>& numbers);

}  // namespace tool
