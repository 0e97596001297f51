#include "basics/text_width.h"

#include <algorithm>

#include "basics/text.h"
#include "basics/width_tables.h"

namespace tool {
namespace {

template <std::size_t size>
bool isAmong(const CodePoints (&sorted)[size], char32_t codePoint) {
  const auto before = [](char32_t a, const CodePoints& b) { return a < b.first; };
  const CodePoints* const next =
      std::upper_bound(std::begin(sorted), std::end(sorted), codePoint, before);
  return next != std::begin(sorted) && codePoint <= (next - 1)->last;
}

std::size_t widthOf(char32_t codePoint) {
  if (isAmong(withoutWidth, codePoint)) return 0;
  return isAmong(twoColumnsWide, codePoint) ? 2 : 1;
}

}  // namespace

std::size_t widthOf(std::string_view utf8) {
  std::size_t width = 0;
  while (!utf8.empty()) width += widthOf(takeCodePoint(utf8));
  return width;
}

std::string cutTo(std::size_t width, std::string_view utf8) {
  if (widthOf(utf8) <= width) return std::string(utf8);
  std::size_t taken = 0;
  std::string_view rest = utf8;
  for (std::string_view next = rest; !next.empty(); rest = next) {
    const std::size_t more = widthOf(takeCodePoint(next));
    if (taken + more > width - 1) break;
    taken += more;
  }
  return std::string(utf8.substr(0, utf8.size() - rest.size())) + "…";
}

}  // namespace tool
