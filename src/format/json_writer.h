// The writers of documents: RapidJSON's, to a file, without memory of their own.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>

#include "format/json.h"

namespace Tesk::KoStyle {

/// Where a document is put, in blocks that go to a file when they are full.
class FileOutput {
 public:
  using Ch = char;

  explicit FileOutput(std::FILE* file) noexcept : file_(file) {}
  FileOutput(const FileOutput&) = delete;
  FileOutput& operator=(const FileOutput&) = delete;

  void Put(char byte) noexcept {
    if (size_ == sizeof block_) Flush();
    block_[size_++] = byte;
  }

  void putRepeatedly(char byte, std::size_t count) noexcept {
    while (count > 0) {
      if (size_ == sizeof block_) Flush();
      const std::size_t part = std::min(count, sizeof block_ - size_);
      std::memset(block_ + size_, byte, part);
      size_ += part;
      count -= part;
    }
  }

  /// Puts units up to one that needs more than a byte or an escape. Gives where it stands.
  const Char* putPlain(const Char* units, const Char* end) noexcept {
    while (units != end) {
      const bool roomForFour = end - units >= four && sizeof block_ - size_ >= four;
      if (roomForFour && areFourPlain(units)) {
        for (int i = 0; i < four; ++i) block_[size_++] = static_cast<char>(*units++);
      } else if (isPlain(*units)) {
        Put(static_cast<char>(*units++));
      } else {
        break;
      }
    }
    return units;
  }

  /// What goes wrong here goes unreported.
  void Flush() noexcept;

 private:
  static bool isPlain(Char unit) noexcept {
    return unit >= ' ' && unit < 0x80 && unit != '"' && unit != '\\';
  }

  // The same of four units that are looked at as one number. A sum carries into the bit 0x80 of a unit
  // when the unit is not less than what the other part lacks to 0x80.
  static bool areFourPlain(const Char* units) noexcept {
    constexpr std::uint64_t each = 0x0001000100010001;
    std::uint64_t all = 0;
    static_assert(sizeof all == four * sizeof *units);
    std::memcpy(&all, units, sizeof all);
    const auto differsFrom = [all](std::uint64_t unit) { return (all ^ (unit * each)) + 0x7F * each; };
    const std::uint64_t fromSpace = all + (0x80 - ' ') * each;
    const std::uint64_t plain = fromSpace & differsFrom('"') & differsFrom('\\');
    return (all & 0xFF80 * each) == 0 && (plain & 0x80 * each) == 0x80 * each;
  }

  static constexpr int four = 4;

  std::FILE* const file_;
  std::size_t size_ = 0;
  char block_[256];
};

// The writers find these in the place of their own.
inline void PutUnsafe(FileOutput& output, char byte) noexcept { output.Put(byte); }
inline void PutN(FileOutput& output, char byte, std::size_t count) noexcept {
  output.putRepeatedly(byte, count);
}

/// The writers' stack of open objects and arrays. A document is four levels deep at most, so a fixed
/// buffer holds it and writing needs no memory.
class FixedStack {
 public:
  static constexpr bool kNeedFree = false;
  static constexpr std::size_t levels = 8;

  void* Malloc(std::size_t size) noexcept { return size <= sizeof buffer_ ? buffer_ : nullptr; }
  void* Realloc(void*, std::size_t, std::size_t size) noexcept { return Malloc(size); }
  static void Free(void*) noexcept {}

 private:
  alignas(std::max_align_t) unsigned char buffer_[levels * 32];
};

using CompactWriter = rapidjson::Writer<FileOutput, json::Encoding, rapidjson::UTF8<>, FixedStack>;
using IndentingWriter =
    rapidjson::PrettyWriter<FileOutput, json::Encoding, rapidjson::UTF8<>, FixedStack>;

}  // namespace Tesk::KoStyle

namespace rapidjson {

/// The writers call this before each unit that they look at themselves.
template <>
inline bool Tesk::KoStyle::CompactWriter::ScanWriteUnescapedString(
    GenericStringStream<Tesk::KoStyle::json::Encoding>& units, std::size_t length) {
  units.src_ = os_->putPlain(units.src_, units.head_ + length);
  return units.Tell() < length;
}

}  // namespace rapidjson
