// Identifiers for new styles.
#pragma once

#include "basics/text.h"

namespace tool {

/// One that no style has, as the library makes them: a random UUID.
Text newIdentifier();

}  // namespace tool
