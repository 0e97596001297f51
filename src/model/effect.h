// Effects of stored styles. They lie in an array beside those of their chain, and the parameters of one
// effect beside each other in an array of the style.
#pragma once

#include <cstddef>
#include <cstdint>

#include "containers/frozen_range.h"
#include "interfaces/interfaces.h"
#include "model/effect_kind.h"
#include "model/parameter.h"

namespace Tesk::KoStyle {

class Style;

class Effect : public virtual IEffect {
 public:
  std::uint32_t type() const final { return static_cast<std::uint32_t>(kind_); }
  const Char* id() const final { return id_.data(); }
  std::size_t numParameter() const final { return parameters_.size(); }
  bool hasParameter(IParameterBase* parameter) const final { return parameters_.contains(parameter); }
  IStyle* parent() const final;
  IParameter* parameter(const std::size_t& index) const final { return parameters_.at(index); }

  /// The identifier whole, where the host's view ends at the first U+0000.
  TextView wholeId() const noexcept { return id_; }

  /// A part of the style's parameters.
  const FrozenRange<Parameter>& parameters() const noexcept { return parameters_; }

 protected:
  /// `id` has U+0000 behind it.
  Effect(const Style& parent, EffectKind kind, TextView id, FrozenRange<Parameter> parameters) noexcept
      : parent_(parent), id_(id), parameters_(parameters), kind_(kind) {}
  ~Effect() = default;

  const Style& owner() const noexcept { return parent_; }

 private:
  const Style& parent_;
  const TextView id_;
  const FrozenRange<Parameter> parameters_;
  const EffectKind kind_;
};

class AudioEffect final : public Effect, public IAudioEffect {
 public:
  AudioEffect(const Style& parent, TextView id, FrozenRange<Parameter> parameters) noexcept
      : Effect(parent, EffectKind::audio, id, parameters) {}

  IAudioEffect* next() const override;
  IAudioEffect* prev() const override;
};

class MidiEffect final : public Effect, public IMidiEffect {
 public:
  MidiEffect(const Style& parent, TextView id, FrozenRange<Parameter> parameters) noexcept
      : Effect(parent, EffectKind::midi, id, parameters) {}

  IMidiEffect* next() const override;
  IMidiEffect* prev() const override;
};

}  // namespace Tesk::KoStyle
