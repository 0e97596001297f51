#include "editing/new_json.h"

#include <fmt/core.h>

#include <cstdint>
#include <iterator>

#include "basics/surrogates.h"

namespace tool {
namespace {

// The letter of a control character's short escape; 0 when it has none.
char letterOf(KoStyleChar unit) {
  switch (unit) {
    case '\b':
      return 'b';
    case '\f':
      return 'f';
    case '\n':
      return 'n';
    case '\r':
      return 'r';
    case '\t':
      return 't';
    default:
      return 0;
  }
}

}  // namespace

std::string jsonString(TextView text, bool onlyAscii) {
  std::string result = "\"";
  while (!text.empty()) {
    const KoStyleChar unit = text.front();
    if (unit == '"' || unit == '\\') {
      result += {'\\', static_cast<char>(unit)};
    } else if (const char letter = letterOf(unit)) {
      result += {'\\', letter};
    } else if (unit < 0x20 || (onlyAscii && unit >= 0x7F)) {
      fmt::format_to(std::back_inserter(result), "\\u{:04x}", static_cast<std::uint16_t>(unit));
    } else {
      const std::size_t plain = isHighSurrogate(unit) ? 2 : 1;
      result += toUtf8(text.substr(0, plain));
      text.remove_prefix(plain);
      continue;
    }
    text.remove_prefix(1);
  }
  return result += '"';
}

NewJson jsonOf(const Value& value, bool onlyAscii) {
  if (const auto* integer = std::get_if<int>(&value))
    return {JsonKind::integer, fmt::format("{}", *integer)};
  if (const auto* number = std::get_if<float>(&value)) return {JsonKind::real, floatText(*number)};
  return {JsonKind::string, jsonString(std::get<Text>(value), onlyAscii)};
}

}  // namespace tool
