// The user's editor.
#pragma once

#include "basics/paths.h"

namespace tool {

/// Throws Refused when neither VISUAL nor EDITOR names one.
void requireEditor();

/// Lets the user edit a file and waits for the end. Throws Refused unless the editor ends well.
void runEditor(const fs::path& file);

}  // namespace tool
