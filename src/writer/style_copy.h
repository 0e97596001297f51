// Copying a mutable style into a stored one.
#pragma once

#include "model/mutable_style.h"
#include "model/style.h"

namespace Tesk::KoStyle {

/// A deep copy of a mutable style's content, its effects belonging to `target`, for
/// StyleBase::exchangeContent(). Of parameters with one name, which a document may hold, the first is
/// taken.
StyleContent copyFromMutableStyle(const MutableStyle& style, Style& target);

}  // namespace Tesk::KoStyle
