// UnitStream: the code units of a style file, for the parser.
//
// The file, which may lie in memory, is read in blocks, and each block is turned into units of the
// file's encoding at once, so that taking a unit costs a comparison and no call. Positions count as the
// parser's own streams count them: the bytes of the file up to and including the unit that is looked at
// next.
//
// The parser adds up a number's exponent and its places after the point in an int, unchecked, and looks
// the sum up in a table. So the stream holds back the digits of an exponent after the ninth and those
// of a fraction after a thousand million: what they say is far beyond double precision by then, and the
// sum stays in range.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <type_traits>

#include "format/file_encoding.h"
#include "platform/text.h"

namespace Tesk::KoStyle {

/// `File` is what a Block is read from.
template <class Unit, class File = std::FILE>
class UnitStream {
 public:
  using Ch = Unit;

  UnitStream(const UnitStream&) = delete;
  UnitStream& operator=(const UnitStream&) = delete;

  /// Goes on where `skipped` bytes of the first block are taken.
  UnitStream(File* file, const Block& first, std::size_t skipped, ByteOrder order) noexcept
      : file_(file), order_(order), bytesBefore_(skipped) {
    load(first, skipped);
  }

  Ch Peek() const noexcept { return *current_; }

  Ch Take() noexcept {
    const Ch taken = *current_;
    if (++current_ == limit_) passLimit();
    return taken;
  }

  std::size_t Tell() const noexcept {
    const std::size_t bytes = static_cast<std::size_t>(current_ - units_ + 1) * sizeof(Unit);
    return bytesBefore_ + (bytes < size_ ? bytes : size_);
  }

  /// The bytes of the file before the unit that is looked at next.
  std::size_t offset() const noexcept {
    const std::size_t bytes = static_cast<std::size_t>(current_ - units_) * sizeof(Unit);
    return bytesBefore_ + (bytes < size_ ? bytes : size_);
  }

  /// Passes over white space. The parser does so before each value, so this is where a number starts.
  void skipWhitespace() noexcept {
    if (*current_ > '9') return;
    while (isWhitespace(*current_)) {
      const Unit* at = current_ + 1;
      while (limit_ - at >= indentSize && std::memcmp(at, indent, sizeof indent) == 0) at += indentSize;
      while (at != limit_ && isWhitespace(*at)) ++at;
      current_ = at;
      if (at == limit_) passLimit();
    }
    if (startsNumber(*current_)) startNumber();
  }

  /// Copies the units from here on that stand for themselves in a string of the document, within the
  /// block. False when there is none.
  template <class Output>
  bool copyPlain(Output& output) {
    const Unit* const end = endOfPlain();
    if (end == current_) return false;
    widen(current_, end, static_cast<Char*>(output.Push(static_cast<unsigned>(end - current_))));
    current_ = end;
    if (end == limit_) passLimit();
    return true;
  }

  // What the parser asks of a stream that it writes to.
  static void Put(Ch) noexcept {}
  static Ch* PutBegin() noexcept { return nullptr; }
  static std::size_t PutEnd(Ch*) noexcept { return 0; }

 private:
  enum class Place { outside, integer, fraction, exponent };

  static constexpr std::size_t exponentDigits = 9;
  static constexpr std::size_t fractionDigits = 1000000000;

  // Most white space is the indentation of a line.
  static constexpr std::ptrdiff_t indentSize = 8;
  static constexpr Unit indent[indentSize] = {' ', ' ', ' ', ' ', ' ', ' ', ' ', ' '};

  static bool isWhitespace(Unit unit) noexcept {
    return unit <= ' ' && (unit == ' ' || unit == '\n' || unit == '\r' || unit == '\t');
  }
  static bool isDigit(Unit unit) noexcept { return unit >= '0' && unit <= '9'; }
  static bool startsNumber(Unit unit) noexcept { return isDigit(unit) || unit == '-'; }
  static bool isPlain(Unit unit) noexcept {
    constexpr std::uint32_t end = sizeof(Unit) == 1 ? 0x80 : 0xD800;
    const auto value = static_cast<std::uint32_t>(static_cast<std::make_unsigned_t<Unit>>(unit));
    return value >= ' ' && value < end && value != '"' && value != '\\';
  }

  const Unit* endOfPlain() const noexcept {
    const Unit* end = current_;
    if constexpr (sizeof(Unit) == 1) {
      while (limit_ - end >= wordSize) {
        const std::ptrdiff_t count = countPlain(end);
        end += count;
        if (count != wordSize) return end;
      }
    }
    while (end != limit_ && isPlain(*end)) ++end;
    return end;
  }

  // How many of the next eight bytes are plain before one is not. What is not plain gets its high bit
  // set; so may bytes behind it, but none before.
  static constexpr std::ptrdiff_t wordSize = sizeof(std::uint64_t);
  static std::ptrdiff_t countPlain(const Unit* units) noexcept {
    constexpr std::uint64_t each = 0x0101010101010101;
    std::uint64_t word = 0;
    std::memcpy(&word, units, sizeof word);
    const std::uint64_t quotes = word ^ each * '"';
    const std::uint64_t backslashes = word ^ each * '\\';
    const std::uint64_t high =
        (word | (word - each * ' ') | (quotes - each) | (backslashes - each)) & each * 0x80;
    if (high == 0) return wordSize;
    const std::uint64_t below = (high & (0 - high)) - 1;
    return static_cast<std::ptrdiff_t>(((below & each) * each) >> 56) - 1;
  }

  static void widen(const Unit* from, const Unit* end, Char* to) noexcept {
    for (; end - from >= wordSize; from += wordSize, to += wordSize) {
      for (std::ptrdiff_t i = 0; i < wordSize; ++i) to[i] = static_cast<Char>(from[i]);
    }
    while (from != end) *to++ = static_cast<Char>(*from++);
  }

  // Turns a block into units. Behind the last unit of the file stands a zero, which never passes.
  void load(const Block& block, std::size_t skipped) noexcept {
    size_ = block.size - skipped;
    isLast_ = block.isLast();
    const unsigned char* const bytes = block.bytes + skipped;
    Unit* end = units_;
    if constexpr (sizeof(Unit) == 1) {
      std::memcpy(units_, bytes, size_);
      end += size_;
    } else {
      for (std::size_t i = 0; i < size_; i += sizeof(Unit)) *end++ = unitAt(bytes + i, size_ - i);
    }
    if (isLast_) *end++ = 0;
    current_ = units_;
    end_ = limit_ = end;
  }

  // Bytes that the file's end cuts off count as zero.
  Unit unitAt(const unsigned char* bytes, std::size_t count) const noexcept {
    std::uint32_t unit = 0;
    for (std::size_t i = 0; i < sizeof(Unit); ++i) {
      const std::size_t place = order_ == ByteOrder::little ? i : sizeof(Unit) - 1 - i;
      if (i < count) unit |= static_cast<std::uint32_t>(bytes[i]) << (8 * place);
    }
    return static_cast<Unit>(unit);
  }

  void loadNext() noexcept {
    bytesBefore_ += size_;
    load(Block(file_), 0);
  }

  void passLimit() noexcept {
    if (limit_ != end_) {
      skipDigits();
    } else if (isLast_) {
      --current_;
    } else {
      loadNext();
      if (place_ != Place::outside) followNumber();
    }
  }

  bool isFull() const noexcept {
    return (place_ == Place::exponent && digits_ == exponentDigits) ||
           (place_ == Place::fraction && digits_ == fractionDigits);
  }

  // Most numbers have no exponent and end in the block: there is nothing to follow.
  void startNumber() noexcept {
    const Unit* at = current_;
    while (at != end_ && *at >= '-' && *at <= '9') ++at;
    if (at != end_ && *at != 'e' && *at != 'E') return;
    place_ = Place::integer;
    followNumber();
  }

  // Looks through the number in the block: sets the limit where digits are to be held back.
  void followNumber() noexcept {
    for (const Unit* at = current_; at != end_; ++at) {
      if (!isDigit(*at)) {
        if (!followMark(*at)) return;
      } else if (!isFull()) {
        const bool leadingZero = place_ == Place::exponent && digits_ == 0 && *at == '0';
        if (!leadingZero) ++digits_;
      } else {
        limit_ = at;
        if (at == current_) skipDigits();
        return;
      }
    }
  }

  // False where the number ends.
  bool followMark(Unit unit) noexcept {
    switch (unit) {
      case '.':
        place_ = Place::fraction;
        digits_ = 0;
        return true;
      case 'e':
      case 'E':
        place_ = Place::exponent;
        digits_ = 0;
        return true;
      case '+':
      case '-':
        return true;
      default:
        place_ = Place::outside;
        return false;
    }
  }

  void skipDigits() noexcept {
    limit_ = end_;
    while (isDigit(*current_)) {
      if (++current_ == end_) loadNext();
    }
    followNumber();
  }

  File* const file_;
  const ByteOrder order_;
  std::size_t bytesBefore_;  // of earlier blocks, and of a byte-order mark
  std::size_t size_ = 0;     // of this block, in bytes
  bool isLast_ = false;
  Place place_ = Place::outside;
  std::size_t digits_ = 0;
  const Unit* current_ = units_;
  const Unit* limit_ = units_;  // where taking a unit takes more than moving on
  const Unit* end_ = units_;
  Unit units_[blockSize / sizeof(Unit) + 1] = {};
};

/// The parser finds this in the place of its own.
template <class Unit, class File>
void SkipWhitespace(UnitStream<Unit, File>& stream) noexcept {
  stream.skipWhitespace();
}

}  // namespace Tesk::KoStyle
