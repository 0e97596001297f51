#include "reading/named_file.h"

#include <fmt/core.h>

#include <system_error>

#include "basics/failure.h"
#include "basics/files.h"
#include "reading/manager.h"

namespace tool {

NamedFile namedFile(const std::string& argument, const StyleDirectories& directories) {
  const fs::path path = pathOf(argument);
  std::error_code ignored;
  const fs::file_status status = fs::status(path, ignored);
  if (fs::is_regular_file(status)) return {path};
  if (directories.system || directories.user) {
    const Manager manager(directories);
    KoStyleStyle* style = manager.style(fromUtf8(argument));
    return {pathOf(TextView(Style_path(style))), Style_type(style) == KOSTYLE_KIND_SYSTEM};
  }
  if (!fs::is_symlink(fs::symlink_status(path, ignored)) && status.type() == fs::file_type::not_found)
    throw WrongUse(fmt::format("{}: no such file; an identifier needs --system or --user", argument));
  requireRegularFile(path);
  return {path};
}

}  // namespace tool
