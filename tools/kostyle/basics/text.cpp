#include "basics/text.h"

#include <fmt/core.h>

#include <cstddef>
#include <cstdint>
#include <iterator>

#include "basics/surrogates.h"

namespace tool {
namespace {

constexpr char32_t strayByteBase = 0xDC00;
constexpr char32_t replacement = 0xFFFD;

bool isSurrogate(char32_t unit) { return isHighSurrogate(unit) || isLowSurrogate(unit); }

// The length of the sequence that a byte leads; 0 when none does.
std::size_t sequenceLength(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead < 0xC2 || lead > 0xF4) return 0;
  return lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

void appendUtf8(std::string& bytes, char32_t codePoint) {
  const auto trail = [&](unsigned shift) {
    return static_cast<char>(0x80 | (codePoint >> shift & 0x3F));
  };
  if (codePoint < 0x80) {
    bytes += static_cast<char>(codePoint);
  } else if (codePoint < 0x800) {
    bytes += {static_cast<char>(0xC0 | codePoint >> 6), trail(0)};
  } else if (codePoint < 0x10000) {
    bytes += {static_cast<char>(0xE0 | codePoint >> 12), trail(6), trail(0)};
  } else {
    bytes += {static_cast<char>(0xF0 | codePoint >> 18), trail(12), trail(6), trail(0)};
  }
}

// Takes the first code point off `text`, which is not empty; a lone surrogate as it is.
char32_t takeUnits(TextView& text) {
  const char32_t first = text.front();
  text.remove_prefix(1);
  if (!isHighSurrogate(first) || text.empty()) return first;
  const char32_t second = text.front();
  if (!isLowSurrogate(second)) return first;
  text.remove_prefix(1);
  return fromSurrogates(first, second);
}

bool isIn(char32_t codePoint, char32_t first, char32_t last) {
  return codePoint >= first && codePoint <= last;
}

bool isControl(char32_t codePoint) {
  return codePoint < 0x20 || isIn(codePoint, 0x7F, 0x9F) || codePoint == 0x61C ||
         isIn(codePoint, 0x200E, 0x200F) || isIn(codePoint, 0x2028, 0x202E) ||
         isIn(codePoint, 0x2066, 0x2069) || codePoint == 0xFEFF;
}

// A byte that is no UTF-8, but that some terminals obey.
bool isStrayControl(char32_t codePoint) {
  return isIn(codePoint, strayByteBase + 0x80, strayByteBase + 0x9F);
}

std::string escaped(std::string_view utf8, std::string_view alsoEscaped) {
  std::string result;
  while (!utf8.empty()) {
    const std::string_view rest = utf8;
    const char32_t codePoint = takeCodePoint(utf8);
    const std::string_view bytes = rest.substr(0, rest.size() - utf8.size());
    if (isControl(codePoint)) {
      fmt::format_to(std::back_inserter(result), "\\u{:04x}", static_cast<std::uint32_t>(codePoint));
    } else if (isStrayControl(codePoint)) {
      fmt::format_to(std::back_inserter(result), "\\x{:02x}",
                     static_cast<std::uint32_t>(codePoint - strayByteBase));
    } else {
      if (alsoEscaped.find(bytes.front()) != alsoEscaped.npos) result += '\\';
      result += bytes;
    }
  }
  return result;
}

}  // namespace

char32_t takeCodePoint(std::string_view& utf8) {
  const auto lead = static_cast<unsigned char>(utf8.front());
  const std::size_t length = sequenceLength(lead);
  char32_t codePoint = length > 1 ? lead & (0x7FU >> length) : lead;
  bool valid = length > 0 && length <= utf8.size();
  for (std::size_t i = 1; valid && i < length; ++i) {
    const auto trail = static_cast<unsigned char>(utf8[i]);
    valid = (trail & 0xC0) == 0x80;
    codePoint = codePoint << 6 | (trail & 0x3FU);
  }
  constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
  valid = valid && codePoint >= smallest[length] && codePoint <= 0x10FFFF && !isSurrogate(codePoint);
  utf8.remove_prefix(valid ? length : 1);
  return valid ? codePoint : strayByteBase + lead;
}

bool isUtf8(std::string_view bytes) {
  while (!bytes.empty())
    if (isSurrogate(takeCodePoint(bytes))) return false;
  return true;
}

bool isUnicode(TextView text) {
  while (!text.empty())
    if (isSurrogate(takeUnits(text))) return false;
  return true;
}

void append(Text& text, char32_t codePoint) {
  if (codePoint < 0x10000) {
    text += static_cast<KoStyleChar>(codePoint);
  } else {
    text += static_cast<KoStyleChar>(0xD800 + ((codePoint - 0x10000) >> 10));
    text += static_cast<KoStyleChar>(0xDC00 + ((codePoint - 0x10000) & 0x3FF));
  }
}

Text fromUtf8(std::string_view bytes) {
  Text text;
  while (!bytes.empty()) append(text, takeCodePoint(bytes));
  return text;
}

std::string toUtf8(TextView text) {
  std::string bytes;
  while (!text.empty()) {
    const char32_t codePoint = takeUnits(text);
    appendUtf8(bytes, isSurrogate(codePoint) ? replacement : codePoint);
  }
  return bytes;
}

std::string pathToUtf8(TextView path) {
#if defined(_WIN32)
  return toUtf8(path);
#else
  std::string bytes;
  while (!path.empty()) {
    const char32_t codePoint = takeUnits(path);
    if (codePoint >= strayByteBase + 0x80 && codePoint <= strayByteBase + 0xFF) {
      bytes += static_cast<char>(static_cast<std::uint32_t>(codePoint - strayByteBase));
    } else {
      appendUtf8(bytes, isSurrogate(codePoint) ? replacement : codePoint);
    }
  }
  return bytes;
#endif
}

std::string printable(std::string_view utf8) { return escaped(utf8, ""); }

std::string inQuotes(std::string_view utf8) { return '"' + escaped(utf8, "\"\\") + '"'; }

}  // namespace tool
