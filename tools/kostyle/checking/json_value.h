// A document as the library's reader takes it.
#pragma once

#include "document/json_document.h"
#include "format/json.h"

namespace tool {

/// The value of a node with all that is in it. Texts stay in the document, which must live as long.
Tesk::KoStyle::json::Value jsonValueOf(const JsonDocument& document, const JsonNode& node,
                                       Tesk::KoStyle::json::Pool& pool);

}  // namespace tool
