#include "document/source_text.h"

#include <algorithm>
#include <utility>

#include "basics/failure.h"
#include "basics/surrogates.h"
#include "basics/text.h"

namespace tool {
namespace {

using Tesk::KoStyle::Block;
using Tesk::KoStyle::ByteOrder;
using Tesk::KoStyle::BytesInMemory;
using Tesk::KoStyle::FileEncoding;

constexpr std::size_t checkpointDistance = 1024;

FileEncoding encodingOf(std::string_view bytes) {
  BytesInMemory memory{bytes};
  return FileEncoding::of(Block(&memory));
}

}  // namespace

SourceText::SourceText(std::string bytes) : bytes_(std::move(bytes)) {
  if (bytes_.size() > maxSize) throw Refused("the file is too large");
  encoding_ = encodingOf(bytes_);
  Position position;
  std::size_t next = begin();
  for (std::size_t offset = begin(); offset < end(); offset += step(offset, position)) {
    if (offset < next) continue;
    checkpoints_.push_back({offset, position});
    next = offset + checkpointDistance;
  }
}

const char* SourceText::encodingName() const {
  const bool little = encoding_.order == ByteOrder::little;
  switch (encoding_.unitSize) {
    case 4:
      return little ? "UTF-32LE" : "UTF-32BE";
    case 2:
      return little ? "UTF-16LE" : "UTF-16BE";
    default:
      return "UTF-8";
  }
}

// Bytes that the file's end cuts off count as zero.
std::uint32_t SourceText::unitAt(std::size_t offset) const {
  const std::size_t size = encoding_.unitSize;
  std::uint32_t unit = 0;
  for (std::size_t i = 0; i < size && offset + i < end(); ++i) {
    const std::size_t place = encoding_.order == ByteOrder::little ? i : size - 1 - i;
    unit |= std::uint32_t{static_cast<unsigned char>(bytes_[offset + i])} << (8 * place);
  }
  return unit;
}

Character SourceText::at(std::size_t offset) const {
  const std::size_t left = end() - offset;
  const std::size_t unitSize = encoding_.unitSize;
  if (unitSize == 1) {
    std::string_view rest = bytes().substr(offset);
    const char32_t codePoint = takeCodePoint(rest);
    return {codePoint, left - rest.size()};
  }
  const char32_t unit = unitAt(offset);
  if (unitSize == 2 && isHighSurrogate(unit) && left >= 2 * unitSize) {
    const char32_t second = unitAt(offset + unitSize);
    if (isLowSurrogate(second)) return {fromSurrogates(unit, second), 2 * unitSize};
  }
  constexpr char32_t noCharacter = 0xDFFF;
  return {unit > 0x10FFFF ? noCharacter : unit, std::min(unitSize, left)};
}

std::size_t SourceText::before(std::size_t offset) const {
  const std::size_t unitSize = encoding_.unitSize;
  constexpr std::size_t mostUnits = 4;
  for (std::size_t units = mostUnits; units > 1; --units) {
    const std::size_t size = units * unitSize;
    if (offset - begin() < size) continue;
    if (at(offset - size).size == size) return offset - size;
  }
  return offset - std::min(unitSize, offset - begin());
}

// Passes over the character at an offset; gives its size.
std::size_t SourceText::step(std::size_t offset, Position& position) const {
  const Character character = at(offset);
  const std::size_t next = offset + character.size;
  const bool inLineEnd = character.codePoint == U'\r' && next < end() && at(next).codePoint == U'\n';
  if ((character.codePoint == U'\n' || character.codePoint == U'\r') && !inLineEnd) {
    ++position.line;
    position.column = 1;
  } else {
    ++position.column;
  }
  return character.size;
}

Position SourceText::position(std::size_t offset) const {
  const auto isBehind = [](std::size_t value, const Checkpoint& checkpoint) {
    return value < checkpoint.offset;
  };
  const auto behind = std::upper_bound(checkpoints_.begin(), checkpoints_.end(), offset, isBehind);
  if (behind == checkpoints_.begin()) return {};
  Position position = behind[-1].position;
  for (std::size_t at = behind[-1].offset; at < offset && at < end();) {
    Position next = position;
    at += step(at, next);
    if (at <= offset) position = next;
  }
  return position;
}

std::string SourceText::utf8(Span span) const {
  Text text;
  for (std::size_t offset = span.begin; offset < span.end;) {
    const Character character = at(offset);
    append(text, character.codePoint);
    offset += character.size;
  }
  return toUtf8(text);
}

std::string SourceText::encoded(std::string_view utf8) const {
  if (encoding_.unitSize == 1) return std::string(utf8);
  std::string result;
  const auto put = [&](std::uint32_t unit) {
    const std::size_t size = encoding_.unitSize;
    for (std::size_t i = 0; i < size; ++i) {
      const std::size_t place = encoding_.order == ByteOrder::little ? i : size - 1 - i;
      result += static_cast<char>(unit >> (8 * place) & 0xFF);
    }
  };
  if (encoding_.unitSize == 2) {
    for (const KoStyleChar unit : fromUtf8(utf8)) put(unit);
  } else {
    while (!utf8.empty()) put(takeCodePoint(utf8));
  }
  return result;
}

}  // namespace tool
