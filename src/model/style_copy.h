// Copying a mutable style into a stored one.
#pragma once

#include "model/mutable_style.h"
#include "model/style.h"

namespace Tesk::KoStyle {

/// A copy of a mutable style as the content of a stored one, without identifier and path where none are
/// given. Of parameters with one name, which renaming can bring about, the first is taken.
StoredContent copyFromMutableStyle(const MutableStyle& style, const Style& target, TextView id = {},
                                   TextView path = {});

}  // namespace Tesk::KoStyle
