#include "writing/value_argument.h"

#include <fmt/core.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

#include "basics/failure.h"

namespace tool {
namespace {

template <typename Number>
struct Parsed {
  bool isNumber;
  bool fits;
  Number value;
};

template <typename Number>
Parsed<Number> parse(std::string_view text) {
  Number value{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  const bool whole = end == text.data() + text.size() && error != std::errc::invalid_argument;
  // The words for infinity and "not a number" are no numbers here.
  return {whole && std::isfinite(value), whole && error == std::errc(), value};
}

// A number with a comma in the place of its point.
bool hasDecimalComma(std::string text) {
  const bool isNumber = parse<float>(text).isNumber;
  std::replace(text.begin(), text.end(), ',', '.');
  return !isNumber && parse<float>(text).isNumber;
}

template <typename Number>
Number numberOf(std::string_view text, const char* type) {
  const Parsed<Number> parsed = parse<Number>(text);
  if (!parsed.isNumber && hasDecimalComma(std::string(text)))
    throw WrongUse(fmt::format("{}: not a number: the decimal sign is a point, not a comma", text));
  if (!parsed.isNumber)
    throw WrongUse(fmt::format("{}: not a value of type {}", text.empty() ? "\"\"" : text, type));
  if (!parsed.fits) throw WrongUse(fmt::format("{}: out of the range of type {}", text, type));
  return parsed.value;
}

}  // namespace

int intOf(std::string_view text) { return numberOf<int>(text, "int"); }

Value valueByForm(const std::string& text) {
  if (parse<int>(text).isNumber) return intOf(text);
  if (parse<float>(text).isNumber) return numberOf<float>(text, "float");
  return fromUtf8(text);
}

Value valueOfType(const std::string& text, const std::string& type) {
  if (type == "int") return intOf(text);
  if (type == "float") return numberOf<float>(text, "float");
  if (type == "text") return fromUtf8(text);
  throw WrongUse(fmt::format("{}: not a type; the types are int, float and text", type));
}

Value valueLike(const Value& present, const std::string& text) {
  const std::string type = typeText(present);
  try {
    return valueOfType(text, type);
  } catch (const WrongUse& error) {
    throw Refused(fmt::format("{}; the parameter is of type {}, NAME:TYPE=VALUE changes that",
                              error.what(), type));
  }
}

}  // namespace tool
