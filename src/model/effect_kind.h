// EffectKind: the chain that an effect stands in.
#pragma once

#include <kostyle/codes.h>

#include <cstdint>

namespace Tesk::KoStyle {

enum class EffectKind : std::uint32_t { audio = KOSTYLE_EFFECT_AUDIO, midi = KOSTYLE_EFFECT_MIDI };

}  // namespace Tesk::KoStyle
