#include "checking/excerpt.h"

#include <algorithm>

#include "basics/text.h"
#include "basics/text_width.h"

namespace tool {
namespace {

constexpr std::size_t charactersBefore = 50;
constexpr std::size_t charactersInAll = 90;
constexpr const char* ellipsis = "...";
constexpr std::size_t ellipsisWidth = 3;

bool endsLine(char32_t character) { return character == U'\n' || character == U'\r'; }

std::string shown(const SourceText& source, std::size_t begin, std::size_t size) {
  if (source.at(begin).codePoint == U'\t') return " ";
  return printable(
      source.utf8({static_cast<std::uint32_t>(begin), static_cast<std::uint32_t>(begin + size)}));
}

}  // namespace

Excerpt excerptOf(const SourceText& source, Span span) {
  std::size_t begin = std::min<std::size_t>(span.begin, source.end());
  std::size_t before = 0;
  while (before < charactersBefore && begin > source.begin()) {
    const std::size_t previous = source.before(begin);
    if (endsLine(source.at(previous).codePoint)) break;
    begin = previous;
    ++before;
  }
  Excerpt excerpt;
  const bool cutInFront =
      begin > source.begin() && !endsLine(source.at(source.before(begin)).codePoint);
  if (cutInFront) excerpt.line = ellipsis;
  std::size_t width = cutInFront ? ellipsisWidth : 0;
  std::size_t characters = 0;
  std::size_t at = begin;
  while (at < source.end() && characters < charactersInAll) {
    const Character character = source.at(at);
    if (endsLine(character.codePoint)) break;
    const std::string text = shown(source, at, character.size);
    if (at < span.begin) excerpt.caret = width + widthOf(text);
    if (at >= span.begin && at < span.end) excerpt.width += widthOf(text);
    width += widthOf(text);
    excerpt.line += text;
    at += character.size;
    ++characters;
  }
  if (span.begin == begin) excerpt.caret = cutInFront ? ellipsisWidth : 0;
  if (at < source.end() && !endsLine(source.at(at).codePoint)) excerpt.line += ellipsis;
  excerpt.width = std::max<std::size_t>(1, excerpt.width);
  return excerpt;
}

}  // namespace tool
