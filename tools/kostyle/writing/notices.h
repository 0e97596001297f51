// What the user should know about a style that was written all the same. One line each on stderr.
#pragma once

#include <string>

#include "writing/saving.h"

namespace tool {

void noticeLosses(const Losses& losses);
void noticeLostVendor(const std::string& vendor);

}  // namespace tool
