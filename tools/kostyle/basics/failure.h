// What ends a command before its work is done. The message is one line for the user.
#pragma once

#include <stdexcept>

namespace tool {

enum ExitCode { exitOk = 0, exitRefused = 1, exitWrongUse = 2 };

/// The library, a file or a style stands against what was asked for.
struct Refused : std::runtime_error {
  using std::runtime_error::runtime_error;
};

struct NotEnoughMemory : Refused {
  using Refused::Refused;
};

/// What was to be printed cannot be: nothing else that is printed can be.
struct OutputFailed : Refused {
  using Refused::Refused;
};

/// The command line is wrong, whatever the styles are.
struct WrongUse : std::runtime_error {
  using std::runtime_error::runtime_error;
};

}  // namespace tool
