#include "faults/faulty_platform.h"

#include <cstdio>
#include <string>

namespace Tesk::KoStyle::platform {

// The real functions, as CMakeLists.txt names them.
bool realMakeDirectory(const NativePath& path) noexcept;
bool realDeleteFile(const NativePath& path) noexcept;
bool realRenameFile(const NativePath& from, const NativePath& to) noexcept;
File realOpenForReading(const NativePath& path) noexcept;
File realOpenForWriting(const NativePath& path) noexcept;
Text realMakeUuid();

}  // namespace Tesk::KoStyle::platform

namespace {

test::Faults* current = nullptr;

}  // namespace

namespace test {

Faults::Faults() { current = this; }
Faults::~Faults() { current = nullptr; }

}  // namespace test

namespace Tesk::KoStyle::platform {

bool makeDirectory(const NativePath& path) noexcept {
  return !(current && current->refuseMakingDirectories) && realMakeDirectory(path);
}

bool deleteFile(const NativePath& path) noexcept {
  if (current && ++current->deletions == current->refusedDeletion) return false;
  return realDeleteFile(path);
}

bool renameFile(const NativePath& from, const NativePath& to) noexcept {
  return !(current && current->refuseRenaming) && realRenameFile(from, to);
}

File openForReading(const NativePath& path) noexcept {
  if (!current) return realOpenForReading(path);
  const int number = ++current->readings;
  if (number == current->vanishingFile) realDeleteFile(path);
  if (number == current->rewrittenFile)
    std::fputs(current->rewrittenContent.c_str(), realOpenForWriting(path).get());
  return realOpenForReading(path);
}

File openForWriting(const NativePath& path) noexcept {
  if (!current) return realOpenForWriting(path);
  const int number = ++current->writings;
  current->beforeWriting(number);
  if (current->refuseOpening) return nullptr;
  File file = realOpenForWriting(path);
  const bool isFull = current->firstUnwritable > 0 && number >= current->firstUnwritable;
  if (!current->refuseWriting && !isFull) return file;
  // The file exists now, empty; a stream that only reads refuses every write to it.
  file.reset();
  return realOpenForReading(path);
}

Text makeUuid() {
  if (!current || current->nextUuids.empty()) return realMakeUuid();
  Text uuid = current->nextUuids.front();
  current->nextUuids.erase(current->nextUuids.begin());
  return uuid;
}

}  // namespace Tesk::KoStyle::platform
