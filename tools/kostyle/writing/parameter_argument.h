// The arguments of --param, EFFECT.NAME=VALUE, and --delete-param, EFFECT.NAME.
#pragma once

#include <kostyle/kostyle.h>

#include <string>
#include <string_view>
#include <vector>

#include "reading/attributes.h"
#include "reading/parameter_value.h"

namespace tool {

/// An effect of a mutable style.
struct NamedEffect {
  const Chain* chain;
  std::string id;
  KoStyleEffect* handle;
};

struct EffectReference {
  KoStyleEffect* effect;
  std::string rest;  // of the argument, behind the dot
};

/// The effect that the argument starts with. Identifiers may hold dots: the longest one wins. "audio:"
/// or "midi:" in front names the chain, wins over as long an identifier that starts so, and is needed
/// when both chains have the effect.
EffectReference findEffect(const std::string& argument, const std::vector<NamedEffect>& effects);

struct Assignment {
  std::string name;
  Value value;
};

/// A whole decimal number and nothing else; throws WrongUse.
int intOf(std::string_view text);

/// NAME=VALUE, whose type follows the form of VALUE, or NAME:TYPE=VALUE. The first "=" ends NAME.
Assignment parseAssignment(const std::string& text);

}  // namespace tool
