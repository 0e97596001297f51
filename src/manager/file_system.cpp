#include "manager/file_system.h"

#include <utility>

#include "platform/platform.h"

namespace Tesk::KoStyle {

using platform::DirectoryEntry;
using platform::EntryKind;

namespace {

platform::NativePath nativeLongPath(const Char* path) { return platform::nativePath(toLongPath(path)); }

}  // namespace

Text toLongPath(const Char* path) { return path ? platform::longPathForm(path) : Text(); }

bool pathExists(const Char* path) {
  return path && platform::entryKind(nativeLongPath(path)) != EntryKind::none;
}

bool pathExists(const Text& path) { return pathExists(path.c_str()); }

bool isDirectory(const Char* path) {
  return path && platform::entryKind(nativeLongPath(path)) == EntryKind::directory;
}

bool createDirectories(const Char* path) {
  if (!path) return false;
  const auto make = [](TextView level) {
    return platform::makeDirectory(platform::nativePath(platform::longPathForm(level)));
  };
  // Up to the first level that can be made, then down again; in a loop, for a path may have more levels
  // than a stack has room for.
  const TextView whole = path;
  TextView level = whole;
  while (!make(level)) {
    const std::size_t lastSeparator = level.rfind(platform::separator);
    if (lastSeparator == TextView::npos) return false;
    level = level.substr(0, lastSeparator);
  }
  while (level.size() < whole.size()) {
    level = whole.substr(0, whole.find(platform::separator, level.size() + 1));
    if (!make(level)) return false;
  }
  return true;
}

bool ensureDirectory(const Char* path) { return isDirectory(path) || createDirectories(path); }

bool removePath(const Char* path, const bool& recursive) {
  if (!path) return false;
  return recursive && isDirectory(path) ? removeDirectoryTree(path)
                                        : platform::removeEntry(nativeLongPath(path));
}

bool removeDirectoryTree(const Char* path) {
  if (!path) return false;
  const platform::NativePath directory = nativeLongPath(path);
  bool complete = true;
  const bool enumerated = platform::enumerateDirectory(directory, [&](DirectoryEntry&& entry) {
    const Text entryPath = joinPath(path, entry.name);
    if (entry.isDirectory && !entry.isLink) {
      // Inverted on purpose: a subdirectory that is gone ends the call, and the caller calls again.
      complete = !removeDirectoryTree(entryPath.c_str());
    } else {
      complete = platform::deleteFile(nativeLongPath(entryPath.c_str()));
    }
    return complete;
  });
  return enumerated && complete && platform::removeDirectory(directory);
}

std::vector<Text> listFiles(const Char* directory, const std::size_t& depthLimit) {
  std::vector<Text> files;
  if (directory) enumerateFiles(directory, depthLimit, 0, files);
  return files;
}

void enumerateFiles(const Text& directory, const std::size_t& depthLimit, const std::size_t& depth,
                    std::vector<Text>& files) {
  platform::enumerateDirectory(nativeLongPath(directory.c_str()), [&](DirectoryEntry&& entry) {
    Text entryPath = joinPath(directory, entry.name);
    if (entry.isRegularFile) {
      files.push_back(std::move(entryPath));
    } else if (entry.isDirectory && (depthLimit == 0 || depth + 1 < depthLimit)) {
      enumerateFiles(entryPath, depthLimit, depth + 1, files);
    }
    return true;
  });
}

Text joinPath(TextView directory, TextView name) {
  Text path;
  path.reserve(directory.size() + 1 + name.size());
  return path.append(directory).append(1, platform::separator).append(name);
}

}  // namespace Tesk::KoStyle
