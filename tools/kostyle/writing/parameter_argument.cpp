#include "writing/parameter_argument.h"

#include <fmt/core.h>

#include <tuple>

#include "basics/failure.h"

namespace tool {
namespace {

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
  const std::string qualified = fmt::format("{}:{}", effect.chain, plain);
  const auto leads = [&](const std::string& prefix) {
    return argument.compare(0, prefix.size(), prefix) == 0;
  };
  if (leads(qualified)) return {qualified.size(), true};
  return {leads(plain) ? plain.size() : 0, false};
}

}  // namespace

std::optional<EffectReference> findEffect(const std::string& argument,
                                          const std::vector<NamedEffect>& effects) {
  if (argument.find('.') == argument.npos)
    throw WrongUse(fmt::format("{}: a parameter is named EFFECT.NAME", argument));
  std::size_t best = effects.size();
  Match bestMatch{};
  bool ambiguous = false;
  for (std::size_t i = 0; i < effects.size(); ++i) {
    const Match match = matchOf(argument, effects[i]);
    if (match.length == 0 || match < bestMatch) continue;
    ambiguous = !(bestMatch < match);
    best = i;
    bestMatch = match;
  }
  if (best == effects.size()) return {};
  if (ambiguous)
    throw Refused(fmt::format("{0} names more than one effect; say audio:{0} or midi:{0}", argument));
  return EffectReference{best, argument.substr(bestMatch.length)};
}

Assignment parseAssignment(const std::string& text) {
  const std::size_t equals = text.find('=');
  if (equals == text.npos) throw WrongUse(fmt::format("{}: no \"=VALUE\" follows the name", text));
  const std::string name = text.substr(0, equals);
  const std::string value = text.substr(equals + 1);
  const std::size_t colon = name.rfind(':');
  if (colon == name.npos) return {name, {}, value};
  if (colon + 1 == name.size()) throw WrongUse(fmt::format("{}: no type follows the colon", text));
  return {name.substr(0, colon), name.substr(colon + 1), value};
}

}  // namespace tool
