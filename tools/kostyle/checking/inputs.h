// The files that are to be checked.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "basics/paths.h"
#include "checking/finding.h"

namespace tool {

struct Input {
  std::string shown;
  Text path;              // as the library takes it; empty for the standard input
  std::string problem;    // why it cannot be read; empty as a rule
  bool isNamed = false;   // by itself, not by its directory
  std::size_t order = 0;  // among all files, as the library reads them
};

/// The files of the named paths: a directory stands for the style files in it, sorted by path, and "-"
/// for the standard input. Of directories the library reads one after the other, each in the system's
/// order.
std::vector<Input> inputsOf(const std::vector<std::string>& arguments);

/// Reads a file and checks it. One that is larger than `maxSize` bytes is not read.
FileReport checkInput(const Input& input, std::size_t maxSize);

}  // namespace tool
