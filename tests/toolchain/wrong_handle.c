/* Must not compile: a parameter is not an effect. */
#include <kostyle/kostyle.h>

const KoStyleChar* idOfParameter(KoStyleParameter* parameter);

const KoStyleChar* idOfParameter(KoStyleParameter* parameter) { return Effect_id(parameter); }
