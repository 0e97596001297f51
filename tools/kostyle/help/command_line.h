// The command line: which command it gives, and what is wrong with it.
#pragma once

#include <string>
#include <vector>

#include "commands/commands.h"

namespace tool {

/// Runs the command that the arguments give and returns its exit code. They do not hold the program's
/// own name. Throws WrongUse and whatever the command throws.
int runCommandLine(std::vector<std::string> arguments);

}  // namespace tool
