#include "output.h"

#include <cstdio>

#include "failure.h"

namespace tool {

void flushOutput() {
  if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0)
    throw Refused("the output cannot be written");
}

}  // namespace tool
