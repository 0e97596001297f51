// Paths of tests in the form that the platform takes.
#pragma once

#include "platform/platform.h"
#include "support/temporary_directory.h"

namespace Tesk::KoStyle {

inline platform::NativePath nativeLongPath(const test::fs::path& path) {
  return platform::nativePath(platform::longPathForm(test::pathText(path)));
}

}  // namespace Tesk::KoStyle
