// The check of many files.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "checking/finding.h"
#include "checking/inputs.h"

namespace tool {

struct CheckOptions {
  std::size_t maxSize = 0;  // of a file, in bytes
  unsigned jobs = 1;        // files that are checked at the same time
  std::function<void(std::size_t done, std::size_t all)> progress = {};  // called now and then
};

/// What was found in the files, each report at the place of its input. The order of the findings
/// depends on nothing but the inputs and what is in the files.
std::vector<FileReport> checkAll(const std::vector<Input>& inputs, const CheckOptions& options);

/// Takes the findings out that are less than `least`.
void dropBelow(Severity least, std::vector<FileReport>& reports);

/// How many findings of a file were counted but not kept.
std::size_t numUnkept(const FileReport& report);

struct Counts {
  std::size_t files = 0;
  std::size_t errors = 0;
  std::size_t warnings = 0;
  std::size_t notes = 0;
};

Counts countsOf(const std::vector<FileReport>& reports);

}  // namespace tool
