#include "basics/output.h"

#include <cstdio>

#include "basics/failure.h"

namespace tool {

void flushOutput() {
  if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0)
    throw Refused("the output cannot be written");
}

}  // namespace tool
