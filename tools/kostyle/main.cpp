#include <fmt/core.h>

#include <exception>
#include <filesystem>
#include <new>
#include <string>
#include <system_error>
#include <vector>

#include "basics/failure.h"
#include "basics/output.h"
#include "basics/paths.h"
#include "basics/text.h"
#include "help/command_line.h"

namespace {

#if defined(_WIN32)
std::vector<std::string> inUtf8(int count, wchar_t** arguments) {
  std::vector<std::string> utf8;
  for (int i = 0; i < count; ++i) {
    if (!tool::isUnicode(arguments[i])) throw tool::WrongUse("an argument is not valid Unicode");
    utf8.push_back(tool::toUtf8(arguments[i]));
  }
  return utf8;
}
#else
std::vector<std::string> inUtf8(int count, char** arguments) { return {arguments, arguments + count}; }
#endif

// What the standard library threw, without its own words.
int failUnexpectedly(const std::exception& error) noexcept {
  try {
    if (const auto* files = dynamic_cast<const std::filesystem::filesystem_error*>(&error)) {
      tool::printError(fmt::format("{}: {}", tool::shownPath(files->path1()), files->code().message()));
    } else if (const auto* system = dynamic_cast<const std::system_error*>(&error)) {
      tool::printError(system->code().message());
    } else if (dynamic_cast<const std::bad_alloc*>(&error)) {
      tool::printError("there is not enough memory");
    } else {
      tool::printError(fmt::format("a fault of kostyle itself, please report it: {}", error.what()));
    }
  } catch (const std::exception&) {
    tool::printError("there is not enough memory");
  }
  return tool::exitRefused;
}

template <typename Char>
int runToExitCode(int count, Char** arguments) noexcept {
  tool::holdStandardStreams();
  try {
    return tool::runCommandLine(inUtf8(count - 1, arguments + 1));
  } catch (const tool::WrongUse& error) {
    tool::printError(error.what());
    return tool::exitWrongUse;
  } catch (const tool::Refused& error) {
    tool::printError(error.what());
    return tool::exitRefused;
  } catch (const std::exception& error) {
    return failUnexpectedly(error);
  }
}

}  // namespace

#if defined(_WIN32)
int wmain(int count, wchar_t** arguments) { return runToExitCode(count, arguments); }
#else
int main(int count, char** arguments) { return runToExitCode(count, arguments); }
#endif
