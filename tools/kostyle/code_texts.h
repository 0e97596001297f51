// What the library's codes say, in words.
#pragma once

#include <kostyle/kostyle.h>

#include <string>

namespace tool {

/// A value of enum KoStyleCode.
const char* codeText(int code);

/// A value of enum KoStyleParseError.
const char* parseErrorText(int parseError);

/// Why a file was refused: the code, and where in the file.
std::string reason(KoStyleCreationResult* result);

/// A value of enum KoStyleKind.
const char* kindText(int kind);

}  // namespace tool
