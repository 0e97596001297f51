// Text of the library and UTF-8, for tests. Lone surrogates become U+FFFD on the way to UTF-8.
#pragma once

#include <kostyle/types.h>

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>

namespace test {

using Text = std::basic_string<KoStyleChar>;

inline Text text(std::string_view utf8) {
  Text result;
  for (std::size_t i = 0; i < utf8.size();) {
    const auto lead = static_cast<unsigned char>(utf8[i]);
    const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    std::uint32_t codePoint = length == 1 ? lead : lead & (0x7Fu >> length);
    for (std::size_t j = 1; j < length; ++j) {
      codePoint = codePoint << 6 | (static_cast<unsigned char>(utf8[i + j]) & 0x3Fu);
    }
    i += length;
    if (codePoint >= 0x10000) {
      result += static_cast<KoStyleChar>(0xD800 + ((codePoint - 0x10000) >> 10));
      codePoint = 0xDC00 + ((codePoint - 0x10000) & 0x3FF);
    }
    result += static_cast<KoStyleChar>(codePoint);
  }
  return result;
}

inline std::string utf8(std::basic_string_view<KoStyleChar> text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    std::uint32_t codePoint = text[i];
    const bool high = codePoint >= 0xD800 && codePoint < 0xDC00;
    if (high && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] < 0xE000) {
      codePoint = 0x10000 + ((codePoint - 0xD800) << 10) + (text[++i] - 0xDC00u);
    } else if (codePoint >= 0xD800 && codePoint < 0xE000) {
      codePoint = 0xFFFD;
    }
    const auto put = [&](std::uint32_t byte) { result += static_cast<char>(byte); };
    if (codePoint < 0x80) {
      put(codePoint);
    } else if (codePoint < 0x800) {
      put(0xC0 | codePoint >> 6), put(0x80 | (codePoint & 0x3F));
    } else if (codePoint < 0x10000) {
      put(0xE0 | codePoint >> 12), put(0x80 | (codePoint >> 6 & 0x3F)), put(0x80 | (codePoint & 0x3F));
    } else {
      put(0xF0 | codePoint >> 18), put(0x80 | (codePoint >> 12 & 0x3F));
      put(0x80 | (codePoint >> 6 & 0x3F)), put(0x80 | (codePoint & 0x3F));
    }
  }
  return result;
}

/// A text that the library returned as UTF-8; "<null>" for null.
inline std::string utf8(const KoStyleChar* text) {
  return text ? utf8(std::basic_string_view<KoStyleChar>(text)) : "<null>";
}

}  // namespace test
