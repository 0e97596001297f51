// LanguageSet: the languages of a style, in ascending order. There are so few that they take no memory
// of their own.
#pragma once

#include <kostyle/codes.h>

#include <cstddef>
#include <cstdint>

namespace Tesk::KoStyle {

class LanguageSet {
 public:
  static constexpr bool isLanguage(int language) noexcept {
    return language >= KOSTYLE_MIN_LANGUAGE && language <= KOSTYLE_MAX_LANGUAGE;
  }

  std::size_t size() const noexcept {
    std::size_t count = 0;
    for (int language = KOSTYLE_MIN_LANGUAGE; language <= KOSTYLE_MAX_LANGUAGE; ++language)
      count += contains(language);
    return count;
  }

  bool contains(int language) const noexcept { return isLanguage(language) && (bits_ & bit(language)); }

  /// The language at a position; -1 at or past the end.
  int at(std::size_t position) const noexcept {
    for (int language = KOSTYLE_MIN_LANGUAGE; language <= KOSTYLE_MAX_LANGUAGE; ++language) {
      if (contains(language) && position-- == 0) return language;
    }
    return -1;
  }

  /// Adds a language; false when it is none or here already.
  bool insert(int language) noexcept {
    if (!isLanguage(language) || contains(language)) return false;
    bits_ |= bit(language);
    return true;
  }

  /// Erases a language; false when it is not here.
  bool erase(int language) noexcept {
    if (!contains(language)) return false;
    bits_ &= ~bit(language);
    return true;
  }

 private:
  static constexpr std::uint32_t bit(int language) noexcept {
    return 1U << static_cast<unsigned>(language - KOSTYLE_MIN_LANGUAGE);
  }

  std::uint32_t bits_ = 0;
};

}  // namespace Tesk::KoStyle
