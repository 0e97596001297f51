// What a page shows of a collection.
#pragma once

#include <string>

#include "catalog/collection.h"

namespace tool {

/// JSON that can stand anywhere in a page: ASCII without <, > and &. What would drive or turn text is
/// shown as escapes.
std::string pageData(const Collection& collection, const std::string& title);

}  // namespace tool
