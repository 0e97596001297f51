// StyleSet: the stored styles of one kind: where they are read from, the styles, and the creation
// results of the last read.
#pragma once

#include <vector>

#include "manager/style_creation_result.h"
#include "model/style_sequence.h"

namespace Tesk::KoStyle {

struct StyleSet {
  StyleKind kind;
  Text directory;
  std::vector<Text> furtherDirectories;
  StyleSequence styles;
  CreationResults creationResults;

  /// The creation result at an index; null at or past the end.
  IStyleCreationResult* creationResult(std::size_t index) const {
    return index < creationResults.size() ? const_cast<StyleCreationResult*>(&creationResults[index])
                                          : nullptr;
  }
};

}  // namespace Tesk::KoStyle
