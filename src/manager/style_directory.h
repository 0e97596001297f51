// Reading the style directories of a manager into one of its sets.
#pragma once

#include <vector>

#include "model/style_base.h"

namespace Tesk::KoStyle {

/// Empties `styles`, then loads every style file directly inside the directory and each of the further
/// directories. Gives KOSTYLE_OK, or KOSTYLE_ERROR_ARGUMENT_MISSING or KOSTYLE_ERROR_DIRECTORY_MISSING
/// when the directory is null or does not exist.
int readStyleDirectory(StyleManager& manager, const Char* directory,
                       const std::vector<Text>& furtherDirectories, const StyleKind& kind,
                       StyleSequence& styles);

/// Reads one style file into `styles` and the manager's creation results of that kind. False when the
/// file is passed over: it has another extension or cannot be opened.
bool loadStyleFile(StyleManager& manager, const Text& path, const StyleKind& kind,
                   StyleSequence& styles);

}  // namespace Tesk::KoStyle
