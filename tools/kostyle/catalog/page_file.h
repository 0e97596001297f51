// The file that a page is written to.
#pragma once

#include <string_view>

#include "basics/paths.h"
#include "catalog/collection.h"

namespace tool {

class PageFile {
 public:
  /// Throws WrongUse when no page belongs there, above all not in the place of a style.
  explicit PageFile(const fs::path& path);

  /// The file is whole at any time: a page that was there is replaced at once. Throws WrongUse when it
  /// is a file of the collection under another name, and Refused.
  void write(const Collection& collection, std::string_view page) const;

 private:
  fs::path path_;
};

}  // namespace tool
