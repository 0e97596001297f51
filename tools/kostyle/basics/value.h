// The typed value of a parameter.
#pragma once

#include <string>
#include <variant>

#include "basics/text.h"

namespace tool {

using Value = std::variant<int, float, Text>;

/// The same type and value; 0.0 and -0.0 are two.
bool areSame(const Value& a, const Value& b);

/// "int", "float" or "text".
const char* typeText(const Value& value);

/// The shortest form that reads back as the same float, always recognisable as one: 0.1, 3.0, 1e+20.
std::string floatText(float value);

/// A number, or a text in quotation marks.
std::string valueText(const Value& value);

}  // namespace tool
