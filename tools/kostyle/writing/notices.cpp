#include "writing/notices.h"

#include "basics/output.h"

namespace tool {

void noticeLosses(const Losses& losses) {
  if (losses.emptyEffects) notice("effects without parameters will not be read from the file");
  if (losses.sameNames) notice("effects or parameters are lost: readers take their names for one");
}

void noticeLost(const std::vector<std::string>& parts) {
  for (const std::string& part : parts) notice(part);
}

}  // namespace tool
