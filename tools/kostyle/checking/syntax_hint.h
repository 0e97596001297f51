// What was probably meant where a file is no JSON.
#pragma once

#include "document/json_document.h"

namespace tool {

/// Null when there is nothing to say beyond the error. The document has an error.
const char* syntaxHint(const JsonDocument& document);

}  // namespace tool
