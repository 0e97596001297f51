// Reading the directories of a style set.
#pragma once

#include <functional>
#include <memory>

#include "format/style_reader.h"
#include "manager/style_set.h"

namespace Tesk::KoStyle {

/// What reading a set asks of its manager.
struct ReadingManager {
  StyleOwner* owner;
  /// Whether a stored style of the manager has this identifier.
  std::function<bool(const Char* id)> isIdInUse;
};

/// Empties the set, then loads every style file directly inside its directory and each of its further
/// directories. Gives KOSTYLE_OK, or KOSTYLE_ERROR_DIRECTORY_MISSING when the directory does not exist.
int readStyleDirectory(StyleSet& set, const ReadingManager& manager);

/// What reads the files of one set, one after the other.
class StyleLoader {
 public:
  StyleLoader(StyleSet& set, const ReadingManager& manager);

  /// Reads one style file into the set. False when the file is passed over: it has another extension or
  /// cannot be opened.
  bool loadStyleFile(const Text& path);

 private:
  StyleSet& set_;
  const ReadingManager& manager_;
  StyleReader reader_;
  std::unique_ptr<char[]> fileBuffer_;
};

}  // namespace Tesk::KoStyle
