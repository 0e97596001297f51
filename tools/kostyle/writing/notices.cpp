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

void noticeLostVendor(const std::string& vendor) {
  fmt::print(stderr, "kostyle: notice: the vendor text is lost: {}\n", inQuotes(vendor));
}

}  // namespace tool
