// Texts one behind the other in a block of memory, each with U+0000 behind it.
#pragma once

#include <cstddef>

#include "platform/text.h"

namespace Tesk::KoStyle {

/// The units that a text takes in a block.
inline std::size_t unitsOf(TextView text) noexcept { return text.size() + 1; }

/// Copies a text to `end` and moves `end` behind it. Gives the copy.
inline TextView appendText(Char*& end, TextView text) noexcept {
  Char* const copy = end;
  text.copy(copy, text.size());
  copy[text.size()] = 0;
  end += unitsOf(text);
  return {copy, text.size()};
}

}  // namespace Tesk::KoStyle
