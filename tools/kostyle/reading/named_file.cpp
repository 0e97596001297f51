#include "reading/named_file.h"

#include <fmt/core.h>

#include <system_error>

#include "basics/failure.h"
#include "basics/files.h"
#include "reading/unknown_identifier.h"

namespace tool {

bool namesFile(const std::string& argument, const StyleDirectories& directories) {
  if (argument.empty()) throw WrongUse("the path or identifier of a style is empty");
  const fs::path path = pathOf(argument);
  const std::string why = whyNoRegularFile(path);
  if (why.empty()) return true;
  std::error_code ignored;
  const bool isNothing = !fs::exists(fs::symlink_status(path, ignored));
  const bool isFolder = isDirectory(path);
  if ((isNothing || isFolder) && (directories.system || directories.user)) return false;
  if (isNothing)
    throw WrongUse(fmt::format("{}: {}; an identifier needs --system or --user", argument, why));
  throw Refused(
      fmt::format("{}: {}{}", argument, why, isFolder ? "; \"kostyle list\" lists its styles" : ""));
}

KoStyleStyle* namedStyle(const std::string& argument, const Manager& manager) {
  const Text id = fromUtf8(argument);
  if (KoStyleStyle* style = manager.find(id)) return style;
  throw Refused(whyUnknown(manager, id, "no such file, and no style has this identifier"));
}

NamedFile namedFile(const std::string& argument, const StyleDirectories& directories) {
  if (namesFile(argument, directories)) return {pathOf(argument)};
  const Manager manager(directories);
  KoStyleStyle* style = namedStyle(argument, manager);
  return {pathOf(TextView(Style_path(style))), Style_type(style) == KOSTYLE_KIND_SYSTEM};
}

}  // namespace tool
