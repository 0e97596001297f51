// The page without its data. The build makes it of the files in catalog/page.
#pragma once

#include <string_view>

namespace tool {

extern const std::string_view pageBeforeData;
extern const std::string_view pageAfterData;

}  // namespace tool
