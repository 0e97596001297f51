#include "model/effect.h"

#include "model/style.h"

namespace Tesk::KoStyle {
namespace {

// The effect that stands `step` places from another of its chain; null where there is none.
template <class EffectType>
EffectType* inChain(const FrozenArray<EffectType>& chain, const EffectType& effect,
                    std::ptrdiff_t step) {
  return chain.at(static_cast<std::size_t>(&effect - chain.begin() + step));
}

}  // namespace

IStyle* Effect::parent() const { return const_cast<Style*>(&parent_); }

IAudioEffect* AudioEffect::next() const { return inChain(owner().audioEffects(), *this, 1); }
IAudioEffect* AudioEffect::prev() const { return inChain(owner().audioEffects(), *this, -1); }

IMidiEffect* MidiEffect::next() const { return inChain(owner().midiEffects(), *this, 1); }
IMidiEffect* MidiEffect::prev() const { return inChain(owner().midiEffects(), *this, -1); }

}  // namespace Tesk::KoStyle
