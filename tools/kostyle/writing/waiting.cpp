#include "writing/waiting.h"

#include <fmt/core.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <thread>
#include <utility>

#include "basics/output.h"

namespace tool {

using std::chrono::milliseconds;

void addWaitOption(CLI::App& command, std::chrono::seconds& limit) {
  constexpr unsigned day = 86400;
  const auto take = [&limit](const unsigned& seconds) { limit = std::chrono::seconds(seconds); };
  command
      .add_option_function<unsigned>(
          "--wait", take,
          fmt::format("How long to wait for another program that uses a file, {} when not given",
                      usualLimit.count()))
      ->type_name("SECONDS")
      ->check(CLI::Range(0U, day));
}

Waiting::Waiting(milliseconds limit, std::string message)
    : limit_(limit), message_(std::move(message)) {}

bool Waiting::again() {
  constexpr milliseconds pause(10);
  constexpr milliseconds moment(1000);
  const auto waited = std::chrono::duration_cast<milliseconds>(Clock::now() - start_);
  if (waited >= limit_) return false;
  if (waited >= moment && !message_.empty()) {
    notice(message_);
    message_.clear();
  }
  std::this_thread::sleep_for(std::min(pause, limit_ - waited));
  return true;
}

}  // namespace tool
