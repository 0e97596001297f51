// The manual page, in the language of man(7).
#pragma once

#include <string>

#include "help/description.h"

namespace tool {

std::string manualPage(const CommandDescription& tool);

}  // namespace tool
