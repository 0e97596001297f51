// Text of the library: UTF-16, in the platform's own 16-bit character type.
#pragma once

#include <kostyle/types.h>

#include <string>
#include <string_view>

namespace Tesk::KoStyle {

using Char = KoStyleChar;
using Text = std::basic_string<Char>;
using TextView = std::basic_string_view<Char>;

}  // namespace Tesk::KoStyle
