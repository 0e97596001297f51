#include "api/exports.h"
#include "api/handle.h"

using namespace Tesk::KoStyle;

int Effect_type(KoStyleEffect* effect) {
  return direct<int>(effect, &IEffectBase::type, KOSTYLE_EFFECT_NONE);
}

size_t Effect_numParameter(KoStyleEffect* effect) {
  return direct(effect, &IEffectBase::numParameter, noCount);
}

bool Effect_hasParameter(KoStyleEffect* effect, KoStyleParameter* parameter) {
  return direct(effect, &IEffectBase::hasParameter, false, parameter);
}

KoStyleStyle* Effect_parent(KoStyleEffect* effect) {
  return converted<IEffect, KoStyleStyle>(effect, &IEffect::parent);
}
KoStyleParameter* Effect_parameter(KoStyleEffect* effect, size_t index) {
  return converted<IEffect, KoStyleParameter>(effect, &IEffect::parameter, index);
}

KoStyleEffect* AudioEffect_next(KoStyleEffect* effect) {
  return converted<IAudioEffect, KoStyleEffect>(effect, &IAudioEffect::next);
}
KoStyleEffect* AudioEffect_prev(KoStyleEffect* effect) {
  return converted<IAudioEffect, KoStyleEffect>(effect, &IAudioEffect::prev);
}

KoStyleEffect* MidiEffect_next(KoStyleEffect* effect) {
  return converted<IMidiEffect, KoStyleEffect>(effect, &IMidiEffect::next);
}
KoStyleEffect* MidiEffect_prev(KoStyleEffect* effect) {
  return converted<IMidiEffect, KoStyleEffect>(effect, &IMidiEffect::prev);
}

void MutableEffect_destroy(KoStyleEffect* effect) try {
  checkedVoid<IMutableEffect>(effect, &IMutableEffect::destroy);
} catch (...) {
}

KoStyleStyle* MutableEffect_parent(KoStyleEffect* effect) {
  return converted<IMutableEffect, KoStyleStyle>(effect, &IMutableEffect::parent);
}
KoStyleParameter* MutableEffect_parameter(KoStyleEffect* effect, size_t index) {
  return converted<IMutableEffect, KoStyleParameter>(effect, &IMutableEffect::parameter, index);
}
bool MutableEffect_move(KoStyleEffect* effect, size_t index) {
  return checked<IMutableEffect>(effect, &IMutableEffect::move, false, index);
}
KoStyleParameter* MutableEffect_addParameter(KoStyleEffect* effect, const Char* name) {
  return converted<IMutableEffect, KoStyleParameter>(effect, &IMutableEffect::addParameter, name);
}

KoStyleEffect* MutableAudioEffect_next(KoStyleEffect* effect) {
  return converted<IMutableAudioEffect, KoStyleEffect>(effect, &IMutableAudioEffect::next);
}
KoStyleEffect* MutableAudioEffect_prev(KoStyleEffect* effect) {
  return converted<IMutableAudioEffect, KoStyleEffect>(effect, &IMutableAudioEffect::prev);
}

KoStyleEffect* MutableMidiEffect_next(KoStyleEffect* effect) {
  return converted<IMutableMidiEffect, KoStyleEffect>(effect, &IMutableMidiEffect::next);
}
KoStyleEffect* MutableMidiEffect_prev(KoStyleEffect* effect) {
  return converted<IMutableMidiEffect, KoStyleEffect>(effect, &IMutableMidiEffect::prev);
}
