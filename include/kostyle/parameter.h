/*
 * KoStyle: parameters: named, typed values of an effect. The Parameter_* readers of type, name and
 * values take a parameter of a stored or of a mutable style.
 */
#ifndef KOSTYLE_PARAMETER_H
#define KOSTYLE_PARAMETER_H

#include "types.h"

/** The value's type, of enum KoStyleParameterType; KOSTYLE_PARAMETER_NONE for a null handle. */
KOSTYLE_API int Parameter_type(KoStyleParameter* parameter);

/**
 * The parameter's name. Unique within a stored effect; MutableParameter_setName() can repeat one. The
 * name "Tarn" of a file is read as "Tarn630".
 */
KOSTYLE_API const KoStyleChar* Parameter_name(KoStyleParameter* parameter);

/** The integer value; 0, not a conversion, when the type is another; INT_MIN for a null handle. */
KOSTYLE_API int Parameter_valueInt(KoStyleParameter* parameter);

/** The float value; 0, not a conversion, when the type is another; FLT_MIN for a null handle. */
KOSTYLE_API float Parameter_valueFloat(KoStyleParameter* parameter);

/** The text value; empty when the type is another. */
KOSTYLE_API const KoStyleChar* Parameter_valueString(KoStyleParameter* parameter);

/** The effect that owns the parameter; NULL for a parameter of a mutable style. */
KOSTYLE_API KoStyleEffect* Parameter_parent(KoStyleParameter* parameter);

/** The parameter after this one in its effect; NULL at the end and for mutable parameters. */
KOSTYLE_API KoStyleParameter* Parameter_next(KoStyleParameter* parameter);

/** The parameter before this one in its effect; NULL at the front and for mutable parameters. */
KOSTYLE_API KoStyleParameter* Parameter_prev(KoStyleParameter* parameter);

/*
 * Editing. On a parameter of a stored style the functions below change nothing and return their
 * default.
 */

/** Takes the parameter out of its effect and destroys it; its texts end. Lets no exception out. */
KOSTYLE_API void MutableParameter_destroy(KoStyleParameter* parameter);

/** The mutable effect that owns the parameter. */
KOSTYLE_API KoStyleEffect* MutableParameter_parent(KoStyleParameter* parameter);

/** The parameter after this one in its mutable effect; NULL at the end. */
KOSTYLE_API KoStyleParameter* MutableParameter_next(KoStyleParameter* parameter);

/** The parameter before this one in its mutable effect; NULL at the front. */
KOSTYLE_API KoStyleParameter* MutableParameter_prev(KoStyleParameter* parameter);

/**
 * Renames the parameter; the old name's text ends. The name of another parameter of the effect is
 * accepted, and saving keeps the first of the two; the parameter keeps its place until
 * MutableEffect_addParameter() sorts the effect's parameters again.
 *
 * @param name the new name; not empty. "Tarn" comes back as "Tarn630" from the file.
 * @return true; false when the name is refused.
 */
KOSTYLE_API bool MutableParameter_setName(KoStyleParameter* parameter, const KoStyleChar* name);

/** Makes the parameter an integer of this value; the text of an earlier value ends. */
KOSTYLE_API void MutableParameter_setValueInt(KoStyleParameter* parameter, int value);

/**
 * Makes the parameter a float of this value; the text of an earlier value ends. An infinity or a NaN is
 * kept in memory, but JSON cannot express it: a file with one is not written whole, without an error.
 */
KOSTYLE_API void MutableParameter_setValueFloat(KoStyleParameter* parameter, float value);

/**
 * Makes the parameter a text of this value, which may be empty; NULL means empty. The text of an
 * earlier value ends.
 */
KOSTYLE_API void MutableParameter_setValueString(KoStyleParameter* parameter, const KoStyleChar* value);

#endif
