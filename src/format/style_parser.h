// The first half of reading a style file: from bytes to a document.
#pragma once

#include <cstdio>

#include "format/json.h"

namespace Tesk::KoStyle {

/// Parses an open file, UTF-8, UTF-16 or UTF-32 with or without a byte-order mark, into `document`.
/// The offset of an error counts the bytes of the file up to where it was detected.
rapidjson::ParseResult parseStyleDocument(std::FILE* file, json::Document& document);

}  // namespace Tesk::KoStyle
