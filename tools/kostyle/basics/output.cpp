#include "basics/output.h"

#include <fcntl.h>
#include <fmt/core.h>

#include <cerrno>
#include <cstdio>
#include <exception>
#include <system_error>

#include "basics/common_options.h"
#include "basics/failure.h"
#include "basics/text.h"

#if defined(_WIN32)
#include <io.h>
#else
#include <unistd.h>

#include <csignal>
#endif

namespace tool {
namespace {

[[noreturn]] void failToPrint(int error) {
  throw OutputFailed(fmt::format("the output cannot be written{}{}", error == 0 ? "" : ": ",
                                 error == 0 ? "" : std::generic_category().message(error)));
}

#if !defined(_WIN32)
// Who reads stderr may be gone.
class BrokenPipesIgnored {
 public:
  BrokenPipesIgnored() = default;
  BrokenPipesIgnored(const BrokenPipesIgnored&) = delete;
  BrokenPipesIgnored& operator=(const BrokenPipesIgnored&) = delete;
  ~BrokenPipesIgnored() { static_cast<void>(std::signal(SIGPIPE, before_)); }

 private:
  void (*before_)(int) = std::signal(SIGPIPE, SIG_IGN);
};
#endif

}  // namespace

#if defined(_WIN32)
void holdStandardStreams() noexcept {}
#else
void holdStandardStreams() noexcept {
  // What nobody can use: reading and writing still fail.
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
    if (fcntl(stream, F_GETFD) < 0 &&
        open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY) < 0)
      return;
}
#endif

void print(std::string_view utf8) {
  errno = 0;
  try {
    fmt::print("{}", utf8);
  } catch (const std::system_error&) {
    failToPrint(errno);
  }
}

void printBytes(std::string_view bytes) {
#if defined(_WIN32)
  flushOutput();
  _setmode(_fileno(stdout), _O_BINARY);
#endif
  errno = 0;
  if (std::fwrite(bytes.data(), 1, bytes.size(), stdout) != bytes.size()) failToPrint(errno);
}

void flushOutput() {
  errno = 0;
  if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) failToPrint(errno);
}

void printOnStderr(std::string_view utf8) noexcept {
#if !defined(_WIN32)
  const BrokenPipesIgnored ignored;
#endif
  try {
    fmt::print(stderr, "{}", utf8);
  } catch (const std::exception&) {  // the exit code tells
    std::clearerr(stderr);
  }
}

void printError(std::string_view message) noexcept {
  try {
    printOnStderr(fmt::format("kostyle: {}\n", printable(message)));
  } catch (const std::exception&) {
    printOnStderr("kostyle: there is not enough memory\n");
  }
}

void notice(std::string_view message) noexcept {
  if (commonOptions().quiet) return;
  try {
    printError(fmt::format("notice: {}", message));
  } catch (const std::exception&) {
    printError("there is not enough memory for a notice");
  }
}

}  // namespace tool
