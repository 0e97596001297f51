// Style files and directories that the library passes over in silence: they cannot be opened, or are no
// files to be read.
#pragma once

#include <kostyle/kostyle.h>

#include <set>
#include <string>
#include <vector>

#include "basics/directories.h"

namespace tool {

/// All style files of the directories; a directory itself when it cannot be read to its end.
std::set<fs::path> styleFiles(const StyleDirectories& directories);

/// The files of the directories that have no record among `results`, all that were made by reading
/// them; and the directories that cannot be listed.
std::vector<fs::path> unopenedFiles(const StyleDirectories& directories,
                                    const std::vector<KoStyleCreationResult*>& results);

/// "FILE: " and the reason: the system's, or that the file is no regular one.
std::string whyUnopened(const fs::path& path);

}  // namespace tool
