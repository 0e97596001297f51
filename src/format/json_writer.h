// The writers of documents: RapidJSON's, to a file, without memory of their own.
#pragma once

#include <algorithm>
#include <cstddef>
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
    while (units != end && isPlain(*units)) {
      if (size_ == sizeof block_) Flush();
      const std::size_t room = std::min(static_cast<std::size_t>(end - units), sizeof block_ - size_);
      char* to = block_ + size_;
      const Char* const stop = units + room;
      while (units != stop && isPlain(*units)) *to++ = static_cast<char>(*units++);
      size_ = static_cast<std::size_t>(to - block_);
    }
    return units;
  }

  /// What goes wrong here goes unreported.
  void Flush() noexcept;

 private:
  static bool isPlain(Char unit) noexcept {
    return unit >= ' ' && unit < 0x80 && unit != '"' && unit != '\\';
  }

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
