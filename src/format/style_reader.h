// StyleReader: from style files to styles, or to the reasons for refusing them. Its memory serves one
// file after the other.
#pragma once

#include <cstdio>

#include "format/document_reader.h"
#include "format/style_parser.h"
#include "format/style_read_outcome.h"
#include "model/style_sequence.h"

namespace Tesk::KoStyle {

class StyleReader {
 public:
  /// Reads an open file into a new style of the given kind, which is not in the list `styles` yet,
  /// filling a cleared outcome. No style when the file is refused, with the first failing check in
  /// `outcome`. Does not close the file.
  StyleSequence::NodeHandle read(StyleKind kind, StyleOwner* owner, StyleSequence& styles,
                                 TextView path, std::FILE* file, StyleReadOutcome& outcome);

 private:
  StyleParser parser_;
  DocumentReader<Unobserved> documents_;
};

}  // namespace Tesk::KoStyle
