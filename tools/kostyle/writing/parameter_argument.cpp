#include "writing/parameter_argument.h"

#include <fmt/format.h>

#include <charconv>
#include <cmath>
#include <string_view>
#include <system_error>
#include <tuple>

#include "basics/failure.h"
#include "basics/text.h"

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

template <typename Number>
Number numberOf(std::string_view text, const char* type) {
  const Parsed<Number> parsed = parse<Number>(text);
  if (!parsed.isNumber) throw WrongUse(fmt::format("{}: not a value of type {}", text, type));
  if (!parsed.fits) throw WrongUse(fmt::format("{}: out of the range of type {}", text, type));
  return parsed.value;
}

Value parsedValue(const std::string& text) {
  if (parse<int>(text).isNumber) return numberOf<int>(text, "int");
  if (parse<float>(text).isNumber) return numberOf<float>(text, "float");
  return fromUtf8(text);
}

Value parsedValue(const std::string& text, const std::string& type) {
  if (type == "int") return numberOf<int>(text, "int");
  if (type == "float") return numberOf<float>(text, "float");
  if (type == "text") return fromUtf8(text);
  throw WrongUse(fmt::format("{}: not a type; the types are int, float and text", type));
}

// What names the effect in front of the argument.
struct Match {
  std::size_t length;  // the dot included; 0 when nothing does
  bool namesChain;

  bool operator<(const Match& other) const {
    return std::tie(length, namesChain) < std::tie(other.length, other.namesChain);
  }
};

Match matchOf(const std::string& argument, const NamedEffect& effect) {
  const std::string plain = effect.id + '.';
  const std::string qualified = fmt::format("{}:{}", effect.chain->name, plain);
  const auto leads = [&](const std::string& prefix) {
    return argument.compare(0, prefix.size(), prefix) == 0;
  };
  if (leads(qualified)) return {qualified.size(), true};
  return {leads(plain) ? plain.size() : 0, false};
}

}  // namespace

int intOf(std::string_view text) { return numberOf<int>(text, "int"); }

EffectReference findEffect(const std::string& argument, const std::vector<NamedEffect>& effects) {
  if (argument.find('.') == argument.npos)
    throw WrongUse(fmt::format("{}: a parameter is named EFFECT.NAME", argument));
  const NamedEffect* best = nullptr;
  Match bestMatch{};
  bool ambiguous = false;
  for (const NamedEffect& effect : effects) {
    const Match match = matchOf(argument, effect);
    if (match.length == 0 || match < bestMatch) continue;
    ambiguous = !(bestMatch < match);
    best = &effect;
    bestMatch = match;
  }
  if (!best) throw Refused(fmt::format("{}: the style has no such effect", argument));
  if (ambiguous)
    throw Refused(fmt::format("{0} names more than one effect; say audio:{0} or midi:{0}", argument));
  return {best->handle, argument.substr(bestMatch.length)};
}

Assignment parseAssignment(const std::string& text) {
  const std::size_t equals = text.find('=');
  if (equals == text.npos) throw WrongUse(fmt::format("{}: no \"=VALUE\" follows the name", text));
  const std::string name = text.substr(0, equals);
  const std::string value = text.substr(equals + 1);
  const std::size_t colon = name.rfind(':');
  if (colon == name.npos) return {name, parsedValue(value)};
  return {name.substr(0, colon), parsedValue(value, name.substr(colon + 1))};
}

}  // namespace tool
