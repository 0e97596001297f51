// The Windows interface without what it has no need to define here.
#pragma once

#if !defined(NOMINMAX)  // GCC's library defines it
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
