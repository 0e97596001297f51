#include "reading/unopened.h"

#include <fmt/core.h>

#include <algorithm>
#include <set>
#include <string_view>
#include <system_error>

#include "basics/files.h"
#include "basics/text.h"

namespace tool {
namespace {

bool isStyleFile(const fs::directory_entry& entry) {
  constexpr std::string_view extension = ".kostyle";
  const std::string name = shownPath(entry.path().filename());
  if (name.size() < extension.size()) return false;
  if (name.compare(name.size() - extension.size(), extension.size(), extension) != 0) return false;
  std::error_code ignored;
  return !entry.is_directory(ignored);
}

// The style files of a directory; the directory itself when it cannot be read to its end.
void addStyleFiles(std::set<fs::path>& files, const fs::path& directory) {
  std::error_code error;
  fs::directory_iterator entries(directory, error);
  while (!error && entries != fs::directory_iterator()) {
    if (isStyleFile(*entries)) files.insert(entries->path().lexically_normal());
    entries.increment(error);
  }
  if (error) files.insert(directory);
}

}  // namespace

std::set<fs::path> styleFiles(const StyleDirectories& directories) {
  std::vector<fs::path> all = directories.systemExtra;
  all.insert(all.end(), directories.userExtra.begin(), directories.userExtra.end());
  if (directories.system) all.push_back(*directories.system);
  if (directories.user) all.push_back(*directories.user);
  std::set<fs::path> files;
  for (const fs::path& directory : all) addStyleFiles(files, pathOf(libraryPath(directory)));
  return files;
}

std::vector<fs::path> unopenedFiles(const StyleDirectories& directories,
                                    const std::vector<KoStyleCreationResult*>& results) {
  std::set<fs::path> files = styleFiles(directories);
  for (KoStyleCreationResult* result : results)
    files.erase(pathOf(TextView(StyleCreationResult_filePath(result))).lexically_normal());
  return {files.begin(), files.end()};
}

std::string whyUnopened(const fs::path& path) {
  // A pipe would be waited for.
  if (!isDirectory(path))
    if (const std::string why = whyNoRegularFile(path); !why.empty())
      return fmt::format("{}: {}", shownPath(path), why);
  const std::error_code error = openingError(path);
  return fmt::format("{}: cannot be opened{}{}", shownPath(path), error ? ": " : "",
                     error ? error.message() : "");
}

}  // namespace tool
