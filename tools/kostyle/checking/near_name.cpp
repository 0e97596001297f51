#include "checking/near_name.h"

#include <fmt/core.h>

#include <algorithm>
#include <cstddef>

namespace tool {
namespace {

constexpr std::size_t mostMistakes = 2;

KoStyleChar folded(KoStyleChar unit) {
  const bool isUpper = unit >= 'A' && unit <= 'Z';
  return static_cast<KoStyleChar>(isUpper ? unit + ('a' - 'A') : unit);
}

// How many letters have to be put in, taken out, replaced or exchanged with their neighbour.
std::size_t distance(TextView a, TextView b) {
  std::vector<std::size_t> beforeLast(b.size() + 1);
  std::vector<std::size_t> last(b.size() + 1);
  std::vector<std::size_t> row(b.size() + 1);
  for (std::size_t j = 0; j <= b.size(); ++j) row[j] = j;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    beforeLast.swap(last);
    last.swap(row);
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const bool same = folded(a[i - 1]) == folded(b[j - 1]);
      row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (same ? 0 : 1)});
      const bool exchanged = i > 1 && j > 1 && folded(a[i - 1]) == folded(b[j - 2]) &&
                             folded(a[i - 2]) == folded(b[j - 1]);
      if (exchanged) row[j] = std::min(row[j], beforeLast[j - 2] + 1);
    }
  }
  return row[b.size()];
}

}  // namespace

Text nearName(TextView name, const std::vector<TextView>& known) {
  TextView nearest;
  std::size_t least = mostMistakes + 1;
  for (const TextView candidate : known) {
    const std::size_t longer = std::max(name.size(), candidate.size());
    const std::size_t shorter = std::min(name.size(), candidate.size());
    if (longer - shorter > mostMistakes) continue;
    const std::size_t mistakes = distance(name, candidate);
    // A short name is near to everything.
    if (mistakes < least && 2 * mistakes < longer) {
      nearest = candidate;
      least = mistakes;
    }
  }
  return Text(nearest);
}

std::string nearNameHint(TextView name, const std::vector<TextView>& known) {
  const Text nearest = nearName(name, known);
  return nearest.empty() ? std::string() : fmt::format("; did you mean {}?", inQuotes(toUtf8(nearest)));
}

}  // namespace tool
