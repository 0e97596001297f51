// Documents in the encodings that a style file may have.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "support/text.h"

namespace test {

enum class Encoding { utf8, utf16le, utf16be, utf32le, utf32be };

inline const std::vector<Encoding>& allEncodings() {
  static const std::vector<Encoding> all{Encoding::utf8, Encoding::utf16le, Encoding::utf16be,
                                         Encoding::utf32le, Encoding::utf32be};
  return all;
}

inline const char* nameOf(Encoding encoding) {
  static const char* const names[] = {"UTF-8", "UTF-16LE", "UTF-16BE", "UTF-32LE", "UTF-32BE"};
  return names[static_cast<int>(encoding)];
}

inline std::size_t unitSize(Encoding encoding) {
  return encoding == Encoding::utf8 ? 1 : encoding <= Encoding::utf16be ? 2 : 4;
}

/// Appends a code point as it would be encoded, surrogates and numbers past U+10FFFF too.
inline void appendEncoded(std::string& bytes, std::uint32_t codePoint, Encoding encoding) {
  const auto put = [&](std::uint32_t byte) { bytes += static_cast<char>(byte & 0xFF); };
  const auto putUnit = [&](std::uint32_t unit, unsigned size, bool little) {
    for (unsigned i = 0; i < size; ++i) put(unit >> 8 * (little ? i : size - 1 - i));
  };
  switch (encoding) {
    case Encoding::utf8:
      if (codePoint < 0x80) {
        put(codePoint);
      } else if (codePoint < 0x800) {
        put(0xC0 | codePoint >> 6), put(0x80 | (codePoint & 0x3F));
      } else if (codePoint < 0x10000) {
        put(0xE0 | codePoint >> 12), put(0x80 | (codePoint >> 6 & 0x3F));
        put(0x80 | (codePoint & 0x3F));
      } else {
        put(0xF0 | codePoint >> 18), put(0x80 | (codePoint >> 12 & 0x3F));
        put(0x80 | (codePoint >> 6 & 0x3F)), put(0x80 | (codePoint & 0x3F));
      }
      break;
    case Encoding::utf16le:
    case Encoding::utf16be: {
      const bool little = encoding == Encoding::utf16le;
      if (codePoint < 0x10000) {
        putUnit(codePoint, 2, little);
      } else {
        putUnit(0xD800 + ((codePoint - 0x10000) >> 10), 2, little);
        putUnit(0xDC00 + ((codePoint - 0x10000) & 0x3FF), 2, little);
      }
      break;
    }
    case Encoding::utf32le:
    case Encoding::utf32be:
      putUnit(codePoint, 4, encoding == Encoding::utf32le);
      break;
  }
}

inline std::string encoded(std::u32string_view codePoints, Encoding encoding, bool mark = false) {
  std::string bytes;
  if (mark) appendEncoded(bytes, 0xFEFF, encoding);
  for (const char32_t codePoint : codePoints) appendEncoded(bytes, codePoint, encoding);
  return bytes;
}

inline std::u32string codePointsOf(std::string_view utf8) {
  std::u32string codePoints;
  const Text units = text(utf8);
  for (std::size_t i = 0; i < units.size(); ++i) {
    const std::uint32_t unit = units[i];
    const bool pair = unit >= 0xD800 && unit < 0xDC00 && i + 1 < units.size();
    codePoints += pair ? 0x10000 + ((unit - 0xD800) << 10) + (units[++i] - 0xDC00u) : unit;
  }
  return codePoints;
}

inline std::string encoded(std::string_view utf8, Encoding encoding, bool mark = false) {
  return encoded(codePointsOf(utf8), encoding, mark);
}

}  // namespace test
