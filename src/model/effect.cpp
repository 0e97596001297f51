#include "model/effect.h"

#include "model/style.h"

namespace Tesk::KoStyle {

IStyle* Effect::parent() const { return const_cast<Style*>(&parent_); }

IAudioEffect* AudioEffect::next() const { return owner().audioEffects().neighbour(*this, 1); }
IAudioEffect* AudioEffect::prev() const { return owner().audioEffects().neighbour(*this, -1); }

IMidiEffect* MidiEffect::next() const { return owner().midiEffects().neighbour(*this, 1); }
IMidiEffect* MidiEffect::prev() const { return owner().midiEffects().neighbour(*this, -1); }

}  // namespace Tesk::KoStyle
