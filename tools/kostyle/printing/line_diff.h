// Two texts line by line, as diff -u prints them.
#pragma once

#include <string>

namespace tool {

/// Empty when they are the same. Both have the same name. What could drive a terminal becomes escapes.
std::string unifiedDiff(const std::string& name, const std::string& before, const std::string& after,
                        bool colors);

}  // namespace tool
