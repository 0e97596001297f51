// Reading the directories of a style set.
#pragma once

#include "manager/style_set.h"

namespace Tesk::KoStyle {

class StyleManager;

/// Empties a set of the manager, then loads every style file directly inside its directory and each of
/// its further directories. Gives KOSTYLE_OK, or KOSTYLE_ERROR_DIRECTORY_MISSING when the directory
/// does not exist.
int readStyleDirectory(StyleSet& set, StyleManager& manager);

}  // namespace Tesk::KoStyle
