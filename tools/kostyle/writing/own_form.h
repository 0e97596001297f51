// A style file as the library writes it.
#pragma once

#include <string>

#include "basics/paths.h"
#include "editing/style_content.h"

namespace tool {

/// What the library makes of a style file when it gives its style a new content. `path` is for
/// messages. Throws Refused when it cannot be read or written.
std::string ownForm(const fs::path& path, const std::string& bytes, const StyleContent& after,
                    bool pretty);

/// What the library reads from a file that it wrote with a content.
StyleContent readBackOf(StyleContent content);

}  // namespace tool
