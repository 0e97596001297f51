// FileEncoding: how the units of a style file are written, found out from its first bytes.
#pragma once

#include <cstddef>
#include <cstdio>
#include <string_view>

namespace Tesk::KoStyle {

inline constexpr std::size_t blockSize = 256;

/// A file's content in memory, from what was not read yet on.
struct BytesInMemory {
  std::string_view rest;
};

/// What is read of a file at once.
struct Block {
  explicit Block(std::FILE* file) noexcept : size(std::fread(bytes, 1, blockSize, file)) {}
  explicit Block(BytesInMemory* memory) noexcept
      : size(memory->rest.copy(reinterpret_cast<char*>(bytes), blockSize)) {
    memory->rest.remove_prefix(size);
  }

  bool isLast() const noexcept { return size < blockSize; }

  unsigned char bytes[blockSize];
  std::size_t size;
};

enum class ByteOrder { little, big };

struct FileEncoding {
  std::size_t unitSize = 1;
  ByteOrder order = ByteOrder::little;
  std::size_t markSize = 0;  // of the byte-order mark, which is no part of the document

  /// By the byte-order mark, or else by which of the first four bytes are zero.
  static FileEncoding of(const Block& firstBlock) noexcept;
};

}  // namespace Tesk::KoStyle
