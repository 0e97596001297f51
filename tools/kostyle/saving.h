// Writing a workspace to a file that can be read again.
#pragma once

#include <kostyle/kostyle.h>

#include <string>

#include "workspace.h"

namespace tool {

/// Writes a new user style, or nothing. Throws Refused.
KoStyleStyle* saveNew(const Workspace& workspace, bool pretty);

/// Writes over a user style, or leaves its file as it was. Throws Refused.
void saveOver(const Workspace& workspace, KoStyleStyle* target, bool pretty);

/// Whether an effect has no parameter: it will not be read from the file.
bool losesEffects(const Workspace& workspace);

/// Prints the identifier and the path of a user style, a tab between them.
void printWritten(KoStyleStyle* style);

}  // namespace tool
