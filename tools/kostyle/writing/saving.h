// Writing a mutable style to a file that can be read again.
#pragma once

#include <kostyle/kostyle.h>

#include "basics/paths.h"
#include "writing/mutable_style.h"

namespace tool {

/// What was written but is not read from the file.
struct Losses {
  bool emptyEffects;
  bool sameNames;  // effects or parameters whose names readers take for one
};

/// A new style as the library writes it.
struct SavedStyle {
  Text id;
  std::string bytes;
  Losses losses;
};

/// Gives a content an identifier of its own. Throws Refused when the library does not take it, or does
/// not read it again.
SavedStyle savedStyle(const StyleContent& content, bool pretty);

/// Throws Refused when the style has effects, but none with a parameter: its file could not be read
/// again.
void requireParameter(const StyleContent& content);

/// Throws Refused when a file could not hold the mutable style.
void requireWritable(KoStyleStyle* mutableStyle);

/// Prints identifier and path, a tab between them. Throws Refused.
void printWritten(TextView id, const fs::path& path);

}  // namespace tool
