#include "basics/terminal.h"

#include <cstdlib>
#include <string_view>

#if defined(_WIN32)
#include <windows.h>
#else
#include <unistd.h>
#endif

namespace tool {
namespace {

#if defined(_WIN32)
bool isColorTerminal() {
  const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
  DWORD mode = 0;
  return GetConsoleMode(output, &mode) != 0 &&
         SetConsoleMode(output, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}
#else
bool isColorTerminal() {
  const char* const terminal = std::getenv("TERM");
  return isatty(STDOUT_FILENO) != 0 && terminal && std::string_view(terminal) != "dumb";
}
#endif

}  // namespace

bool takesColors() {
  const char* const noColor = std::getenv("NO_COLOR");
  return (!noColor || *noColor == 0) && isColorTerminal();
}

}  // namespace tool
