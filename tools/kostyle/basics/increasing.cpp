#include "basics/increasing.h"

#include <algorithm>

namespace tool {

std::vector<std::size_t> longestIncreasing(const std::vector<std::size_t>& numbers) {
  std::vector<std::size_t> ends;  // for each length the smallest end of a sequence, as a place
  std::vector<std::size_t> before(numbers.size());
  const auto isLess = [&](std::size_t place, std::size_t number) { return numbers[place] < number; };
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const auto found = std::lower_bound(ends.begin(), ends.end(), numbers[i], isLess);
    before[i] = found == ends.begin() ? i : found[-1];
    if (found == ends.end()) {
      ends.push_back(i);
    } else {
      *found = i;
    }
  }
  std::vector<std::size_t> places(ends.size());
  std::size_t at = ends.empty() ? 0 : ends.back();
  for (std::size_t i = places.size(); i > 0; at = before[at]) places[--i] = at;
  return places;
}

}  // namespace tool
