// SourceText: the bytes of a style file, and which characters they are. Nothing is normalised: every
// place is an offset into the bytes, so that what is found at one can be shown and replaced exactly.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "format/file_encoding.h"

namespace tool {

/// Bytes of a file, the end excluded.
struct Span {
  std::uint32_t begin = 0;
  std::uint32_t end = 0;

  std::size_t size() const { return end - begin; }
  friend bool operator==(Span a, Span b) { return a.begin == b.begin && a.end == b.end; }
};

/// Both count from 1, columns in characters. Lines end at \n, \r\n and \r.
struct Position {
  std::size_t line = 1;
  std::size_t column = 1;
};

/// A character and how many bytes it takes. Where bytes are none in the encoding, a surrogate stands
/// for them, as in basics/text.h.
struct Character {
  char32_t codePoint = 0;
  std::size_t size = 0;
};

class SourceText {
 public:
  /// What a Span can count.
  static constexpr std::size_t maxSize = UINT32_MAX;

  /// Throws Refused when there is more than that.
  explicit SourceText(std::string bytes);

  std::string_view bytes() const { return bytes_; }
  std::string_view bytes(Span span) const { return bytes().substr(span.begin, span.size()); }

  const Tesk::KoStyle::FileEncoding& encoding() const { return encoding_; }
  const char* encodingName() const;

  /// Where the document begins, behind a byte-order mark.
  std::size_t begin() const { return encoding_.markSize; }
  std::size_t end() const { return bytes_.size(); }

  /// The character at an offset before the end.
  Character at(std::size_t offset) const;

  /// The start of the character before an offset behind the beginning.
  std::size_t before(std::size_t offset) const;

  /// Any offset, also the end and one within a character, which counts as its start.
  Position position(std::size_t offset) const;

  /// As UTF-8, whatever the file is.
  std::string utf8(Span span) const;

  /// UTF-8 text as bytes of the file's encoding, without a mark.
  std::string encoded(std::string_view utf8) const;

 private:
  struct Checkpoint {
    std::size_t offset;
    Position position;
  };

  std::uint32_t unitAt(std::size_t offset) const;
  std::size_t step(std::size_t offset, Position& position) const;

  std::string bytes_;
  Tesk::KoStyle::FileEncoding encoding_;
  std::vector<Checkpoint> checkpoints_;  // so that no position takes a walk through the whole file
};

}  // namespace tool
