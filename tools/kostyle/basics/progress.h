// How far long work has come: a line on stderr that is overwritten and gone at the end. Only on a
// terminal, only when the work takes more than a moment, and not when it is to be quiet.
#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>

namespace tool {

class Progress {
 public:
  /// `verb` is what happens to the files, such as "checking".
  explicit Progress(std::string verb);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress();

  void tell(std::size_t done, std::size_t all);

  /// Makes room for what is printed.
  void erase();

 private:
  using Clock = std::chrono::steady_clock;

  std::string verb_;
  std::optional<std::size_t> width_;
  Clock::time_point next_;
  bool isShown_ = false;
};

}  // namespace tool
