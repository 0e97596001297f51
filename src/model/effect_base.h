// EffectBase: one link of a style's audio or MIDI chain, with its parameters.
#pragma once

#include <kostyle/codes.h>

#include <cstddef>
#include <cstdint>

#include "api/interfaces.h"
#include "model/owned_sequence.h"
#include "model/parameter_list.h"

namespace Tesk::KoStyle {

class StyleBase;

enum class EffectKind : std::uint32_t { audio = KOSTYLE_EFFECT_AUDIO, midi = KOSTYLE_EFFECT_MIDI };

class EffectBase : public virtual IEffectBase {
 public:
  virtual ~EffectBase() = default;

  std::uint32_t type() const final { return static_cast<std::uint32_t>(kind_); }
  const Char* id() const final { return id_.c_str(); }
  std::size_t numParameter() const final { return parameters_.size(); }
  bool hasParameter(IParameterBase* parameter) const final { return parameters_.contains(parameter); }

  EffectKind kind() const { return kind_; }

  /// The identifier whole, where the host's view ends at the first U+0000.
  const Text& wholeId() const { return id_; }

  /// Must not be called while the effect is in a chain.
  void assignId(Text id) noexcept { id_.swap(id); }

  ParameterList& parameters() { return parameters_; }
  const ParameterList& parameters() const { return parameters_; }

 protected:
  EffectBase(StyleBase* parent, EffectKind kind) : parent_(parent), kind_(kind) {}

  StyleBase* owner() const { return parent_; }
  EffectBase* following() const;
  EffectBase* preceding() const;

 private:
  StyleBase* const parent_;
  Text id_;
  ParameterList parameters_;
  const EffectKind kind_;
};

struct EffectIdOf {
  TextView operator()(const EffectBase& effect) const noexcept { return effect.wholeId(); }
};

/// An audio or a MIDI chain; identifiers are unique within it.
using EffectChain = OwnedSequence<EffectBase, IEffectBase, EffectIdOf>;

}  // namespace Tesk::KoStyle
