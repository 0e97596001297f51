#include "basics/directories.h"

#include <fmt/core.h>

#include <CLI/CLI.hpp>
#include <string>
#include <system_error>

#include "basics/failure.h"

namespace tool {
namespace {

fs::path directoryOf(const std::string& argument) {
  if (argument.empty()) throw WrongUse("the path of a directory is empty");
  return pathOf(argument);
}

CLI::Option* addDirectory(CLI::App& command, const std::string& name, std::optional<fs::path>& path,
                          const std::string& description) {
  const auto take = [&path](const std::string& argument) { path = directoryOf(argument); };
  return command.add_option_function<std::string>(name, take, description)->type_name("DIR");
}

CLI::Option* addDirectories(CLI::App& command, const std::string& name, std::vector<fs::path>& paths,
                            const std::string& description) {
  const auto take = [&paths](const std::vector<std::string>& arguments) {
    for (const auto& argument : arguments) paths.push_back(directoryOf(argument));
  };
  return command.add_option_function<std::vector<std::string>>(name, take, description)
      ->allow_extra_args(false)
      ->type_name("DIR");
}

void requireDirectory(const fs::path& path) {
  if (isDirectory(path)) return;
  std::error_code error;
  const bool exists = fs::exists(path, error);
  throw WrongUse(fmt::format("{}: {}", shownPath(path),
                             exists  ? "not a directory"
                             : error ? error.message()
                                     : "no such directory"));
}

}  // namespace

void addDirectoryOptions(CLI::App& command, StyleDirectories& directories) {
  auto* system =
      addDirectory(command, "--system", directories.system, "Directory of the system styles");
  auto* user = addDirectory(command, "--user", directories.user, "Directory of the user styles");
  addDirectories(command, "--system-extra", directories.systemExtra,
                 "Further directory of system styles; may be repeated")
      ->needs(system);
  addDirectories(command, "--user-extra", directories.userExtra,
                 "Further directory of user styles; may be repeated")
      ->needs(user);
}

void requireExisting(const StyleDirectories& directories) {
  if (directories.system) requireDirectory(*directories.system);
  if (directories.user) requireDirectory(*directories.user);
  for (const fs::path& path : directories.systemExtra) requireDirectory(path);
  for (const fs::path& path : directories.userExtra) requireDirectory(path);
}

void requireExistingButUser(StyleDirectories directories) {
  std::error_code ignored;
  if (directories.user && fs::exists(*directories.user, ignored)) requireDirectory(*directories.user);
  directories.user.reset();
  requireExisting(directories);
}

}  // namespace tool
