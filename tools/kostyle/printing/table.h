// A table for the terminal.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tool {

using Row = std::vector<std::string>;

struct TableColumn {
  std::string heading;
  unsigned importance = 0;  // 0 is never left out
};

/// One line for the headings and one for each row, the cells of a column below each other; all rows are
/// as long as the columns. Where a line would take more than `width` columns of the terminal, the least
/// important columns are left out and the widest cells cut.
std::string table(const std::vector<TableColumn>& columns, const std::vector<Row>& rows,
                  std::optional<std::size_t> width);

}  // namespace tool
