// Why a style is not found.
#pragma once

#include <string>

#include "basics/text.h"
#include "reading/manager.h"

namespace tool {

/// That no style has an identifier; and which one is near, which refused files hold it, and which files
/// could not be opened.
std::string whyUnknown(const Manager& manager, TextView id);

}  // namespace tool
