// How many columns of a terminal a text takes. Control characters are to be made printable before.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tool {

/// Wide East Asian characters take two columns, combining marks none.
std::size_t widthOf(std::string_view utf8);

/// The text, or its beginning and an ellipsis when it takes more columns. `width` is not 0.
std::string cutTo(std::size_t width, std::string_view utf8);

}  // namespace tool
