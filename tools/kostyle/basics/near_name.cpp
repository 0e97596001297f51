#include "basics/near_name.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstddef>

#include "basics/text.h"

namespace tool {
namespace {

// Case is no slip.
std::u32string folded(std::string_view utf8) {
  std::u32string text;
  while (!utf8.empty()) {
    const char32_t codePoint = takeCodePoint(utf8);
    text += codePoint >= 'A' && codePoint <= 'Z' ? codePoint + ('a' - 'A') : codePoint;
  }
  return text;
}

// How many characters are missing, too many, wrong, or exchanged with their neighbour.
std::size_t slips(const std::u32string& a, const std::u32string& b) {
  std::vector<std::size_t> beforeLast(b.size() + 1);
  std::vector<std::size_t> last(b.size() + 1);
  std::vector<std::size_t> row(b.size() + 1);
  for (std::size_t j = 0; j <= b.size(); ++j) row[j] = j;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    beforeLast.swap(last);
    last.swap(row);
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1)});
      if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
        row[j] = std::min(row[j], beforeLast[j - 2] + 1);
    }
  }
  return row[b.size()];
}

}  // namespace

std::string nearName(std::string_view name, const std::vector<std::string>& candidates) {
  constexpr std::size_t longest = 200;  // a longer name is no slip of the keyboard
  const std::u32string wanted = folded(name);
  std::string nearest;
  std::size_t fewest = std::max<std::size_t>(1, wanted.size() / 3) + 1;
  for (const std::string& candidate : candidates) {
    const std::u32string text = folded(candidate);
    if (wanted.size() > longest || text.size() > longest) continue;
    const std::size_t count = slips(wanted, text);
    if (count >= fewest) continue;
    fewest = count;
    nearest = candidate;
  }
  return nearest;
}

std::string meant(std::string_view name, const std::vector<std::string>& candidates) {
  const std::string nearest = nearName(name, candidates);
  return nearest.empty() ? std::string() : fmt::format("; did you mean {}?", inQuotes(nearest));
}

}  // namespace tool
