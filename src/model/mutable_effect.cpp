#include "model/mutable_effect.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "model/mutable_parameter.h"
#include "model/mutable_style.h"

namespace Tesk::KoStyle {

void MutableEffect::destroy() {
  if (EffectChain* chain = editableChain()) chain->destroy(this);
}

IMutableStyle* MutableEffect::parent() const { return dynamic_cast<IMutableStyle*>(owner()); }

IMutableParameter* MutableEffect::parameter(const std::size_t& index) const {
  return dynamic_cast<IMutableParameter*>(parameters().at(index));
}

bool MutableEffect::move(const std::size_t& index) {
  EffectChain* const chain = editableChain();
  if (!chain || !chain->contains(this)) return false;
  const std::size_t target = std::min(index, chain->size() - 1);
  if (target != chain->position(this)) chain->insert(target, chain->take(this));
  return true;
}

IMutableParameter* MutableEffect::addParameter(const Char* name) {
  if (!name || *name == 0 || parameters().containsName(name)) return nullptr;
  auto parameter = std::make_unique<MutableParameter>(this);
  parameter->assignName(name);
  return dynamic_cast<IMutableParameter*>(parameters().append(std::move(parameter)));
}

/// The chain that the effect may be moved in and taken from; null outside a mutable style.
EffectChain* MutableEffect::editableChain() const {
  auto* const style = dynamic_cast<MutableStyle*>(owner());
  return style ? &style->chain(kind()) : nullptr;
}

}  // namespace Tesk::KoStyle
