#include "editing/new_identifier.h"

#include "platform/platform.h"

namespace tool {

Text newIdentifier() { return Tesk::KoStyle::platform::makeUuid(); }

}  // namespace tool
