// Effects of mutable styles.
#pragma once

#include <cstddef>

#include "model/effect_base.h"

namespace Tesk::KoStyle {

class MutableEffect : public virtual IMutableEffect, public EffectBase {
 public:
  void destroy() final;
  IMutableStyle* parent() const final;
  IMutableParameter* parameter(const std::size_t& index) const final;
  bool move(const std::size_t& index) final;
  IMutableParameter* addParameter(const Char* name) final;

 protected:
  using EffectBase::EffectBase;

 private:
  EffectChain* editableChain() const;
};

class MutableAudioEffect final : public IMutableAudioEffect, public MutableEffect {
 public:
  explicit MutableAudioEffect(StyleBase* parent) : MutableEffect(parent, EffectKind::audio) {}

  IMutableAudioEffect* next() const override { return dynamic_cast<IMutableAudioEffect*>(following()); }
  IMutableAudioEffect* prev() const override { return dynamic_cast<IMutableAudioEffect*>(preceding()); }
};

class MutableMidiEffect final : public IMutableMidiEffect, public MutableEffect {
 public:
  explicit MutableMidiEffect(StyleBase* parent) : MutableEffect(parent, EffectKind::midi) {}

  IMutableMidiEffect* next() const override { return dynamic_cast<IMutableMidiEffect*>(following()); }
  IMutableMidiEffect* prev() const override { return dynamic_cast<IMutableMidiEffect*>(preceding()); }
};

}  // namespace Tesk::KoStyle
