#include "checking/syntax_hint.h"

#include <kostyle/codes.h>

#include <string_view>

namespace tool {
namespace {

bool isLetter(char32_t character) {
  return (character >= U'a' && character <= U'z') || (character >= U'A' && character <= U'Z');
}

bool isSpace(char32_t character) {
  return character == U' ' || character == U'\t' || character == U'\n' || character == U'\r';
}

// The word that stands around an offset, in lower case.
std::string wordAt(const SourceText& source, std::size_t at) {
  while (at > source.begin() && isLetter(source.at(source.before(at)).codePoint))
    at = source.before(at);
  std::string word;
  constexpr std::size_t longest = 16;
  for (; at < source.end() && word.size() < longest && isLetter(source.at(at).codePoint);
       at += source.at(at).size)
    word += static_cast<char>(source.at(at).codePoint | 0x20);
  return word;
}

// The last character in front of an offset that is no space; 0 when there is none.
char32_t characterBefore(const SourceText& source, std::size_t at) {
  while (at > source.begin()) {
    at = source.before(at);
    if (!isSpace(source.at(at).codePoint)) return source.at(at).codePoint;
  }
  return 0;
}

}  // namespace

const char* syntaxHint(const JsonDocument& document) {
  const SourceText& source = document.source();
  const std::size_t place = document.error()->place;
  if (document.error()->code == KOSTYLE_PARSE_TERMINATED) return "values nest at most 512 levels deep";
  if (place >= source.end()) return "the file ends too early";
  const char32_t character = source.at(place).codePoint;
  const char32_t before = characterBefore(source, place);
  const std::string word = wordAt(source, place);
  if (word == "nan" || word == "inf" || word == "infinity") return "JSON has neither NaN nor infinity";
  if (word == "true" || word == "false" || word == "null" || word == "none")
    return "true, false and null are written in lower case";
  if (character == U'/' || character == U'#' || before == U'/') return "JSON has no comments";
  if (character == U'\'') return "strings stand in double quotation marks";
  if (before == U',' && (character == U'}' || character == U']'))
    return "no comma stands behind the last member or element";
  if (character == U'+' || character == U'.') return "numbers start with a digit or a minus sign";
  if (character == U'"') return "a comma separates members and elements";
  return nullptr;
}

}  // namespace tool
