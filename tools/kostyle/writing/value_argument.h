// The values that arguments give parameters and languages.
#pragma once

#include <string>
#include <string_view>

#include "basics/value.h"

namespace tool {

/// A whole decimal number and nothing else; throws WrongUse.
int intOf(std::string_view text);

/// Its form decides the type: a whole number, another decimal number, or a text. Throws WrongUse for
/// what looks like a number and is none.
Value valueByForm(const std::string& text);

/// Of a type: int, float or text; throws WrongUse.
Value valueOfType(const std::string& text, const std::string& type);

/// Of the type of a value; throws Refused when the text is none of it.
Value valueLike(const Value& present, const std::string& text);

}  // namespace tool
