// The tool as a user runs it, and what its tests share.
#pragma once

#if !defined(_WIN32)
#include <unistd.h>
#endif

#include <gmock/gmock.h>
#include <rapidjson/document.h>

#include <map>
#include <string>
#include <thread>
#include <vector>

#include "support/document.h"
#include "tool/process.h"

namespace test {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

using Arguments = std::vector<std::string>;

inline Outcome runTool(const Arguments& arguments) { return run(KOSTYLE_TOOL, arguments); }

inline Arguments operator+(Arguments arguments, const Arguments& more) {
  arguments.insert(arguments.end(), more.begin(), more.end());
  return arguments;
}

/// Runs the tool so often at the same time, with the arguments that each number stands for. Everything
/// must succeed; gives what each printed.
template <class ArgumentsOf>
std::vector<std::string> runManyTools(int count, ArgumentsOf argumentsOf) {
  const TemporaryDirectory files;
  const auto file = [&](const char* stream, int i) { return files / (stream + std::to_string(i)); };
  std::vector<int> exitCodes(static_cast<std::size_t>(count), -1);
  std::vector<std::thread> threads;
  for (int i = 0; i < count; ++i)
    threads.emplace_back([&, i] {
      exitCodes[static_cast<std::size_t>(i)] =
          runTo(file("out", i), file("err", i), KOSTYLE_TOOL, argumentsOf(i));
    });
  for (std::thread& thread : threads) thread.join();
  std::vector<std::string> printed;
  for (int i = 0; i < count; ++i) {
    EXPECT_EQ(exitCodes[static_cast<std::size_t>(i)], 0) << readPrinted(file("err", i));
    printed.push_back(readPrinted(file("out", i)));
  }
  return printed;
}

#if !defined(_WIN32)
/// The script runs the tool as "$0" "$@".
inline Outcome runToolInScript(const std::string& script, const Arguments& arguments) {
  return run("/bin/bash", Arguments{"-c", script, KOSTYLE_TOOL} + arguments);
}

/// The exit code when nothing can be printed; stderr goes to a file.
inline int runToolWithoutOutput(const fs::path& err, const Arguments& arguments) {
  return runTo("/dev/full", err, KOSTYLE_TOOL, arguments);
}

/// As on a full disk: the tool may not make a file longer than so many kilobytes. All is in `out`.
inline Outcome runToolOnFullDisk(int kilobytes, const Arguments& arguments) {
  const std::string script = "set -o pipefail; (trap '' XFSZ; ulimit -f " + std::to_string(kilobytes) +
                             "; exec \"$0\" \"$@\" 2>&1) | cat";
  return runToolInScript(script, arguments);
}
#endif

/// Without the privileges by which root writes everything and gives files away.
inline Outcome runUnprivileged(const Arguments& arguments) {
#if !defined(_WIN32)
  if (geteuid() == 0)
    return runToolInScript("setpriv --bounding-set=-dac_override,-chown \"$0\" \"$@\"", arguments);
#endif
  return runTool(arguments);
}

/// A path as an argument.
inline std::string argument(const fs::path& path) { return path.u8string(); }

/// A path as the tool prints it when it was given as argument().
inline std::string printed(fs::path path) {
#if defined(_WIN32)
  path.make_preferred();
#endif
  return path.u8string();
}

inline fs::path exampleStyles() { return fs::u8path(KOSTYLE_EXAMPLE_STYLES); }

/// Every file below a directory with its bytes.
inline std::map<fs::path, std::string> contents(const fs::path& directory) {
  std::map<fs::path, std::string> files;
  for (const auto& entry : fs::recursive_directory_iterator(directory))
    files[entry.path()] = entry.is_regular_file() ? readFile(entry.path()) : "not a file";
  return files;
}

/// Ends the test with a failure when the text is not JSON.
inline rapidjson::Document parseJson(const std::string& text) {
  rapidjson::Document document;
  document.Parse(text.data(), text.size());
  if (document.HasParseError()) throw std::runtime_error("not JSON: " + text);
  return document;
}

inline std::vector<std::string> texts(const rapidjson::Value& array) {
  std::vector<std::string> result;
  for (const auto& element : array.GetArray()) result.emplace_back(element.GetString());
  return result;
}

/// The style of a file, as a listing tells it, without its path.
inline rapidjson::Document styleIn(const fs::path& file) {
  const TemporaryDirectory alone;
  fs::copy_file(file, alone / "style.kostyle");
  rapidjson::Document listing =
      parseJson(runTool({"list", "--json", "--user", argument(alone.path())}).out);
  if (listing["styles"].Empty()) throw std::runtime_error("no style in " + argument(file));
  rapidjson::Document style;
  style.CopyFrom(listing["styles"][0], style.GetAllocator());
  style.RemoveMember("path");
  return style;
}

/// The effects of a chain as "EQ(gain float,mode text)".
inline std::vector<std::string> effects(const rapidjson::Value& chain) {
  std::vector<std::string> result;
  for (const auto& effect : chain.GetArray()) {
    std::string parameters;
    for (const auto& parameter : effect["parameters"].GetArray()) {
      if (!parameters.empty()) parameters += ',';
      parameters += std::string(parameter["name"].GetString()) + ' ' + parameter["type"].GetString();
    }
    result.push_back(std::string(effect["id"].GetString()) + '(' + parameters + ')');
  }
  return result;
}

/// The one parameter of a style's only audio effect that has the name.
inline const rapidjson::Value& parameter(const rapidjson::Document& style, const std::string& name) {
  for (const auto& candidate : style["audioEffects"][0]["parameters"].GetArray())
    if (candidate["name"].GetString() == name) return candidate;
  throw std::runtime_error("no parameter " + name);
}

/// One line on stderr that says why, nothing on stdout.
inline void expectFailure(const Outcome& outcome, int exitCode, const std::string& why) {
  EXPECT_EQ(outcome.exitCode, exitCode);
  EXPECT_EQ(outcome.out, "");
  EXPECT_THAT(outcome.err, StartsWith("kostyle: "));
  EXPECT_THAT(outcome.err, HasSubstr(why));
  EXPECT_EQ(outcome.err.find('\n'), outcome.err.size() - 1);
  for (const char* raw :
       {"required but received", "Could not convert", "not in range", "std::", "disallowed"})
    EXPECT_EQ(outcome.err.find(raw), outcome.err.npos) << outcome.err;
}

inline void expectSuccess(const Outcome& outcome) {
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.err, "");
}

}  // namespace test
