// Which members of a document the library takes effects and parameters from.
#pragma once

#include <vector>

#include "document/json_document.h"

namespace tool {

/// A text as a host sees it: up to the first U+0000.
TextView asSeen(TextView text);

/// Members of a chain with this identifier that can be an effect; the first one is.
std::vector<const JsonNode*> effectsCalled(const JsonDocument& document, const JsonNode& chain,
                                           TextView id);

/// Members of an effect's parameters with this name that can be a parameter; the first one is.
std::vector<const JsonNode*> parametersCalled(const JsonDocument& document, const JsonNode& parameters,
                                              TextView name);

/// The first member with this name, whatever its value; null when there is none.
const JsonNode* memberCalled(const JsonDocument& document, const JsonNode& parameters, TextView name);

}  // namespace tool
