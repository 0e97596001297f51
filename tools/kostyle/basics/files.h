// Whole files.
#pragma once

#include <string>
#include <string_view>

#include "basics/paths.h"

namespace tool {

/// Throws Refused with the system's reason.
std::string readBytes(const fs::path& path);

/// Makes a copy for the library to read. Throws Refused with the system's reason; the message names the
/// original.
void writeCopy(const fs::path& copy, std::string_view bytes, const fs::path& original);

}  // namespace tool
