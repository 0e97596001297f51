// Effects of stored styles. They lie in an array beside those of their chain, and the parameters of one
// effect beside each other in an array of the style.
#pragma once

#include <kostyle/codes.h>

#include <cstddef>
#include <cstdint>

#include "containers/frozen_array.h"
#include "interfaces/interfaces.h"
#include "model/effect_kind.h"
#include "model/parameter.h"

namespace Tesk::KoStyle {

class Style;

/// A part of the array that holds the parameters of a style.
struct ParameterRange {
  Parameter* first = nullptr;
  std::size_t count = 0;

  Parameter* begin() const noexcept { return first; }
  Parameter* end() const noexcept { return first + count; }
};

class Effect : public virtual IEffect {
 public:
  std::uint32_t type() const final { return static_cast<std::uint32_t>(kind_); }
  const Char* id() const final { return id_.data(); }
  std::size_t numParameter() const final { return parameters_.count; }
  bool hasParameter(IParameterBase* parameter) const final {
    return FrozenArray<Parameter>::holdsAddress(parameters_.first, parameters_.count, parameter);
  }
  IStyle* parent() const final;
  IParameter* parameter(const std::size_t& index) const final {
    return index < parameters_.count ? parameters_.first + index : nullptr;
  }

  /// The identifier whole, where the host's view ends at the first U+0000.
  TextView wholeId() const noexcept { return id_; }

  const ParameterRange& parameters() const noexcept { return parameters_; }

  /// The parameter that stands `step` places from another of this effect; null where there is none.
  IParameter* neighbour(const Parameter& parameter, std::ptrdiff_t step) const noexcept {
    const auto index = static_cast<std::size_t>(&parameter - parameters_.first + step);
    return Effect::parameter(index);
  }

 protected:
  /// `id` has U+0000 behind it.
  Effect(const Style& parent, EffectKind kind, TextView id, ParameterRange parameters) noexcept
      : parent_(parent), id_(id), parameters_(parameters), kind_(kind) {}
  ~Effect() = default;

  const Style& owner() const noexcept { return parent_; }

 private:
  const Style& parent_;
  const TextView id_;
  const ParameterRange parameters_;
  const EffectKind kind_;
};

class AudioEffect final : public Effect, public IAudioEffect {
 public:
  AudioEffect(const Style& parent, TextView id, ParameterRange parameters) noexcept
      : Effect(parent, EffectKind::audio, id, parameters) {}

  IAudioEffect* next() const override;
  IAudioEffect* prev() const override;
};

class MidiEffect final : public Effect, public IMidiEffect {
 public:
  MidiEffect(const Style& parent, TextView id, ParameterRange parameters) noexcept
      : Effect(parent, EffectKind::midi, id, parameters) {}

  IMidiEffect* next() const override;
  IMidiEffect* prev() const override;
};

}  // namespace Tesk::KoStyle
