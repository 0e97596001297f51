/*
 * KoStyle: reading effects. An effect is one link of a style's audio or MIDI chain.
 */
#ifndef KOSTYLE_EFFECT_H
#define KOSTYLE_EFFECT_H

#include "types.h"

/** The effect's kind, a value of enum KoStyleEffectKind; KOSTYLE_EFFECT_NONE for a null handle. */
KOSTYLE_API int Effect_type(KoStyleEffect* effect);

/**
 * The effect's identifier; unique within its chain, but for texts of a file that differ only behind
 * U+0000 and look repeated (see the conventions).
 */
KOSTYLE_API const KoStyleChar* Effect_id(KoStyleEffect* effect);

/** Number of parameters; SIZE_MAX for a null handle. */
KOSTYLE_API size_t Effect_numParameter(KoStyleEffect* effect);

/** Whether a parameter is one of the effect's. The parameter is only compared. */
KOSTYLE_API bool Effect_hasParameter(KoStyleEffect* effect, KoStyleParameter* parameter);

/** The style that owns the effect; NULL for an effect of a mutable style. */
KOSTYLE_API KoStyleStyle* Effect_parent(KoStyleEffect* effect);

/** The parameter at an index, in the order of names; NULL for an effect of a mutable style. */
KOSTYLE_API KoStyleParameter* Effect_parameter(KoStyleEffect* effect, size_t index);

/** The audio effect after this one in its chain; NULL at the end, and for MIDI or mutable effects. */
KOSTYLE_API KoStyleEffect* AudioEffect_next(KoStyleEffect* effect);

/**
 * The audio effect before this one in its chain; NULL at the front, and for MIDI or mutable effects.
 */
KOSTYLE_API KoStyleEffect* AudioEffect_prev(KoStyleEffect* effect);

/** The MIDI effect after this one in its chain; NULL at the end, and for audio or mutable effects. */
KOSTYLE_API KoStyleEffect* MidiEffect_next(KoStyleEffect* effect);

/**
 * The MIDI effect before this one in its chain; NULL at the front, and for audio or mutable effects.
 */
KOSTYLE_API KoStyleEffect* MidiEffect_prev(KoStyleEffect* effect);

#endif
