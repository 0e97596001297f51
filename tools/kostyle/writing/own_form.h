// A style file as the library writes it.
#pragma once

#include <string>
#include <vector>

#include "basics/paths.h"
#include "editing/style_content.h"

namespace tool {

/// What is to be put in a file.
struct NewContent {
  std::string bytes;
  StyleContent style;             // what the library is to read from it
  std::vector<std::string> lost;  // what it lacks of the document, in words
};

/// What the library makes of a document whose style is given a content, under its identifier. The
/// encoding is no loss. `path` is for messages. Throws Refused when it cannot be read or written.
NewContent ownForm(const fs::path& path, const std::string& document, const StyleContent& style,
                   bool pretty);

/// Throws Refused unless the library, which has the last word about what is in a file, reads that style
/// from the bytes. Effects of `added` may stand elsewhere in their chains.
void requireStyle(const fs::path& path, const std::string& bytes, const StyleContent& style,
                  const StyleChange& added = {});

}  // namespace tool
