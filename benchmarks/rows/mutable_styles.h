// Mutable styles, filled as a host fills them.
#pragma once

#include <kostyle/kostyle.h>

#include "data/style_content.h"

namespace bench {

/// A new mutable style with this content, less its identifier and vendor text.
KoStyleStyle* makeMutableStyle(KoStyleManager* manager, const StyleContent& content);

/// The contents of a number of typical styles.
std::vector<StyleContent> typicalContents(std::size_t count);

}  // namespace bench
