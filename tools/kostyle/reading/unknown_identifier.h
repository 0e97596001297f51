// Why a style is not found.
#pragma once

#include <string>

#include "basics/text.h"
#include "reading/manager.h"

namespace tool {

/// "IDENTIFIER: " and what is said of it; and which one is near, which refused files hold it, and which
/// files could not be opened.
std::string whyUnknown(const Manager& manager, TextView id, const char* what);

/// The end of a message about an identifier: the refused files that hold it, if any, each with the
/// reason.
std::string refusedHolders(const Manager& manager, TextView id);

}  // namespace tool
