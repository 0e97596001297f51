// A style file with changes: what they do not name stays byte for byte.
#pragma once

#include <string>

#include "editing/style_content.h"

namespace tool {

/// The file's bytes with the change, which fits what the library reads from them. Of members that
/// repeat, those that count for the library are changed. Throws Refused, with the file's name in front,
/// where something else stands in the place of an object or a list.
std::string editedDocument(const std::string& file, const std::string& bytes,
                           const StyleChange& change);

}  // namespace tool
