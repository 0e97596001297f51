#include "printing/table.h"

#include <algorithm>

#include "basics/text.h"

namespace tool {
namespace {

struct Range {
  char32_t first;
  char32_t last;
};

constexpr Range combining[] = {{0x300, 0x36F},   {0x483, 0x489},   {0x591, 0x5BD},   {0x610, 0x61A},
                               {0x64B, 0x65F},   {0x941, 0x948},   {0xE34, 0xE3A},   {0xE47, 0xE4E},
                               {0x200B, 0x200F}, {0x20D0, 0x20FF}, {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}};
constexpr Range wide[] = {{0x1100, 0x115F},   {0x2E80, 0x303E},  {0x3041, 0xA4CF}, {0xAC00, 0xD7A3},
                          {0xF900, 0xFAFF},   {0xFE30, 0xFE6F},  {0xFF00, 0xFF60}, {0xFFE0, 0xFFE6},
                          {0x1F300, 0x1FAFF}, {0x20000, 0x3FFFD}};

template <std::size_t size>
bool contains(const Range (&ranges)[size], char32_t codePoint) {
  return std::any_of(std::begin(ranges), std::end(ranges), [=](const Range& range) {
    return codePoint >= range.first && codePoint <= range.last;
  });
}

}  // namespace

std::size_t displayWidth(std::string_view utf8) {
  std::size_t width = 0;
  while (!utf8.empty()) {
    const char32_t codePoint = takeCodePoint(utf8);
    width += contains(combining, codePoint) ? 0 : contains(wide, codePoint) ? 2 : 1;
  }
  return width;
}

std::string table(const std::vector<Row>& rows) {
  std::vector<std::size_t> widths(rows.empty() ? 0 : rows.front().size());
  for (const Row& row : rows)
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], displayWidth(row[i]));
  constexpr std::size_t gap = 2;
  std::string text;
  for (const Row& row : rows) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i)
      line += row[i] + std::string(widths[i] - displayWidth(row[i]) + gap, ' ');
    line.erase(line.find_last_not_of(' ') + 1);
    text += line + '\n';
  }
  return text;
}

}  // namespace tool
