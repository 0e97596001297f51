#include "basics/size_limit.h"

#include <fmt/core.h>

namespace tool {

std::string largerThan(std::size_t limit) {
  constexpr std::size_t mebibyte = std::size_t{1} << 20U;
  const std::string shown = limit > 0 && limit % mebibyte == 0 ? fmt::format("{} MiB", limit / mebibyte)
                                                               : fmt::format("{} bytes", limit);
  return fmt::format("the file is larger than {}; --max-size allows more", shown);
}

}  // namespace tool
