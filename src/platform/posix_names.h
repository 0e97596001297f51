// File names between the system's bytes and the library's UTF-16. Bytes that are not valid UTF-8 are
// kept as lone low surrogates (byte b as U+DC00 + b), so that every name survives the round trip.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/text.h"

namespace Tesk::KoStyle::platform {

Text textFromName(std::string_view name);

/// The bytes that a text names; none when the text holds a lone surrogate that stands for no byte.
std::optional<std::string> nameFromText(TextView text);

}  // namespace Tesk::KoStyle::platform
