// A style in the form of its file, so that what is printed can be saved and read again.
#pragma once

#include <string>

#include "editing/style_content.h"

namespace tool {

/// One JSON document, indented, in UTF-8. Half a surrogate pair, which JSON cannot hold, becomes
/// U+FFFD.
std::string styleDocument(const StyleContent& content);

}  // namespace tool
