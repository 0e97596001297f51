// A style as a tree of lines.
#pragma once

#include <kostyle/kostyle.h>

#include <string>

namespace tool {

/// Where a style that is shown comes from.
struct StyleSource {
  std::string kind;  // "system", "user", or "file" for a file shown by itself
  std::string path;
};

StyleSource sourceOf(KoStyleStyle* style);

std::string styleTree(KoStyleStyle* style, const StyleSource& source);

}  // namespace tool
