// New style files.
#pragma once

#include <chrono>
#include <functional>
#include <string>

#include "basics/paths.h"
#include "basics/text.h"

namespace tool {

struct NewFile {
  const Text& id;
  const std::string& bytes;
};

/// Makes the file of a new user style, whole from its first moment on, and prints its identifier and
/// path. The directory is made when it is missing. Leaves nothing when it throws. `verify` is given the
/// file's content as it can be read, and throws when that is not to be. `limit` is how long another
/// kostyle in the directory is waited for.
void createStyleFile(const fs::path& directory, const NewFile& file,
                     const std::function<void(const std::string&)>& verify,
                     std::chrono::milliseconds limit);

}  // namespace tool
