// What is wrong with a command line, in the tool's own words.
#pragma once

#include <string>

namespace CLI {
class App;
class ParseError;
}  // namespace CLI

namespace tool {

/// `error` is what the parser threw. Of a name that is not known, the near one is told.
std::string usageMistake(const CLI::App& app, const CLI::ParseError& error);

}  // namespace tool
