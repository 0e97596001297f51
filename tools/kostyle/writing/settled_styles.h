// Styles that are read while nobody replaces their files.
#pragma once

#include <chrono>
#include <memory>
#include <vector>

#include "basics/directories.h"
#include "basics/text.h"
#include "reading/manager.h"

namespace tool {

/// Reads the directories. A file that another program is just replacing can be missed: when one of the
/// identifiers is not found, they are read again while no kostyle changes files of the user directories
/// and, up to the limit, until files that are in use can be opened.
std::unique_ptr<Manager> settledStyles(const StyleDirectories& directories,
                                       const std::vector<Text>& ids, std::chrono::milliseconds limit);

}  // namespace tool
