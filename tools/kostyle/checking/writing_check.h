// What changes or is lost when the library writes the style of a document again.
#pragma once

#include "checking/reading_check.h"

namespace tool {

void checkWriting(Reporter& reporter, const Taken& taken);

}  // namespace tool
