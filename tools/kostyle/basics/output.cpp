#include "basics/output.h"

#include <cstdio>

#if defined(_WIN32)
#include <fcntl.h>
#include <io.h>
#endif

#include "basics/failure.h"

namespace tool {
namespace {

[[noreturn]] void failToPrint() { throw Refused("the output cannot be written"); }

}  // namespace

void printBytes(std::string_view bytes) {
#if defined(_WIN32)
  _setmode(_fileno(stdout), _O_BINARY);
#endif
  if (std::fwrite(bytes.data(), 1, bytes.size(), stdout) != bytes.size()) failToPrint();
}

void flushOutput() {
  if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) failToPrint();
}

}  // namespace tool
