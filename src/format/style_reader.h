// The second half of reading a style file: from a document to a style, or to the reason for refusing
// it.
#pragma once

#include <cstdio>
#include <memory>

#include "format/style_read_outcome.h"
#include "model/style.h"

namespace Tesk::KoStyle {

/// Reads an open file into a new style of the given kind, filling a cleared outcome. Null when the
/// file is refused, with the first failing check in `outcome`. Does not close the file.
std::unique_ptr<Style> readStyleFile(StyleKind kind, StyleManager* manager, std::FILE* file,
                                     StyleReadOutcome& outcome);

}  // namespace Tesk::KoStyle
