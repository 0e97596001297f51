#include "basics/progress.h"

#include <fmt/core.h>

#include <algorithm>
#include <utility>

#include "basics/common_options.h"
#include "basics/output.h"
#include "basics/terminal.h"

namespace tool {
namespace {

constexpr std::chrono::milliseconds moment(500);
constexpr std::chrono::milliseconds pause(100);
constexpr const char* erasedLine = "\r\x1b[K";

std::string bar(const std::string& verb, std::size_t done, std::size_t all, std::size_t width) {
  const std::string count = fmt::format("{} {} of {}", verb, done, all);
  constexpr std::size_t frame = 4;
  constexpr std::size_t longest = 40;
  if (width < count.size() + frame + 2) return count.substr(0, width - 1);
  const std::size_t length = std::min(longest, width - count.size() - frame);
  const std::size_t filled = all == 0 ? length : length * done / all;
  return fmt::format("{} [{}{}]", count, std::string(filled, '#'), std::string(length - filled, ' '));
}

}  // namespace

Progress::Progress(std::string verb) : verb_(std::move(verb)), next_(Clock::now() + moment) {
  if (!commonOptions().quiet) width_ = progressWidth();
}

Progress::~Progress() { erase(); }

void Progress::erase() {
  if (isShown_) printOnStderr(erasedLine);
  isShown_ = false;
}

void Progress::tell(std::size_t done, std::size_t all) {
  if (!width_ || Clock::now() < next_) return;
  next_ = Clock::now() + pause;
  isShown_ = true;
  printOnStderr(erasedLine + bar(verb_, done, all, *width_));
}

}  // namespace tool
