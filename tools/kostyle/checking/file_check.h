// The check of one file.
#pragma once

#include <string>

#include "checking/finding.h"

namespace tool {

/// The content of a file that could be read. Findings stand in the order of the document.
FileReport checkContent(std::string file, std::string bytes);

/// A file that could not be read.
FileReport unreadable(std::string file, const std::string& why);

}  // namespace tool
