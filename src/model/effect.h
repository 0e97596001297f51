// Effects of stored styles.
#pragma once

#include "model/effect_base.h"

namespace Tesk::KoStyle {

class Effect : public virtual IEffect, public EffectBase {
 public:
  IStyle* parent() const final;
  IParameter* parameter(const std::size_t& index) const final;

 protected:
  using EffectBase::EffectBase;
};

class AudioEffect final : public IAudioEffect, public Effect {
 public:
  explicit AudioEffect(StyleBase* parent) : Effect(parent, EffectKind::audio) {}

  IAudioEffect* next() const override { return dynamic_cast<IAudioEffect*>(following()); }
  IAudioEffect* prev() const override { return dynamic_cast<IAudioEffect*>(preceding()); }
};

class MidiEffect final : public IMidiEffect, public Effect {
 public:
  explicit MidiEffect(StyleBase* parent) : Effect(parent, EffectKind::midi) {}

  IMidiEffect* next() const override { return dynamic_cast<IMidiEffect*>(following()); }
  IMidiEffect* prev() const override { return dynamic_cast<IMidiEffect*>(preceding()); }
};

}  // namespace Tesk::KoStyle
