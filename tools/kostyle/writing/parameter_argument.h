// The arguments of --param, EFFECT.NAME=VALUE, and --delete-param, EFFECT.NAME.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tool {

/// An effect that an argument may name.
struct NamedEffect {
  std::string chain;  // its name
  std::string id;
};

struct EffectReference {
  std::size_t effect;  // its place among the effects
  std::string rest;    // of the argument, behind the dot
};

/// The effect that the argument starts with, if any. Identifiers may hold dots: the longest one wins.
/// "audio:" or "midi:" in front names the chain, wins over as long an identifier that starts so, and is
/// needed when both chains have the effect. Throws WrongUse and Refused.
std::optional<EffectReference> findEffect(const std::string& argument,
                                          const std::vector<NamedEffect>& effects);

struct Assignment {
  std::string name;
  std::string type;  // empty when none is given
  std::string value;
};

/// NAME=VALUE or NAME:TYPE=VALUE. The first "=" ends NAME. Throws WrongUse.
Assignment parseAssignment(const std::string& text);

}  // namespace tool
