// Random style documents: mostly right, with every kind of mistake here and there.
#pragma once

#include <string>
#include <vector>

#include "support/encodings.h"
#include "support/random.h"

namespace test {

class DocumentGenerator {
 public:
  explicit DocumentGenerator(Random& random) : random_(random) {}

  std::u32string document() {
    Members members;
    add(members, U"id", [&] { return written(text()); });
    add(members, U"name", [&] { return written(random_.oneIn(5) ? longName() : text()); });
    for (const char32_t* chain : {U"audioEffect", U"midiEffect"}) {
      if (!random_.oneIn(3)) add(members, chain, [&] { return this->chain(); });
    }
    if (random_.oneIn(2)) add(members, U"vendor", [&] { return written(text()); });
    if (!random_.oneIn(3)) add(members, U"filter", [&] { return filter(); });
    if (random_.oneIn(3)) members.push_back(member(key(), any(3)));
    if (random_.oneIn(8)) repeatOne(members);
    if (random_.oneIn(4)) shuffle(members);
    const std::u32string root = random_.oneIn(50) ? any(3) : object(members);
    return space() + root + space();
  }

  /// A document with tokens put in, taken out or repeated.
  std::u32string spliced(std::u32string document) {
    static const std::vector<std::u32string> tokens{
        U"{",    U"}",     U"[",       U"]",  U",",  U":",      U"\"",     U"\\", U"\\u", U"\\uD800",
        U"null", U"-",     U"0",       U".",  U"e",  U"1e309",  U"true",   U" ",  U"\t",  U"\x0B",
        U"\0",   U"\"\":", U"\"id\":", U"{}", U"[]", U"\uFEFF", U"\xD800", U"//", U"'",   U"\x1F"};
    for (std::size_t times = random_.oneIn(4) ? 3 : 1; times > 0; --times) {
      const std::size_t at = random_.below(document.size() + 1);
      const std::size_t length = random_.below(8);
      switch (random_.below(4)) {
        case 0:
          document.insert(at, random_.oneIn(30) ? std::u32string(1, U'\0') : random_.of(tokens));
          break;
        case 1:
          document.erase(at, length);
          break;
        case 2:
          document.replace(at, std::min(length, document.size() - at), random_.of(tokens));
          break;
        default:
          document.insert(random_.below(document.size() + 1), document.substr(at, 4 * length));
      }
    }
    return document;
  }

  /// A file with bytes changed, put in or taken out.
  std::string mutated(std::string bytes) {
    for (std::size_t times = random_.oneIn(4) ? 3 : 1; times > 0; --times) {
      const std::size_t at = random_.below(bytes.size() + 1);
      const char byte = static_cast<char>(random_.below(256));
      switch (random_.below(5)) {
        case 0:
          bytes.insert(at, 1, byte);
          break;
        case 1:
          bytes.erase(at, random_.between(1, 4));
          break;
        case 2:
          bytes.resize(at);
          break;
        default:
          if (at < bytes.size()) bytes[at] = random_.oneIn(2) ? byte : flipped(bytes[at]);
      }
    }
    return bytes;
  }

 private:
  using Members = std::vector<std::u32string>;

  char flipped(char byte) { return static_cast<char>(byte ^ 1 << random_.below(8)); }

  std::u32string space() {
    static const std::vector<std::u32string> spaces{U"", U"", U"", U"", U" ", U"\n", U"\r\n\t", U"   "};
    return random_.of(spaces);
  }

  /// Sometimes anything instead of what belongs there.
  template <class Make>
  std::u32string mostly(Make make) {
    return random_.oneIn(24) ? any(2) : make();
  }

  template <class Make>
  void add(Members& members, const std::u32string& key, Make make) {
    if (!random_.oneIn(40)) members.push_back(member(written(key), mostly(make)));
  }

  std::u32string member(const std::u32string& key, const std::u32string& value) {
    return key + space() + U":" + space() + value;
  }

  static std::u32string ascii(std::string_view text) { return {text.begin(), text.end()}; }

  std::u32string joined(const Members& parts) {
    std::u32string all;
    for (const std::u32string& part : parts)
      all += (all.empty() ? U"" : U",") + space() + part + space();
    return all;
  }
  std::u32string object(const Members& members) { return U"{" + joined(members) + U"}"; }

  template <class Make>
  Members several(std::size_t most, Make make) {
    Members parts(random_.below(most + 1));
    for (std::u32string& part : parts) part = make();
    return parts;
  }

  void repeatOne(Members& members) {
    if (members.empty()) return;
    const std::u32string copy = random_.of(members);
    members.push_back(member(copy.substr(0, copy.find(U':')), any(2)));
  }

  void shuffle(Members& members) {
    for (std::size_t i = members.size(); i > 1; --i)
      std::swap(members[i - 1], members[random_.below(i)]);
  }

  std::u32string longName() {
    std::u32string name(random_.between(97, 103), U'n');
    if (random_.oneIn(2)) name[random_.below(name.size())] = character();
    return name;
  }

  char32_t character() {
    const auto from = [&](std::size_t first, std::size_t last) {
      return static_cast<char32_t>(random_.between(first, last));
    };
    switch (random_.below(12)) {
      case 0:
        return from(0, 0x1F);
      case 1:
        return from(0x80, 0x7FF);
      case 2:
        return from(0x800, 0xFFFF);
      case 3:
        return from(0x10000, 0x10FFFF);
      case 4:
        return random_.oneIn(16) ? from(0xD800, 0xDFFF) : U'z';
      case 5:
        return random_.of(std::vector<char32_t>{U'"', U'\\', U'/', 0x7F, 0xFFFF, 0xFEFF, 0});
      default:
        return from(0x20, 0x7E);
    }
  }

  std::u32string text() {
    static const std::vector<std::u32string> known{
        U"",     U"a", U"b",         U"A",         U"ab",   U"id",
        U"Tarn", U"E", U"Tarn630",   U"parameter", U"name", U"1234567890123456",
        U"Tar",  U"é", U"\U0001F600"};
    if (random_.oneIn(2)) return known[random_.oneIn(30) ? 0 : random_.between(1, known.size() - 1)];
    std::u32string made(random_.oneIn(20) ? 16 : random_.between(1, 6), U' ');
    for (char32_t& each : made) each = character();
    return made;
  }

  std::u32string escaped(std::uint32_t unit) {
    const char* digits = random_.oneIn(2) ? "0123456789abcdef" : "0123456789ABCDEF";
    std::u32string escape = U"\\u";
    for (int shift = 12; shift >= 0; shift -= 4)
      escape += static_cast<char32_t>(digits[unit >> shift & 0xF]);
    return escape;
  }

  /// A text as a document has it.
  std::u32string written(const std::u32string& text) {
    static const std::u32string plain = U"\"\\/\b\f\n\r\t";
    static const std::u32string letters = U"\"\\/bfnrt";
    std::u32string all = U"\"";
    for (const char32_t each : text) {
      const std::size_t letter = plain.find(each);
      const bool mustEscape = each < 0x20 || each == U'"' || each == U'\\';
      if (letter != plain.npos && random_.oneIn(2)) {
        all += {U'\\', letters[letter]};
      } else if ((mustEscape || random_.oneIn(10)) && each >= 0x10000) {
        all += escaped(0xD800 + ((each - 0x10000) >> 10)) + escaped(0xDC00 + (each & 0x3FF));
      } else if (mustEscape || random_.oneIn(10)) {
        all += escaped(each);
      } else {
        all += each;
      }
    }
    return all + U"\"";
  }

  std::u32string key() { return written(text()); }

  std::u32string number() {
    static const std::vector<std::string> odd{"0",
                                              "-0",
                                              "1",
                                              "3.0",
                                              "3e0",
                                              "2147483647",
                                              "2147483648",
                                              "-2147483648",
                                              "-2147483649",
                                              "4294967295",
                                              "4294967296",
                                              "9223372036854775807",
                                              "9223372036854775808",
                                              "-9223372036854775808",
                                              "-9223372036854775809",
                                              "18446744073709551615",
                                              "18446744073709551616",
                                              "1e10",
                                              "1e300",
                                              "1e38",
                                              "3.4028235e38",
                                              "3.4028236e38",
                                              "1e-38",
                                              "1e-45",
                                              "1e-46",
                                              "5e-324",
                                              "1e-400",
                                              "0.1",
                                              "-0.0",
                                              "0e308",
                                              "0e309",
                                              "1e308",
                                              "1e309",
                                              "0.1e309",
                                              "0.1e310",
                                              "1.5e-2147483648",
                                              "1e-99999999999",
                                              "0.000000000001e-2147483639",
                                              "0.30000001192092896",
                                              "16777217.0",
                                              "1e0005",
                                              "1E+2",
                                              "01",
                                              "1.",
                                              ".5",
                                              "+1",
                                              "-",
                                              "1e",
                                              "1e+",
                                              "0x1",
                                              "NaN",
                                              "1.7976931348623157e308",
                                              "123456789012345678901234567890"};
    if (random_.oneIn(2)) {
      const std::string& chosen = random_.of(odd);
      const bool wrong = chosen == "01" || chosen == "1." || chosen == ".5" || chosen == "+1" ||
                         chosen == "-" || chosen == "1e" || chosen == "1e+" || chosen == "0x1" ||
                         chosen == "NaN" || chosen == "1e309" || chosen == "0e309" ||
                         chosen == "0.1e310";
      return ascii(wrong && !random_.oneIn(40) ? "7" : chosen);
    }
    std::string number = random_.oneIn(3) ? "-" : "";
    number += random_.oneIn(4) ? "0" : std::to_string(random_.bits() >> random_.below(64));
    if (random_.oneIn(2)) number += "." + std::to_string(random_.bits() >> random_.below(64));
    if (random_.oneIn(3)) number += (random_.oneIn(2) ? "e-" : "e") + std::to_string(random_.below(60));
    return ascii(number);
  }

  std::u32string any(int depth) {
    switch (random_.below(depth > 0 ? 8 : 6)) {
      case 0:
        return U"null";
      case 1:
        return random_.oneIn(2) ? U"true" : U"false";
      case 2:
      case 3:
        return number();
      case 4:
      case 5:
        return written(text());
      case 6:
        return U"[" + joined(several(4, [&] { return any(depth - 1); })) + U"]";
      default:
        return object(several(4, [&] { return member(key(), any(depth - 1)); }));
    }
  }

  std::u32string parameters() {
    return object(several(random_.oneIn(20) ? 40 : 5, [&] {
      return member(key(), mostly([&] { return random_.oneIn(3) ? written(text()) : number(); }));
    }));
  }

  std::u32string effect() {
    Members members;
    if (random_.oneIn(3)) add(members, U"script", [&] { return written(text()); });
    add(members, U"parameter", [&] { return parameters(); });
    if (random_.oneIn(6)) members.push_back(member(key(), any(2)));
    if (random_.oneIn(10)) repeatOne(members);
    return object(members);
  }

  std::u32string chain() {
    return object(several(4, [&] { return member(key(), mostly([&] { return effect(); })); }));
  }

  std::u32string filter() {
    Members members;
    const auto array = [&](auto make) {
      return U"[" + joined(several(6, [&] { return mostly(make); })) + U"]";
    };
    if (random_.oneIn(2)) {
      add(members, U"languages", [&] {
        return array([&] {
          return ascii(std::to_string(random_.below(8)).insert(0, random_.oneIn(9) ? 1 : 0, '-'));
        });
      });
    }
    for (const char32_t* list : {U"singerGroups", U"singerIDs", U"genres", U"subGenres", U"colors"}) {
      if (random_.oneIn(2)) add(members, list, [&] { return array([&] { return written(text()); }); });
    }
    if (random_.oneIn(10)) repeatOne(members);
    return object(members);
  }

  Random& random_;
};

}  // namespace test
