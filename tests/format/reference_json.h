// A second, simple reader of JSON, to compare the library's with. It knows nothing of styles.
//
// What it states of its own: a unit of zero ends the input; a file of less than four bytes is UTF-8
// and has no mark; an incomplete last unit is filled up with zeros; a lone low surrogate is kept where
// it is an escape, and any surrogate where it is a code point of UTF-32; more than 512 levels are
// refused; numbers past double precision are refused, and those with an exponent of more than 308 and
// the fraction digits that count, which are as many as make 18 significant digits (17 below one).
#pragma once

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "support/encodings.h"

namespace test::reference {

struct Value {
  enum Kind { null, boolean, integer, longInteger, real, string, array, object };
  Kind kind = null;
  std::int32_t integerValue = 0;
  double realValue = 0;
  bool exact = true;  // whether every correct reader gives this very realValue
  Text text;
  std::vector<Value> elements;
  std::vector<Text> keys;  // of an object, one for each element

  /// The first member with a key.
  const Value* member(std::string_view key) const {
    for (std::size_t i = 0; i < keys.size(); ++i) {
      if (keys[i] == test::text(key)) return &elements[i];
    }
    return nullptr;
  }
};

/// Stands for whatever is no character in the encoding.
inline constexpr char32_t noCharacter = 0xFFFFFFFF;

inline bool startsWith(std::string_view bytes, std::string_view start) {
  return bytes.substr(0, start.size()) == start;
}

/// The encoding of a file; takes a mark away.
inline Encoding detect(std::string_view& bytes) {
  if (bytes.size() < 4) return Encoding::utf8;
  for (const Encoding encoding :
       {Encoding::utf32le, Encoding::utf32be, Encoding::utf16le, Encoding::utf16be, Encoding::utf8}) {
    const std::string mark = encoded(U"", encoding, true);
    if (!startsWith(bytes, mark)) continue;
    bytes.remove_prefix(mark.size());
    return encoding;
  }
  std::string pattern;
  for (const char byte : bytes.substr(0, 4)) pattern += byte == 0 ? '0' : 'x';
  if (pattern == "x0x0") return Encoding::utf16le;
  if (pattern == "0x0x") return Encoding::utf16be;
  if (pattern == "x000") return Encoding::utf32le;
  if (pattern == "000x") return Encoding::utf32be;
  return Encoding::utf8;
}

/// The units of a file up to the first that is zero.
inline std::vector<std::uint32_t> unitsOf(std::string_view bytes, Encoding encoding) {
  const std::size_t size = unitSize(encoding);
  const bool big = encoding == Encoding::utf16be || encoding == Encoding::utf32be;
  std::vector<std::uint32_t> units;
  for (std::size_t i = 0; i < bytes.size(); i += size) {
    std::uint32_t unit = 0;
    for (std::size_t j = 0; j < size; ++j) {
      const std::uint32_t byte = i + j < bytes.size() ? static_cast<unsigned char>(bytes[i + j]) : 0;
      unit |= byte << 8 * (big ? size - 1 - j : j);
    }
    if (unit == 0) break;
    units.push_back(unit);
  }
  return units;
}

inline bool isSurrogate(std::uint32_t unit, std::uint32_t base) { return unit - base < 0x400; }

inline char32_t takeUtf8(const std::vector<std::uint32_t>& units, std::size_t& i) {
  const std::uint32_t lead = units[i++];
  if (lead < 0x80) return lead;
  const std::size_t trailing = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
  if (lead < 0xC0 || lead > 0xF7 || units.size() - i < trailing) return noCharacter;
  std::uint32_t codePoint = lead & (0x3Fu >> trailing);
  for (std::size_t j = 0; j < trailing; ++j, ++i) {
    if ((units[i] & 0xC0) != 0x80) return noCharacter;
    codePoint = codePoint << 6 | (units[i] & 0x3F);
  }
  const std::uint32_t smallest[] = {0, 0x80, 0x800, 0x10000};
  const bool refused = codePoint < smallest[trailing] || codePoint > 0x10FFFF ||
                       isSurrogate(codePoint, 0xD800) || isSurrogate(codePoint, 0xDC00);
  return refused ? noCharacter : codePoint;
}

inline char32_t takeUtf16(const std::vector<std::uint32_t>& units, std::size_t& i) {
  const std::uint32_t unit = units[i++];
  if (isSurrogate(unit, 0xDC00)) return noCharacter;
  if (!isSurrogate(unit, 0xD800)) return unit;
  if (i == units.size() || !isSurrogate(units[i], 0xDC00)) return noCharacter;
  return 0x10000 + ((unit - 0xD800) << 10) + (units[i++] - 0xDC00);
}

inline std::u32string charactersOf(std::string_view bytes) {
  const Encoding encoding = detect(bytes);
  const std::vector<std::uint32_t> units = unitsOf(bytes, encoding);
  std::u32string characters;
  for (std::size_t i = 0; i < units.size();) {
    if (unitSize(encoding) == 1) {
      characters += takeUtf8(units, i);
    } else if (unitSize(encoding) == 2) {
      characters += takeUtf16(units, i);
    } else {
      const std::uint32_t unit = units[i++];
      characters += unit > 0x10FFFF ? noCharacter : unit;
    }
  }
  return characters;
}

class Parser {
 public:
  explicit Parser(std::u32string characters) : characters_(std::move(characters)) {}

  std::optional<Value> parse() {
    Value root;
    space();
    if (!value(root, 1)) return std::nullopt;
    space();
    return at_ == characters_.size() ? std::optional<Value>(std::move(root)) : std::nullopt;
  }

 private:
  char32_t peek() const { return at_ < characters_.size() ? characters_[at_] : U'\0'; }
  bool take(char32_t character) {
    const bool here = peek() == character;
    at_ += here;
    return here;
  }
  bool isDigit() const { return peek() >= U'0' && peek() <= U'9'; }
  void space() {
    while (take(U' ') || take(U'\t') || take(U'\n') || take(U'\r')) {
    }
  }
  bool word(std::u32string_view word) {
    for (const char32_t character : word) {
      if (!take(character)) return false;
    }
    return true;
  }

  bool value(Value& value, int level) {
    switch (peek()) {
      case U'n':
        return word(U"null");
      case U't':
        value.kind = Value::boolean;
        return word(U"true");
      case U'f':
        value.kind = Value::boolean;
        return word(U"false");
      case U'"':
        value.kind = Value::string;
        return text(value.text);
      case U'[':
        return level <= 512 && list(value, level, U']');
      case U'{':
        return level <= 512 && list(value, level, U'}');
      default:
        return number(value);
    }
  }

  bool list(Value& list, int level, char32_t end) {
    list.kind = end == U'}' ? Value::object : Value::array;
    ++at_;
    space();
    if (take(end)) return true;
    for (;;) {
      if (list.kind == Value::object) {
        if (!text(list.keys.emplace_back())) return false;
        space();
        if (!take(U':')) return false;
        space();
      }
      if (!value(list.elements.emplace_back(), level + 1)) return false;
      space();
      if (take(end)) return true;
      if (!take(U',')) return false;
      space();
    }
  }

  static void append(Text& text, std::uint32_t codePoint) {
    if (codePoint < 0x10000) {
      text += static_cast<KoStyleChar>(codePoint);
    } else {
      text += static_cast<KoStyleChar>(0xD800 + ((codePoint - 0x10000) >> 10));
      text += static_cast<KoStyleChar>(0xDC00 + (codePoint & 0x3FF));
    }
  }

  bool text(Text& text) {
    if (!take(U'"')) return false;
    for (;;) {
      if (take(U'"')) return true;
      if (take(U'\\')) {
        if (!escape(text)) return false;
      } else {
        const char32_t character = peek();
        if (character < 0x20 || character == noCharacter) return false;
        append(text, character);
        ++at_;
      }
    }
  }

  bool escape(Text& text) {
    const std::u32string_view letters = U"\"\\/bfnrt";
    const std::size_t letter = letters.find(peek());
    if (peek() != 0 && letter != letters.npos) {
      append(text, static_cast<std::uint32_t>("\"\\/\b\f\n\r\t"[letter]));
      ++at_;
      return true;
    }
    std::uint32_t unit = 0;
    if (!take(U'u') || !hexadecimal(unit)) return false;
    append(text, unit);
    if (!isSurrogate(unit, 0xD800)) return true;
    if (!take(U'\\') || !take(U'u') || !hexadecimal(unit) || !isSurrogate(unit, 0xDC00)) return false;
    append(text, unit);
    return true;
  }

  bool hexadecimal(std::uint32_t& unit) {
    unit = 0;
    for (int i = 0; i < 4; ++i, ++at_) {
      const std::size_t digit = std::u32string_view(U"0123456789abcdefABCDEF").find(peek());
      if (peek() == 0 || digit > 21) return false;
      unit = unit * 16 + static_cast<std::uint32_t>(digit > 15 ? digit - 6 : digit);
    }
    return true;
  }

  std::string digits() {
    std::string digits;
    for (; isDigit(); ++at_) digits += static_cast<char>(peek());
    return digits;
  }

  bool number(Value& value);

  std::u32string characters_;
  std::size_t at_ = 0;
};

inline std::string_view withoutLeadingZeros(std::string_view digits) {
  const std::size_t first = digits.find_first_not_of('0');
  return first == digits.npos ? std::string_view() : digits.substr(first);
}

/// Whether a number without leading zeros is at most another.
inline bool atMost(std::string_view digits, std::string_view limit) {
  return digits.size() < limit.size() || (digits.size() == limit.size() && digits <= limit);
}

/// How many digits of a fraction count, as the header says.
inline std::size_t countedDigits(std::string_view whole, std::string_view fraction) {
  std::size_t significant = whole == "0" ? 0 : whole.size() - 1;
  std::size_t counted = 0;
  bool leading = whole == "0";
  while (counted < fraction.size() && significant < 17) {
    leading = leading && fraction[counted] == '0';
    if (!leading) ++significant;
    ++counted;
  }
  return counted;
}

/// 10^n for n up to 22, where it is a double.
inline double powerOfTen(long n) {
  double power = 1;
  while (n-- > 0) power *= 10;
  return power;
}

inline bool Parser::number(Value& value) {
  const std::size_t start = at_;
  const bool negative = take(U'-');
  if (!isDigit()) return false;
  const std::string whole = take(U'0') ? "0" : digits();
  const bool hasFraction = take(U'.');
  const std::string fraction = hasFraction ? digits() : "";
  if (hasFraction && fraction.empty()) return false;
  const bool hasExponent = take(U'e') || take(U'E');
  const bool divides = hasExponent && (take(U'-') || (take(U'+'), false));
  const std::string exponent = hasExponent ? digits() : "";
  if (hasExponent && exponent.empty()) return false;

  const bool within64 = atMost(whole, negative ? "9223372036854775808" : "18446744073709551615");
  if (!hasFraction && !hasExponent && within64) {
    const bool within32 = atMost(whole, negative ? "2147483648" : "2147483647");
    value.kind = within32 ? Value::integer : Value::longInteger;
    if (within32)
      value.integerValue = static_cast<std::int32_t>(std::stoll((negative ? "-" : "") + whole));
    return true;
  }
  constexpr double tenthOfLargest = 1.7976931348623157e307;
  if (std::strtod(whole.substr(0, whole.size() - 1).c_str(), nullptr) >= tenthOfLargest) return false;
  const std::string_view power = withoutLeadingZeros(exponent);
  const std::string limit = std::to_string(308 + countedDigits(whole, fraction));
  if (!divides && !atMost(power, limit)) return false;

  value.kind = Value::real;
  const std::string all = whole + fraction;
  const std::string_view mantissa = withoutLeadingZeros(all);
  const long shift = power.size() > 6 ? -1000000
                                      : (divides ? -1 : 1) * std::atol(std::string(power).c_str()) -
                                            static_cast<long>(fraction.size());
  value.exact = mantissa.size() <= 15 && -22 <= shift && shift <= 22;
  if (value.exact) {
    const double scaled = std::strtod(std::string(mantissa).c_str(), nullptr);
    value.realValue = shift < 0 ? scaled / powerOfTen(-shift) : scaled * powerOfTen(shift);
    if (negative) value.realValue = -value.realValue;
  } else {
    const std::u32string_view written = std::u32string_view(characters_).substr(start, at_ - start);
    value.realValue = std::strtod(std::string(written.begin(), written.end()).c_str(), nullptr);
  }
  return true;
}

}  // namespace test::reference
