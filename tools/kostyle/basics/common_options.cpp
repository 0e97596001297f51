#include "basics/common_options.h"

#include <fmt/core.h>

#include <CLI/CLI.hpp>
#include <charconv>
#include <string>
#include <system_error>

#include "basics/failure.h"
#include "basics/size_limit.h"
#include "basics/text.h"

namespace tool {
namespace {

CommonOptions& given() {
  static CommonOptions options;
  return options;
}

[[noreturn]] void refuseSize(const std::string& argument) {
  throw WrongUse(
      fmt::format("--max-size: {} is no size such as 500k, 64MB or 1GB", inQuotes(argument)));
}

std::size_t sizeOf(const std::string& argument) {
  std::string digits = argument;
  try {
    if (!CLI::AsSizeValue(false)(digits).empty()) refuseSize(argument);
  } catch (const CLI::Error&) {
    refuseSize(argument);
  }
  std::size_t size = 0;
  const char* const end = digits.data() + digits.size();
  const auto parsed = std::from_chars(digits.data(), end, size);
  if (parsed.ec != std::errc() || parsed.ptr != end) refuseSize(argument);
  return size;
}

}  // namespace

const CommonOptions& commonOptions() { return given(); }

void addCommonOptions(CLI::App& command) {
  command.add_flag("-q,--quiet", given().quiet, "Print errors alone on stderr: no notice, no progress")
      ->disable_flag_override();
  const auto take = [](const std::string& argument) { given().maxSize = sizeOf(argument); };
  command
      .add_option_function<std::string>("--max-size", take,
                                        "Read no larger file than SIZE, such as 500k or 1GB; 64MB "
                                        "when not given")
      ->type_name("SIZE");
}

std::string tooLarge() { return largerThan(given().maxSize); }

}  // namespace tool
