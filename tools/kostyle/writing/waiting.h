// Trying again for a while what another program stands against.
#pragma once

#include <chrono>
#include <string>

namespace CLI {
class App;
}

namespace tool {

inline constexpr std::chrono::seconds usualLimit(10);

/// Adds --wait, which writes to `limit`.
void addWaitOption(CLI::App& command, std::chrono::seconds& limit);

class Waiting {
 public:
  /// The message is printed on stderr once it has taken more than a moment.
  Waiting(std::chrono::milliseconds limit, std::string message);

  /// Lets a little time pass. False when the limit was reached before.
  bool again();

 private:
  using Clock = std::chrono::steady_clock;

  Clock::time_point start_ = Clock::now();
  std::chrono::milliseconds limit_;
  std::string message_;
};

}  // namespace tool
