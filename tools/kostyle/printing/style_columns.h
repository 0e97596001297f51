// What a listing can tell of a style.
#pragma once

#include <kostyle/kostyle.h>

#include <string>
#include <vector>

#include "printing/table.h"

namespace tool {

struct StyleColumn {
  std::string name;  // in arguments
  std::string heading;
  unsigned importance;  // as TableColumn has it
  bool isUsual;         // shown when no columns are named
  bool isNumber;        // sorted as one
  std::string (*cell)(KoStyleStyle*, std::size_t list);
  std::size_t list = 0;  // among textLists()
};

/// All of them, in their usual order.
const std::vector<StyleColumn>& styleColumns();

std::string cellOf(const StyleColumn& column, KoStyleStyle* style);

/// Sorts stably by what a column tells; case does not count.
void sortStyles(std::vector<KoStyleStyle*>& styles, const StyleColumn& column);

}  // namespace tool
