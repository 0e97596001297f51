#include "format/file_encoding.h"

#include <array>

namespace Tesk::KoStyle {
namespace {

struct Mark {
  std::string_view bytes;
  FileEncoding encoding;
};

// The longer marks come first, because one of them starts like a shorter one.
constexpr std::array<Mark, 5> marks = {{
    {{"\x00\x00\xFE\xFF", 4}, {4, ByteOrder::big, 4}},
    {{"\xFF\xFE\x00\x00", 4}, {4, ByteOrder::little, 4}},
    {{"\xFE\xFF", 2}, {2, ByteOrder::big, 2}},
    {{"\xFF\xFE", 2}, {2, ByteOrder::little, 2}},
    {{"\xEF\xBB\xBF", 3}, {1, ByteOrder::little, 3}},
}};

// The first two characters of a document are ASCII, so the zero bytes around them tell the encoding.
FileEncoding ofZeroBytes(const unsigned char* bytes) noexcept {
  const auto are = [bytes](bool first, bool second, bool third, bool fourth) {
    return (bytes[0] != 0) == first && (bytes[1] != 0) == second && (bytes[2] != 0) == third &&
           (bytes[3] != 0) == fourth;
  };
  if (are(false, false, false, true)) return {4, ByteOrder::big, 0};
  if (are(true, false, false, false)) return {4, ByteOrder::little, 0};
  if (are(false, true, false, true)) return {2, ByteOrder::big, 0};
  if (are(true, false, true, false)) return {2, ByteOrder::little, 0};
  return {};
}

}  // namespace

FileEncoding FileEncoding::of(const Block& firstBlock) noexcept {
  constexpr std::size_t bytesLookedAt = 4;
  if (firstBlock.size < bytesLookedAt) return {};
  const std::string_view start(reinterpret_cast<const char*>(firstBlock.bytes), bytesLookedAt);
  for (const Mark& mark : marks) {
    if (start.substr(0, mark.bytes.size()) == mark.bytes) return mark.encoding;
  }
  return ofZeroBytes(firstBlock.bytes);
}

}  // namespace Tesk::KoStyle
