// Scripts by which shells complete the command line.
#pragma once

#include <string>

#include "help/description.h"

namespace tool {

std::string bashCompletion(const CommandDescription& tool);
std::string zshCompletion(const CommandDescription& tool);
std::string fishCompletion(const CommandDescription& tool);

}  // namespace tool
