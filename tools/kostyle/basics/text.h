// UTF-8 and the library's text. A byte b that is no valid UTF-8 stands as the unit 0xDC00 + b.
#pragma once

#include <kostyle/types.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace tool {

using Text = std::basic_string<KoStyleChar>;
using TextView = std::basic_string_view<KoStyleChar>;

/// Takes the first code point off `utf8`, which is not empty; 0xDC00 + b for a stray byte b.
char32_t takeCodePoint(std::string_view& utf8);

bool isUtf8(std::string_view bytes);

/// False when a surrogate stands alone: such text cannot be written to a file.
bool isUnicode(TextView text);

void append(Text& text, char32_t codePoint);

Text fromUtf8(std::string_view bytes);

/// Always valid UTF-8: a lone surrogate becomes U+FFFD.
std::string toUtf8(TextView text);

/// Like toUtf8(), but outside Windows the unit of a stray byte becomes that byte again.
std::string pathToUtf8(TextView path);

/// Control characters and those that turn the direction of text become escapes, so that text neither
/// breaks a line nor drives the terminal.
std::string printable(std::string_view utf8);

/// As JSON writes a string: in quotation marks, which together with \ and controls are escaped inside.
std::string inQuotes(std::string_view utf8);

}  // namespace tool
