#include "notices.h"

#include <fmt/format.h>

#include "text.h"

namespace tool {

void noticeLostEffects() {
  fmt::print(stderr, "kostyle: notice: effects without parameters will not be read from the file\n");
}

void noticeLostVendor(const std::string& vendor) {
  fmt::print(stderr, "kostyle: notice: the vendor text is lost: {}\n", inQuotes(vendor));
}

}  // namespace tool
