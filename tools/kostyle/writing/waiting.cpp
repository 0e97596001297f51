#include "writing/waiting.h"

#include <fmt/format.h>

#include <algorithm>
#include <thread>
#include <utility>

#include "basics/text.h"

namespace tool {

using std::chrono::milliseconds;

Waiting::Waiting(milliseconds limit, std::string message)
    : limit_(limit), message_(std::move(message)) {}

bool Waiting::again() {
  constexpr milliseconds pause(10);
  constexpr milliseconds moment(1000);
  const auto waited = std::chrono::duration_cast<milliseconds>(Clock::now() - start_);
  if (waited >= limit_) return false;
  if (waited >= moment && !message_.empty()) {
    fmt::print(stderr, "kostyle: {}\n", printable(message_));
    message_.clear();
  }
  std::this_thread::sleep_for(std::min(pause, limit_ - waited));
  return true;
}

}  // namespace tool
