/*
 * KoStyle: editing effects of mutable styles. On an effect of a stored style these functions change
 * nothing and return their default. Effect_type(), Effect_id(), Effect_numParameter() and
 * Effect_hasParameter() read mutable effects too.
 */
#ifndef KOSTYLE_MUTABLE_EFFECT_H
#define KOSTYLE_MUTABLE_EFFECT_H

#include "types.h"

/**
 * Takes the effect out of its chain and destroys it with its parameters; their handles and texts end.
 * Lets no exception out.
 */
KOSTYLE_API void MutableEffect_destroy(KoStyleEffect* effect);

/** The mutable style that owns the effect. */
KOSTYLE_API KoStyleStyle* MutableEffect_parent(KoStyleEffect* effect);

/** The parameter at an index: in the order of names, as of the last MutableEffect_addParameter(). */
KOSTYLE_API KoStyleParameter* MutableEffect_parameter(KoStyleEffect* effect, size_t index);

/**
 * Moves the effect to an index of its own chain, which it has afterwards; an index past the end moves
 * it to the end.
 *
 * @return true, also when the effect is there already; false when the effect is in no chain.
 */
KOSTYLE_API bool MutableEffect_move(KoStyleEffect* effect, size_t index);

/**
 * Adds a parameter of type KOSTYLE_PARAMETER_INT and value 0, and sorts the parameters by name.
 *
 * @param name the parameter's name; not empty; not the name of a parameter of this effect. "Tarn" is
 *        written as it is, but reading the file gives "Tarn630"; of the two only the first is read.
 * @return the parameter, owned by the effect; NULL when the name is refused.
 */
KOSTYLE_API KoStyleParameter* MutableEffect_addParameter(KoStyleEffect* effect,
                                                         const KoStyleChar* name);

/** The audio effect after this one in its chain; NULL at the end, and for MIDI or stored effects. */
KOSTYLE_API KoStyleEffect* MutableAudioEffect_next(KoStyleEffect* effect);

/** The audio effect before this one in its chain; NULL at the front, and for MIDI or stored effects. */
KOSTYLE_API KoStyleEffect* MutableAudioEffect_prev(KoStyleEffect* effect);

/** The MIDI effect after this one in its chain; NULL at the end, and for audio or stored effects. */
KOSTYLE_API KoStyleEffect* MutableMidiEffect_next(KoStyleEffect* effect);

/** The MIDI effect before this one in its chain; NULL at the front, and for audio or stored effects. */
KOSTYLE_API KoStyleEffect* MutableMidiEffect_prev(KoStyleEffect* effect);

#endif
