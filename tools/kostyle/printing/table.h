// A table for the terminal.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tool {

using Row = std::vector<std::string>;

/// One line for each row, the cells of a column below each other; all rows are of one length.
std::string table(const std::vector<Row>& rows);

/// Columns of a terminal that UTF-8 text takes: wide East Asian characters two, combining marks none.
std::size_t displayWidth(std::string_view utf8);

}  // namespace tool
