// Saving mutable styles as files of the user style directory. Both operations consume the mutable style
// on success and change nothing on failure; all memory is prepared before a file is touched.
#pragma once

#include <cstdint>

#include "model/mutable_style.h"

namespace Tesk::KoStyle {

class StyleManager;

/// Writes `style` as a new file and appends a new user style. Null with a code in `error` on failure.
IUserStyle* saveNewStyle(StyleManager& manager, MutableStyle& style, bool pretty, std::uint32_t& error);

/// Writes `style` over the file of the user style `targetID` and into that style, which is returned.
/// The old file is deleted before the new one takes its name; a rename that fails goes unreported.
IUserStyle* overwriteStyle(StyleManager& manager, const Char* targetID, MutableStyle& style,
                           bool pretty, std::uint32_t& error);

}  // namespace Tesk::KoStyle
