// StyleReader: from style files to styles, or to the reasons for refusing them. Its memory serves one
// file after the other.
#pragma once

#include <cstdio>
#include <memory>

#include "format/style_parser.h"
#include "format/style_read_outcome.h"
#include "model/style.h"
#include "model/style_builder.h"

namespace Tesk::KoStyle {

class StyleReader {
 public:
  /// Reads an open file into a new style of the given kind, filling a cleared outcome. Null when the
  /// file is refused, with the first failing check in `outcome`. Does not close the file.
  std::unique_ptr<Style> read(StyleKind kind, StyleOwner* owner, std::FILE* file,
                              StyleReadOutcome& outcome);

 private:
  bool readDocument(Style& style, StyleReadOutcome& outcome);
  void readChain(EffectKind kind);
  void readParameters(const json::Value& source);
  void readFilter();

  StyleParser parser_;
  StyleBuilder builder_;
};

}  // namespace Tesk::KoStyle
