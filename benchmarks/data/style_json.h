// A style's content as a document of RapidJSON, built and written as its user's guide shows.
#pragma once

#include <rapidjson/document.h>

#include <cstdio>

#include "data/style_content.h"

namespace bench {

using JsonEncoding = rapidjson::UTF16<KoStyleChar>;
using JsonDocument = rapidjson::GenericDocument<JsonEncoding>;

enum class Vendor { written, leftOut };  // the library does not write it

/// The document refers to the texts of `content`.
JsonDocument buildDocument(const StyleContent& content, Vendor vendor);

void writeIndented(const JsonDocument& document, std::FILE* file);
void writeCompact(const JsonDocument& document, std::FILE* file);
/// Indented UTF-16LE with a byte-order mark.
void writeUtf16(const JsonDocument& document, std::FILE* file);

}  // namespace bench
