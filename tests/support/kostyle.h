// The interface: as hosts have it, or in a program that is linked with the library's own code, as that
// code has it.
#pragma once

#if defined(KOSTYLE_BUILD)
#include "api/exports.h"
#else
#include <kostyle/kostyle.h>
#endif
