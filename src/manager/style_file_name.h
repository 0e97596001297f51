// What style files are called.
#pragma once

#include "platform/text.h"

namespace Tesk::KoStyle {

inline constexpr TextView styleFileExtension = KOSTYLE_TEXT(".kostyle");

}  // namespace Tesk::KoStyle
