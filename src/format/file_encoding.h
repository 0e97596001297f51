// FileEncoding: how the units of a style file are written, found out from its first bytes.
#pragma once

#include <cstddef>

#include "format/unit_stream.h"

namespace Tesk::KoStyle {

struct FileEncoding {
  std::size_t unitSize = 1;
  ByteOrder order = ByteOrder::little;
  std::size_t markSize = 0;  // of the byte-order mark, which is no part of the document

  /// By the byte-order mark, or else by which of the first four bytes are zero.
  static FileEncoding of(const Block& firstBlock) noexcept;
};

}  // namespace Tesk::KoStyle
