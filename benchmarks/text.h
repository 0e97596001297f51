// The library's UTF-16 text, for programs that otherwise speak UTF-8.
#pragma once

#include <kostyle/types.h>

#include <filesystem>
#include <string>
#include <string_view>

namespace bench {

using Text = std::basic_string<KoStyleChar>;

/// From ASCII.
inline Text toText(std::string_view ascii) { return {ascii.begin(), ascii.end()}; }

/// From valid UTF-8.
inline Text utf16(std::string_view utf8) {
  Text text;
  text.reserve(utf8.size());
  for (std::size_t i = 0; i < utf8.size();) {
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(utf8[i + at]); };
    const std::size_t trails = byte(0) < 0x80 ? 0 : byte(0) < 0xE0 ? 1 : byte(0) < 0xF0 ? 2 : 3;
    char32_t character = trails == 0 ? byte(0) : byte(0) & (0x3FU >> trails);
    for (std::size_t t = 1; t <= trails; ++t) character = character << 6 | (byte(t) & 0x3FU);
    if (character >= 0x10000) {
      text += static_cast<KoStyleChar>(0xD7C0 + (character >> 10));
      character = 0xDC00 | (character & 0x3FF);
    }
    text += static_cast<KoStyleChar>(character);
    i += trails + 1;
  }
  return text;
}

inline Text pathText(const std::filesystem::path& path) {
  auto absolute = std::filesystem::absolute(path);
  absolute.make_preferred();
#if defined(_WIN32)
  return absolute.wstring();
#else
  return absolute.u16string();
#endif
}

}  // namespace bench
