#include "basics/value.h"

#include <fmt/core.h>

#include <cmath>

namespace tool {

bool areSame(const Value& a, const Value& b) {
  const auto* const number = std::get_if<float>(&a);
  const auto* const other = std::get_if<float>(&b);
  return a == b && (!number || std::signbit(*number) == std::signbit(*other));
}

const char* typeText(const Value& value) {
  constexpr const char* types[] = {"int", "float", "text"};
  return types[value.index()];
}

std::string floatText(float value) {
  std::string text = fmt::format("{}", value);
  if (text.find_first_not_of("-0123456789") == text.npos) text += ".0";
  return text;
}

std::string valueText(const Value& value) {
  if (const auto* integer = std::get_if<int>(&value)) return fmt::format("{}", *integer);
  if (const auto* number = std::get_if<float>(&value)) return floatText(*number);
  return inQuotes(toUtf8(std::get<Text>(value)));
}

}  // namespace tool
