// The styles of some directories, beside what the check says about their files.
#pragma once

#include <kostyle/kostyle.h>

#include <string>
#include <vector>

#include "checking/check_run.h"
#include "reading/manager.h"

namespace tool {

/// A style file of the collection.
struct CollectedFile {
  FileReport report;
  std::size_t directory = 0;      // which of the named ones it lies in
  KoStyleStyle* style = nullptr;  // null when the library refuses the file
};

class Collection {
 public:
  /// Reads the directories in their order, as one collection. Throws WrongUse when one of them does not
  /// exist or is named twice, and Refused.
  explicit Collection(const std::vector<std::string>& directories);

  const std::vector<std::string>& directories() const { return directories_; }
  const std::vector<CollectedFile>& files() const { return files_; }
  std::size_t refused() const;

 private:
  std::vector<std::string> directories_;
  Manager manager_;
  std::vector<CollectedFile> files_;
};

}  // namespace tool
