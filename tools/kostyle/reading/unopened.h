// Style files and directories that the library passes over in silence because they cannot be opened.
#pragma once

#include <kostyle/kostyle.h>

#include <vector>

#include "basics/directories.h"

namespace tool {

/// The files of the directories that have no record among `results`, all that were made by reading
/// them; and the directories that cannot be listed.
std::vector<fs::path> unopenedFiles(const StyleDirectories& directories,
                                    const std::vector<KoStyleCreationResult*>& results);

}  // namespace tool
