// Building styles, effects and parameters in memory, for tests of the model.
#pragma once

#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "manager/style_manager.h"
#include "model/effect_base.h"
#include "model/parameter_base.h"
#include "model/style_base.h"
#include "support/text.h"

namespace Tesk::KoStyle {

/// A manager without directories, for styles that no file gave.
inline StyleManager detachedManager() { return {Text(KOSTYLE_TEXT("tests")), Text(), Text(), {}, {}}; }

/// Appends a style to a manager's list of its kind.
template <class StyleClass>
StyleClass& addStyle(StyleManager& manager, const Text& id = {}) {
  auto style = std::make_unique<StyleClass>(&manager);
  style->assignId(id);
  StyleClass& added = *style;
  manager.styles(static_cast<StyleKind>(added.type())).append(StyleSequence::prepare(std::move(style)));
  return added;
}

template <class EffectClass>
std::unique_ptr<EffectClass> makeEffect(StyleBase* parent, const Text& id) {
  auto effect = std::make_unique<EffectClass>(parent);
  effect->assignId(id);
  return effect;
}

/// Appends an effect of any class to a style's chain.
template <class EffectClass>
EffectClass& addEffect(StyleBase& style, const Text& id) {
  auto effect = makeEffect<EffectClass>(&style, id);
  EffectClass& added = *effect;
  if (!style.appendEffect(std::move(effect))) throw std::invalid_argument("identifier is taken");
  return added;
}

/// Appends a parameter of any class to an effect.
template <class ParameterClass>
ParameterClass& addParameter(EffectBase& effect, const Text& name) {
  auto parameter = std::make_unique<ParameterClass>(&effect);
  parameter->assignName(name);
  ParameterClass& added = *parameter;
  if (!effect.parameters().append(std::move(parameter))) throw std::invalid_argument("name is taken");
  return added;
}

/// The names of an effect's parameters in their order.
inline std::vector<std::string> parameterNames(const EffectBase& effect) {
  std::vector<std::string> names;
  for (const ParameterBase& parameter : effect.parameters())
    names.push_back(test::utf8(parameter.wholeName()));
  return names;
}

/// The identifiers of a chain's effects in their order.
inline std::vector<std::string> effectIds(const EffectChain& chain) {
  std::vector<std::string> ids;
  for (const EffectBase& effect : chain) ids.push_back(test::utf8(effect.wholeId()));
  return ids;
}

}  // namespace Tesk::KoStyle
