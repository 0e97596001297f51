// What --help prints.
#pragma once

#include <string>

#include "help/description.h"

namespace tool {

std::string helpText(const CommandDescription& command);

}  // namespace tool
