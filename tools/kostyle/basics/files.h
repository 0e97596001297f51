// Whole files.
#pragma once

#include <string>
#include <string_view>

#include "basics/paths.h"

namespace tool {

/// Throws Refused with the system's reason.
std::string readBytes(const fs::path& path);

/// Makes the file or empties it first. Throws Refused with the system's reason; the message names
/// `meant`.
void writeBytes(const fs::path& path, std::string_view bytes, const fs::path& meant);

}  // namespace tool
