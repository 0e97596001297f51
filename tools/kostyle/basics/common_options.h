// The options that every command has.
#pragma once

#include <cstddef>
#include <string>

namespace CLI {
class App;
}

namespace tool {

struct CommonOptions {
  bool quiet = false;                            // no notices and no progress
  std::size_t maxSize = std::size_t{64} << 20U;  // of a file that is read, in bytes
};

/// What the command line says of them.
const CommonOptions& commonOptions();

void addCommonOptions(CLI::App& command);

/// Why a file is not read that is larger than the limit.
std::string tooLarge();

}  // namespace tool
