#include "writing/notices.h"

#include <fmt/format.h>

#include "basics/text.h"

namespace tool {

void noticeLosses(const Losses& losses) {
  if (losses.emptyEffects)
    fmt::print(stderr, "kostyle: notice: effects without parameters will not be read from the file\n");
  if (losses.sameNames)
    fmt::print(stderr,
               "kostyle: notice: effects or parameters are lost: readers take their names for one\n");
}

void noticeLost(const std::vector<std::string>& parts) {
  for (const std::string& part : parts) fmt::print(stderr, "kostyle: notice: {}\n", printable(part));
}

}  // namespace tool
