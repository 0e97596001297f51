// The values of parameters in the library.
#pragma once

#include <kostyle/kostyle.h>

#include "basics/value.h"

namespace tool {

Value valueOf(KoStyleParameter* parameter);
void setValue(KoStyleParameter* parameter, const Value& value);

}  // namespace tool
