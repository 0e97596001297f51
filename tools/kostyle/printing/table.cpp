#include "printing/table.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "basics/text_width.h"

namespace tool {
namespace {

constexpr std::size_t gap = 2;
constexpr std::size_t leastWidth = 12;  // of a column that is cut, unless there is no other way

using Widths = std::vector<std::size_t>;  // 0 for a column that is left out

Widths naturalWidths(const std::vector<TableColumn>& columns, const std::vector<Row>& rows) {
  Widths widths;
  widths.reserve(columns.size());
  for (std::size_t i = 0; i < columns.size(); ++i) {
    std::size_t width = widthOf(columns[i].heading);
    for (const Row& row : rows) width = std::max(width, widthOf(row[i]));
    widths.push_back(width);
  }
  return widths;
}

// No column is cut to less than its heading, or so little that nothing can be told by it.
Widths leastWidths(const std::vector<TableColumn>& columns, const Widths& natural) {
  Widths least;
  least.reserve(columns.size());
  for (std::size_t i = 0; i < columns.size(); ++i)
    least.push_back(std::min(natural[i], std::max(leastWidth, widthOf(columns[i].heading))));
  return least;
}

Widths capped(const Widths& natural, const Widths& least, std::size_t cap) {
  Widths result;
  result.reserve(natural.size());
  for (std::size_t i = 0; i < natural.size(); ++i)
    result.push_back(std::min(natural[i], std::max(cap, least[i])));
  return result;
}

std::size_t lineWidth(const Widths& widths) {
  const auto shown =
      widths.size() - static_cast<std::size_t>(std::count(widths.begin(), widths.end(), 0U));
  return std::accumulate(widths.begin(), widths.end(), std::size_t{0}) +
         (shown == 0 ? 0 : (shown - 1) * gap);
}

// Leaves out the least important column; false when none may be.
bool leaveOneOut(const std::vector<TableColumn>& columns, Widths& natural) {
  std::size_t least = columns.size();
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (natural[i] == 0 || columns[i].importance == 0) continue;
    if (least == columns.size() || columns[i].importance > columns[least].importance) least = i;
  }
  if (least == columns.size()) return false;
  natural[least] = 0;
  return true;
}

Widths fittingWidths(const std::vector<TableColumn>& columns, Widths natural, std::size_t width) {
  while (lineWidth(leastWidths(columns, natural)) > width && leaveOneOut(columns, natural)) {
  }
  Widths least = leastWidths(columns, natural);
  if (lineWidth(least) > width) least.assign(columns.size(), 0);
  std::size_t cap = *std::max_element(natural.begin(), natural.end());
  while (cap > 1 && lineWidth(capped(natural, least, cap)) > width) --cap;
  Widths result = capped(natural, least, cap);
  // What is left over goes to the first columns that were cut.
  for (std::size_t i = 0; i < result.size() && lineWidth(result) < width; ++i)
    result[i] = std::min(natural[i], result[i] + width - lineWidth(result));
  return result;
}

std::string line(const Row& row, const Widths& widths) {
  std::string text;
  std::size_t spaces = 0;
  for (std::size_t i = 0; i < row.size(); ++i) {
    if (widths[i] == 0) continue;
    const std::string cell = cutTo(widths[i], row[i]);
    if (!cell.empty()) {
      text.append(spaces, ' ');
      text += cell;
      spaces = 0;
    }
    spaces += widths[i] - widthOf(cell) + gap;
  }
  return text + '\n';
}

}  // namespace

std::string table(const std::vector<TableColumn>& columns, const std::vector<Row>& rows,
                  std::optional<std::size_t> width) {
  if (columns.empty()) return {};
  Widths widths = naturalWidths(columns, rows);
  if (width) widths = fittingWidths(columns, std::move(widths), *width);
  Row headings;
  headings.reserve(columns.size());
  for (const TableColumn& column : columns) headings.push_back(column.heading);
  std::string text = line(headings, widths);
  for (const Row& row : rows) text += line(row, widths);
  return text;
}

}  // namespace tool
