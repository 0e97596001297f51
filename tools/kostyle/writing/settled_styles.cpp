#include "writing/settled_styles.h"

#include <algorithm>
#include <set>
#include <system_error>

#include "basics/failure.h"
#include "basics/files.h"
#include "reading/unopened.h"
#include "writing/folder_lock.h"
#include "writing/system_files.h"
#include "writing/waiting.h"

namespace tool {
namespace {

// Sorted, so that two who lock several never wait for each other.
std::set<fs::path> userFolders(const StyleDirectories& directories) {
  std::set<fs::path> folders;
  std::error_code ignored;
  if (directories.user) folders.insert(fs::canonical(*directories.user, ignored));
  for (const fs::path& path : directories.userExtra) folders.insert(fs::canonical(path, ignored));
  folders.erase(fs::path());
  return folders;
}

std::vector<std::unique_ptr<FolderLock>> locked(const std::set<fs::path>& folders,
                                                std::chrono::milliseconds limit) {
  std::vector<std::unique_ptr<FolderLock>> locks;
  for (const fs::path& folder : folders) {
    try {
      locks.push_back(std::make_unique<FolderLock>(folder, limit));
    } catch (const Refused&) {  // where nobody may lock, no kostyle changes anything
    }
  }
  return locks;
}

bool hasFilesInUse(const Manager& manager) {
  const auto unopened = unopenedFiles(manager.directories(), manager.results());
  return std::any_of(unopened.begin(), unopened.end(),
                     [](const fs::path& path) { return isInUse(openingError(path)); });
}

}  // namespace

std::unique_ptr<Manager> settledStyles(const StyleDirectories& directories,
                                       const std::vector<Text>& ids, std::chrono::milliseconds limit) {
  auto manager = std::make_unique<Manager>(directories);
  if (manager->has(ids)) return manager;
  const auto locks = locked(userFolders(directories), limit);
  Waiting waiting(limit, "waiting for a program that has style files open");
  do {
    manager = std::make_unique<Manager>(directories);
  } while (!manager->has(ids) && hasFilesInUse(*manager) && waiting.again());
  return manager;
}

}  // namespace tool
