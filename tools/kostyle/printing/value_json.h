// The value of a parameter as JSON.
#pragma once

#include "basics/value.h"
#include "printing/json_writing.h"

namespace tool {

/// An infinite float, which JSON does not have, as the text "inf" or "-inf".
void writeValue(JsonWriter& writer, const Value& value);

}  // namespace tool
