// What the user should know about a style that was written all the same. One line each on stderr.
#pragma once

#include <string>

namespace tool {

void noticeLostEffects();
void noticeLostVendor(const std::string& vendor);

}  // namespace tool
