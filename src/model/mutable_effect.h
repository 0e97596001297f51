// Effects of mutable styles.
#pragma once

#include <cstddef>
#include <cstdint>

#include "containers/owned_sequence.h"
#include "containers/pooled_text.h"
#include "interfaces/interfaces.h"
#include "model/effect_kind.h"
#include "model/parameter_list.h"

namespace Tesk::KoStyle {

class MutableAudioEffect;
class MutableEffect;
class MutableMidiEffect;
class MutableStyle;

struct EffectIdOf {
  TextView operator()(const MutableEffect& effect) const noexcept;
};

/// A chain of a mutable style; identifiers are unique within it.
using MutableChain =
    OwnedSequence<MutableEffect, IEffectBase, EffectIdOf, MutableAudioEffect, MutableMidiEffect>;

class MutableEffect : public virtual IMutableEffect {
 public:
  virtual ~MutableEffect() = default;

  std::uint32_t type() const final { return static_cast<std::uint32_t>(kind_); }
  const Char* id() const final { return id_.data(); }
  std::size_t numParameter() const final { return parameters_.size(); }
  bool hasParameter(IParameterBase* parameter) const final { return parameters_.contains(parameter); }
  void destroy() final;
  IMutableStyle* parent() const final;
  IMutableParameter* parameter(const std::size_t& index) const final { return parameters_.at(index); }
  bool move(const std::size_t& index) final;
  IMutableParameter* addParameter(const Char* name) final;

  EffectKind kind() const noexcept { return kind_; }
  TextView wholeId() const noexcept { return id_; }
  ParameterList& parameters() noexcept { return parameters_; }
  const ParameterList& parameters() const noexcept { return parameters_; }

 protected:
  MutableEffect(MutableStyle& parent, EffectKind kind, const Char* id);

  MutableChain& chain() const noexcept;

 private:
  MutableStyle& parent_;
  const PooledText id_;
  ParameterList parameters_;
  const EffectKind kind_;
};

inline TextView EffectIdOf::operator()(const MutableEffect& effect) const noexcept {
  return effect.wholeId();
}

class MutableAudioEffect final : public MutableEffect, public IMutableAudioEffect {
 public:
  static constexpr EffectKind kind = EffectKind::audio;
  MutableAudioEffect(MutableStyle& parent, const Char* id) : MutableEffect(parent, kind, id) {}

  IMutableAudioEffect* next() const override;
  IMutableAudioEffect* prev() const override;
};

class MutableMidiEffect final : public MutableEffect, public IMutableMidiEffect {
 public:
  static constexpr EffectKind kind = EffectKind::midi;
  MutableMidiEffect(MutableStyle& parent, const Char* id) : MutableEffect(parent, kind, id) {}

  IMutableMidiEffect* next() const override;
  IMutableMidiEffect* prev() const override;
};

}  // namespace Tesk::KoStyle
