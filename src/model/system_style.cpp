#include "model/system_style.h"

namespace Tesk::KoStyle {

ISystemStyle* SystemStyle::next() const { return owner() ? owner()->next(*this) : nullptr; }

ISystemStyle* SystemStyle::prev() const { return owner() ? owner()->previous(*this) : nullptr; }

}  // namespace Tesk::KoStyle
