// The platform with faults on demand. The test program links the real platform under other names for
// the functions below, and these in their place.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/platform.h"

namespace test {

using Tesk::KoStyle::Text;

/// What goes wrong while the object lives; nothing by default.
class Faults {
 public:
  Faults();
  Faults(const Faults&) = delete;
  Faults& operator=(const Faults&) = delete;
  ~Faults();

  bool refuseMakingDirectories = false;
  bool refuseOpening = false;
  bool refuseRenaming = false;
  /// Every write to an opened file fails, as on a full disk.
  bool refuseWriting = false;
  /// The same for files that are opened to be written from this one on, counted from 1; 0 for none.
  int firstUnwritable = 0;
  /// The deletion that is refused, counted from 1; 0 for none.
  int refusedDeletion = 0;
  /// The file that is deleted by somebody else just before it is opened to be read, counted from 1; 0
  /// for none.
  int vanishingFile = 0;
  /// The file that somebody else writes just before it is opened to be read, counted from 1, and its
  /// new content; 0 for none.
  int rewrittenFile = 0;
  std::string rewrittenContent;
  /// Done just before a file is opened to be written, with its number, counted from 1.
  std::function<void(int)> beforeWriting = [](int) {};
  /// The UUIDs that are made before random ones.
  std::vector<Text> nextUuids;

  int deletions = 0;
  int readings = 0;
  int writings = 0;
};

}  // namespace test
