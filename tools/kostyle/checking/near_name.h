// Which of the names that are known was meant by one that is not.
#pragma once

#include <string>
#include <vector>

#include "basics/text.h"

namespace tool {

/// The name that is nearest: at most two letters are wrong, missing, too many or exchanged, and case
/// does not count. Empty when none is near.
Text nearName(TextView name, const std::vector<TextView>& known);

/// The end of a message about a name that is not known: the near one, if any.
std::string nearNameHint(TextView name, const std::vector<TextView>& known);

}  // namespace tool
