// StyleSequence: the stored styles of a set, found by identifier too.
#pragma once

#include "containers/owned_sequence.h"
#include "model/system_style.h"
#include "model/user_style.h"

namespace Tesk::KoStyle {

using StyleSequence = OwnedSequence<Style, IStyleBase, StyleIdOf, SystemStyle, UserStyle>;

}  // namespace Tesk::KoStyle
