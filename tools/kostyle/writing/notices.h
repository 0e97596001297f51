// What the user should know about a style that was written all the same. One line each on stderr.
#pragma once

#include <string>
#include <vector>

#include "writing/saving.h"

namespace tool {

void noticeLosses(const Losses& losses);
void noticeLost(const std::vector<std::string>& parts);

}  // namespace tool
