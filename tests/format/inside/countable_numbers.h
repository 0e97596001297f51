// CountableNumbers: the characters of a document, less the digits that the parser cannot count, found
// one by one.
//
// The parser adds up a number's exponent and its places after the point in an int, unchecked, and looks
// the sum up in a table. So an exponent ends here after nine digits and a fraction after a thousand
// million: what they say is far beyond double precision by then, and the sum stays in range.
#pragma once

#include <cstddef>

namespace test {

template <class Characters>
class CountableNumbers : public Characters {
 public:
  using Ch = typename Characters::Ch;
  using Characters::Characters;

  Ch Take() {
    const Ch taken = Characters::Take();
    follow(taken);
    while (isFull() && isDigit(this->Peek())) Characters::Take();
    return taken;
  }

 private:
  enum class Place { outside, text, escape, fraction, exponent };

  static constexpr std::size_t exponentDigits = 9;
  static constexpr std::size_t fractionDigits = 1000000000;

  static bool isDigit(Ch character) { return character >= '0' && character <= '9'; }

  bool isFull() const {
    return (place_ == Place::exponent && digits_ == exponentDigits) ||
           (place_ == Place::fraction && digits_ == fractionDigits);
  }

  void follow(Ch character) {
    if (place_ == Place::text) {
      if (character == '"') place_ = Place::outside;
      if (character == '\\') place_ = Place::escape;
    } else if (place_ == Place::escape) {
      place_ = Place::text;
    } else if (isDigit(character)) {
      const bool leadingZero = place_ == Place::exponent && digits_ == 0 && character == '0';
      if (!leadingZero) ++digits_;
    } else {
      followMark(character);
    }
  }

  void followMark(Ch character) {
    switch (character) {
      case '"':
        place_ = Place::text;
        break;
      case '.':
        place_ = Place::fraction;
        digits_ = 0;
        break;
      case 'e':
      case 'E':
        place_ = Place::exponent;
        digits_ = 0;
        break;
      case '+':
      case '-':
        break;
      default:
        place_ = Place::outside;
    }
  }

  Place place_ = Place::outside;
  std::size_t digits_ = 0;
};

}  // namespace test
