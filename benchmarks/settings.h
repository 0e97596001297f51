// What the programs of the benchmark are told on their command lines.
#pragma once

#include <cstddef>
#include <filesystem>
#include <vector>

namespace bench {

struct Settings {
  std::filesystem::path data;         // made by bench-data
  std::filesystem::path scratch;      // for what is written, on a disk
  std::filesystem::path fastScratch;  // the same, in memory
  std::size_t files = 1000;           // in each set
  std::size_t bundles = 100;
  std::size_t saves = 200;
  std::size_t hostileBytes = 16U << 20;
  std::vector<std::size_t> sizes = {1000, 3000, 10000};  // at which growth is measured
};

/// Takes arguments of the form --name=value. Those that it does not know are left to the caller, in
/// `others`.
Settings parseSettings(int argc, char** argv, std::vector<char*>& others);

}  // namespace bench
