// A style manager and what was read into it.
#pragma once

#include <kostyle/kostyle.h>

#include <vector>

#include "basics/directories.h"
#include "basics/text.h"

namespace tool {

class Manager {
 public:
  /// Reads the sets whose directory is given, at least one of the two, system styles first. A user
  /// directory that is missing is created. Throws Refused, also when a file is larger than --max-size,
  /// which the library does not know.
  explicit Manager(const StyleDirectories& directories);
  Manager(const Manager&) = delete;
  Manager& operator=(const Manager&) = delete;
  ~Manager() { StyleManager_destroy(handle_); }

  KoStyleManager* handle() const { return handle_; }

  /// System styles, then user styles, each in reading order.
  std::vector<KoStyleStyle*> styles() const;

  /// The records of all files that were read, in the same order.
  std::vector<KoStyleCreationResult*> results() const;

  const StyleDirectories& directories() const { return directories_; }

  /// Whether all identifiers are those of styles.
  bool has(const std::vector<Text>& ids) const;

  /// The style with an identifier, or nullptr.
  KoStyleStyle* find(TextView id) const;

  /// The user style with an identifier: only these may be changed. Throws Refused when there is none,
  /// and says which file stands behind that.
  KoStyleStyle* userStyle(TextView id) const;

 private:
  void read();

  StyleDirectories directories_;
  KoStyleManager* handle_;
};

}  // namespace tool
