#include "model/mutable_effect.h"

#include <algorithm>

#include "model/mutable_style.h"

namespace Tesk::KoStyle {

MutableEffect::MutableEffect(MutableStyle& parent, EffectKind kind, const Char* id)
    : parent_(parent), id_(&parent.pool(), id), parameters_(&parent.pool()), kind_(kind) {}

void MutableEffect::destroy() { chain().destroy(this); }

IMutableStyle* MutableEffect::parent() const { return &parent_; }

bool MutableEffect::move(const std::size_t& index) {
  MutableChain& effects = chain();
  if (!effects.contains(this)) return false;
  effects.move(this, std::min(index, effects.size() - 1));
  return true;
}

IMutableParameter* MutableEffect::addParameter(const Char* name) {
  if (!name || *name == 0) return nullptr;
  return parameters_.append(*this, name);
}

MutableChain& MutableEffect::chain() const noexcept { return parent_.chain(kind_); }

// A chain holds effects of its own kind alone.

IMutableAudioEffect* MutableAudioEffect::next() const {
  return static_cast<MutableAudioEffect*>(chain().next(this));
}
IMutableAudioEffect* MutableAudioEffect::prev() const {
  return static_cast<MutableAudioEffect*>(chain().previous(this));
}

IMutableMidiEffect* MutableMidiEffect::next() const {
  return static_cast<MutableMidiEffect*>(chain().next(this));
}
IMutableMidiEffect* MutableMidiEffect::prev() const {
  return static_cast<MutableMidiEffect*>(chain().previous(this));
}

}  // namespace Tesk::KoStyle
