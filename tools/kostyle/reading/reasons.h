// Why files were refused, and what kinds are, in words.
#pragma once

#include <kostyle/kostyle.h>

#include <string>

namespace tool {

/// Why a file was refused: the code, and where in the file.
std::string reason(KoStyleCreationResult* result);

/// A value of enum KoStyleKind.
const char* kindText(int kind);

}  // namespace tool
