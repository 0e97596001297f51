#include "platform/posix_names.h"

#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace Tesk::KoStyle::platform {
namespace {

constexpr std::uint32_t strayByteBase = 0xDC00;

struct Sequence {
  std::size_t length;  // 0 when the bytes do not start with a valid sequence
  std::uint32_t codePoint;
};

// Refuses overlong forms, surrogates and code points past U+10FFFF.
Sequence decodeSequence(std::string_view bytes) {
  const auto byteAt = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  const std::uint32_t lead = byteAt(0);
  if (lead < 0x80) return {1, lead};
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || bytes.size() < length) return {0, 0};
  std::uint32_t codePoint = lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if ((byteAt(i) & 0xC0) != 0x80) return {0, 0};
    codePoint = codePoint << 6 | (byteAt(i) & 0x3FU);
  }
  constexpr std::uint32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
  const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
  if (codePoint < smallest[length] || codePoint > 0x10FFFF || surrogate) return {0, 0};
  return {length, codePoint};
}

void appendCodePoint(Text& text, std::uint32_t codePoint) {
  if (codePoint < 0x10000) {
    text += static_cast<Char>(codePoint);
    return;
  }
  text += static_cast<Char>(0xD800 + ((codePoint - 0x10000) >> 10));
  text += static_cast<Char>(0xDC00 + ((codePoint - 0x10000) & 0x3FF));
}

void appendUtf8(std::string& bytes, std::uint32_t codePoint) {
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

// How many units at the start are ASCII, which means the same on both sides. Most names are nothing
// else.
template <class View>
std::size_t countAscii(View name) {
  std::size_t count = 0;
  using Unit = std::make_unsigned_t<typename View::value_type>;
  while (count < name.size() && static_cast<Unit>(name[count]) < 0x80) ++count;
  return count;
}

bool isHighSurrogate(std::uint32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool isLowSurrogate(std::uint32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }
bool isStrayByte(std::uint32_t unit) {
  return unit >= strayByteBase + 0x80 && unit <= strayByteBase + 0xFF;
}

}  // namespace

Text textFromName(std::string_view name) {
  const std::string_view ascii = name.substr(0, countAscii(name));
  Text text(ascii.begin(), ascii.end());
  text.reserve(name.size());
  name.remove_prefix(ascii.size());
  while (!name.empty()) {
    const Sequence sequence = decodeSequence(name);
    if (sequence.length == 0) {
      text += static_cast<Char>(strayByteBase + static_cast<unsigned char>(name.front()));
      name.remove_prefix(1);
    } else {
      appendCodePoint(text, sequence.codePoint);
      name.remove_prefix(sequence.length);
    }
  }
  return text;
}

std::optional<std::string> nameFromText(TextView text) {
  const TextView ascii = text.substr(0, countAscii(text));
  std::string bytes(ascii.begin(), ascii.end());
  bytes.reserve(text.size());
  for (std::size_t i = bytes.size(); i < text.size(); ++i) {
    const std::uint32_t unit = text[i];
    if (isHighSurrogate(unit) && i + 1 < text.size() && isLowSurrogate(text[i + 1])) {
      appendUtf8(bytes, 0x10000 + ((unit - 0xD800) << 10) + (text[++i] - 0xDC00U));
    } else if (isStrayByte(unit)) {
      bytes += static_cast<char>(unit - strayByteBase);
    } else if (isHighSurrogate(unit) || isLowSurrogate(unit)) {
      return std::nullopt;
    } else {
      appendUtf8(bytes, unit);
    }
  }
  return bytes;
}

}  // namespace Tesk::KoStyle::platform
