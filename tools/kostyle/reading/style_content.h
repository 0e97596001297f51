// What is in a style of the library.
#pragma once

#include <kostyle/kostyle.h>

#include "editing/style_content.h"

namespace tool {

StyleContent contentOf(KoStyleStyle* stored);

}  // namespace tool
