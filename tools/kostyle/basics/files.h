// Whole files.
#pragma once

#include <string>
#include <string_view>
#include <system_error>

#include "basics/paths.h"

namespace tool {

/// Throws Refused, with the reason, unless a regular file stands at a path or where its link leads.
void requireRegularFile(const fs::path& path);

/// Throws Refused with the reason: the system's, or that the file is no regular one or larger than
/// --max-size.
std::string readBytes(const fs::path& path);

/// The same for the standard input, a pipe as a rule.
std::string readStandardInput();

/// Makes a copy for the library to read. Throws Refused with the system's reason; the message names the
/// original.
void writeCopy(const fs::path& copy, std::string_view bytes, const fs::path& original);

/// Why a file or a directory cannot be opened for reading; none when it can.
std::error_code openingError(const fs::path& path);

/// Why no more can be written to a file, as on a full disk; none when it can. The file is spoilt.
std::error_code writingError(const fs::path& file);

}  // namespace tool
