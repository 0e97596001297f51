// StyleReadOutcome: what reading one style file came to.
#pragma once

#include <kostyle/codes.h>

#include <cstdint>

#include "platform/text.h"

namespace Tesk::KoStyle {

struct StyleReadOutcome {
  std::uint32_t error = KOSTYLE_OK;
  Text jsonPath;  // where the failing value lies
  std::uint32_t parseError = KOSTYLE_PARSE_OK;
  std::uint64_t parseErrorOffset = 0;  // bytes from the start of the file
};

}  // namespace Tesk::KoStyle
