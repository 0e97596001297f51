// Counts the instructions that a piece of work takes: the same number in every run, whatever else the
// machine does. The program runs under callgrind, which writes its counts into a file on request.
#pragma once

#include <valgrind/callgrind.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace test {

/// The sum in callgrind's newest file, which is taken away.
inline std::uint64_t takeSum() {
  static int files = 0;
  const std::string path = std::string(std::getenv("KOSTYLE_COUNTS")) + '.' + std::to_string(++files);
  const std::string key = "summary: ";
  std::uint64_t sum = 0;
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);)
    if (line.compare(0, key.size(), key) == 0) sum = std::stoull(line.substr(key.size()));
  if (sum == 0) throw std::runtime_error("no count in " + path);
  std::filesystem::remove(path);
  return sum;
}

/// The instructions of `work` in this process; the system's own are not among them.
template <class Work>
std::uint64_t instructions(Work work) {
  if (!RUNNING_ON_VALGRIND) throw std::runtime_error("to be run under callgrind");
  CALLGRIND_START_INSTRUMENTATION;
  CALLGRIND_ZERO_STATS;
  work();
  CALLGRIND_DUMP_STATS;
  CALLGRIND_STOP_INSTRUMENTATION;
  return takeSum();
}

}  // namespace test
