/*
 * KoStyle for C++: text in and out.
 *
 * The library's text is UTF-16 in units of KoStyleChar, wchar_t on Windows and char16_t elsewhere. A host
 * may work with that, with UTF-8, or with both.
 */
#ifndef KOSTYLE_CPP_TEXT_HPP
#define KOSTYLE_CPP_TEXT_HPP

#include <string>
#include <string_view>

#include "../helpers.h"
#include "../types.h"

#if !defined(_MSVC_LANG) && __cplusplus < 201703L || defined(_MSVC_LANG) && _MSVC_LANG < 201703L
#error "kostyle.hpp needs C++17"
#endif

namespace kostyle {

/** A view of native text: std::wstring_view on Windows, std::u16string_view elsewhere. */
using TextView = std::basic_string_view<KoStyleChar>;

/** Native text of one's own: std::wstring on Windows, std::u16string elsewhere. */
using NativeString = std::basic_string<KoStyleChar>;

/**
 * Native text of UTF-8 that ends with a NUL, as a copy. Each byte that is part of no valid sequence becomes
 * U+FFFD. NULL is taken as the empty text.
 */
inline NativeString fromUtf8(const char* utf8) {
  NativeString text(KoStyle_textFromUtf8(utf8, nullptr, 0), KoStyleChar());
  KoStyle_textFromUtf8(utf8, text.data(), text.size() + 1);
  return text;
}

/**
 * Native text of UTF-8, as a copy: of all of a view, or of what stands in front of its first NUL. Each byte
 * that is part of no valid sequence becomes U+FFFD.
 */
inline NativeString fromUtf8(std::string_view utf8) { return fromUtf8(std::string(utf8).c_str()); }

/**
 * UTF-8 of native text that ends with a NUL, as a copy. A lone surrogate becomes U+FFFD. NULL is taken as the
 * empty text.
 */
inline std::string toUtf8(const KoStyleChar* text) {
  std::string utf8(KoStyle_utf8FromText(text, nullptr, 0), '\0');
  KoStyle_utf8FromText(text, utf8.data(), utf8.size() + 1);
  return utf8;
}

/**
 * A text that the library returned, as light as a pointer. The object that returned it owns it: it stays in
 * place while that object lives and that value is not changed. What shall live longer is copied: by utf8(),
 * or as NativeString(text.native()).
 *
 * A text equals what has the same units. UTF-8 is compared as if converted by fromUtf8(), which takes
 * memory; native text is compared as it stands. The order is by unit, as in the library.
 */
class Text {
 public:
  /** The empty text. */
  constexpr Text() noexcept = default;

  /** Of a pointer that a C function returned; NULL is taken as the empty text. Nothing is copied. */
  constexpr explicit Text(const KoStyleChar* text) noexcept : text_(text) {}

  /** The text with a NUL at its end; never NULL. */
  constexpr const KoStyleChar* c_str() const noexcept { return text_ ? text_ : KOSTYLE_TEXT(""); }

  /**
   * A view of the text with its length in UTF-16 units, which takes a pass over it; lives as the text
   * does.
   */
  constexpr TextView native() const noexcept { return TextView(c_str()); }

  /** A copy in UTF-8. A lone surrogate becomes U+FFFD. */
  std::string utf8() const { return toUtf8(text_); }

  /** Whether the text has no units; takes no pass. */
  constexpr bool empty() const noexcept { return *c_str() == KoStyleChar(); }

  /** Whether all units are equal. */
  friend bool operator==(Text a, Text b) noexcept { return a.native() == b.native(); }
  /** Whether any unit differs. */
  friend bool operator!=(Text a, Text b) noexcept { return !(a == b); }
  /** Whether a text stands before another by its units. */
  friend bool operator<(Text a, Text b) noexcept { return a.native() < b.native(); }
  /** Whether a text stands behind another. */
  friend bool operator>(Text a, Text b) noexcept { return b < a; }
  /** Whether a text stands before another or equals it. */
  friend bool operator<=(Text a, Text b) noexcept { return !(b < a); }
  /** Whether a text stands behind another or equals it. */
  friend bool operator>=(Text a, Text b) noexcept { return !(a < b); }
  /** Whether all units are equal. */
  friend bool operator==(Text a, TextView b) noexcept { return a.native() == b; }
  /** Whether all units are equal. */
  friend bool operator==(TextView a, Text b) noexcept { return b == a; }
  /** Whether any unit differs. */
  friend bool operator!=(Text a, TextView b) noexcept { return !(a == b); }
  /** Whether any unit differs. */
  friend bool operator!=(TextView a, Text b) noexcept { return !(b == a); }
  /** Whether the UTF-8 gives the same units. */
  friend bool operator==(Text a, std::string_view utf8) { return a == TextView(fromUtf8(utf8)); }
  /** Whether the UTF-8 gives the same units. */
  friend bool operator==(std::string_view utf8, Text b) { return b == utf8; }
  /** Whether the UTF-8 gives other units. */
  friend bool operator!=(Text a, std::string_view utf8) { return !(a == utf8); }
  /** Whether the UTF-8 gives other units. */
  friend bool operator!=(std::string_view utf8, Text b) { return !(b == utf8); }

 private:
  const KoStyleChar* text_ = nullptr;
};

/**
 * What a function takes as text: native text or UTF-8, of any of the types below. Made by the call and gone
 * after it; the library copies what it keeps, so a Text may be passed back to the object that returned it.
 *
 * A text ends at its first U+0000. UTF-8 is converted by fromUtf8(). Native text that is known to end with
 * a NUL is passed as it is; a TextView and UTF-8 take a copy. A null pointer is taken as the C functions
 * take it: nearly everywhere it is refused like an empty text.
 */
class TextArgument {
 public:
  /** A text that the library returned, passed as it is. */
  TextArgument(Text text) noexcept : text_(text.c_str()) {}
  /** Native text that ends with a NUL, passed as it is. */
  TextArgument(const KoStyleChar* text) noexcept : text_(text) {}
  /** Native text of one's own, passed as it is. */
  TextArgument(const NativeString& text) noexcept : text_(text.c_str()) {}
  /** A view of native text, copied. */
  TextArgument(TextView text) : copy_(text), text_(copy_.c_str()) {}
  /** UTF-8 that ends with a NUL, converted. */
  TextArgument(const char* utf8) : copy_(fromUtf8(utf8)), text_(utf8 ? copy_.c_str() : nullptr) {}
  /** UTF-8, converted. */
  TextArgument(const std::string& utf8) : TextArgument(utf8.c_str()) {}
  /** A view of UTF-8, converted. */
  TextArgument(std::string_view utf8) : copy_(fromUtf8(utf8)), text_(copy_.c_str()) {}
#if defined(__cpp_lib_char8_t)
  /** UTF-8 that ends with a NUL, converted. */
  TextArgument(const char8_t* utf8) : TextArgument(reinterpret_cast<const char*>(utf8)) {}
  /** UTF-8, converted. */
  TextArgument(const std::u8string& utf8) : TextArgument(utf8.c_str()) {}
  /** A view of UTF-8, converted. */
  TextArgument(std::u8string_view utf8) : TextArgument(std::u8string(utf8)) {}
#endif
  /** Not copied: made for one call. */
  TextArgument(const TextArgument&) = delete;
  /** Not copied: made for one call. */
  TextArgument& operator=(const TextArgument&) = delete;
  /** Ends what was copied or converted. */
  ~TextArgument() = default;

  /**
   * The text as the C functions take it: with a NUL at its end, or NULL. Lives as long as this object.
   */
  const KoStyleChar* c_str() const noexcept { return text_; }

 private:
  NativeString copy_;
  const KoStyleChar* text_;
};

}  // namespace kostyle

#endif
