#if defined(_WIN32)
#define NOMINMAX
#define WIN32_LEAN_AND_MEAN
#endif
#include "basics/terminal.h"

#include <charconv>
#include <cstdlib>
#include <string_view>
#include <system_error>

#if defined(_WIN32)
#include <windows.h>
#else
#include <sys/ioctl.h>
#include <unistd.h>
#endif

namespace tool {
namespace {

#if defined(_WIN32)
enum class Stream : DWORD { in = STD_INPUT_HANDLE, out = STD_OUTPUT_HANDLE, error = STD_ERROR_HANDLE };

HANDLE handleOf(Stream stream) { return GetStdHandle(static_cast<DWORD>(stream)); }

bool isTerminal(Stream stream) {
  DWORD mode = 0;
  return GetConsoleMode(handleOf(stream), &mode) != 0;
}

bool takesSequences(Stream stream) {
  DWORD mode = 0;
  return GetConsoleMode(handleOf(stream), &mode) != 0 &&
         SetConsoleMode(handleOf(stream), mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

std::size_t widthOf(Stream stream) {
  CONSOLE_SCREEN_BUFFER_INFO info{};
  if (GetConsoleScreenBufferInfo(handleOf(stream), &info) == 0) return 0;
  return static_cast<std::size_t>(info.srWindow.Right - info.srWindow.Left + 1);
}
#else
enum class Stream : int { in = STDIN_FILENO, out = STDOUT_FILENO, error = STDERR_FILENO };

bool isTerminal(Stream stream) { return isatty(static_cast<int>(stream)) != 0; }

bool takesSequences(Stream stream) {
  const char* const terminal = std::getenv("TERM");
  return isTerminal(stream) && terminal && std::string_view(terminal) != "dumb";
}

std::size_t widthOf(Stream stream) {
  winsize size{};
  return ioctl(static_cast<int>(stream), TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}
#endif

constexpr std::size_t usualWidth = 80;

std::size_t terminalWidth(Stream stream) {
  const std::size_t width = widthOf(stream);
  return width == 0 ? usualWidth : width;
}

// 0 when the environment does not say.
std::size_t columnsVariable() {
  const char* const value = std::getenv("COLUMNS");
  const std::string_view text = value ? value : "";
  std::size_t columns = 0;
  const auto parsed = std::from_chars(text.data(), text.data() + text.size(), columns);
  return parsed.ec == std::errc() && parsed.ptr == text.data() + text.size() ? columns : 0;
}

}  // namespace

bool takesColors() {
  const char* const noColor = std::getenv("NO_COLOR");
  return (!noColor || *noColor == 0) && takesSequences(Stream::out);
}

std::optional<std::size_t> outputWidth() {
  if (const std::size_t columns = columnsVariable()) return columns;
  if (!isTerminal(Stream::out)) return std::nullopt;
  return terminalWidth(Stream::out);
}

std::optional<std::size_t> progressWidth() {
  if (!takesSequences(Stream::error)) return std::nullopt;
  return terminalWidth(Stream::error);
}

bool canAsk() { return isTerminal(Stream::in) && isTerminal(Stream::error); }

}  // namespace tool
