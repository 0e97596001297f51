#if !defined(_WIN32)

#include "platform/posix_names.h"

#include <gmock/gmock.h>

#include <array>
#include <cstdint>
#include <random>
#include <string>

namespace Tesk::KoStyle::platform {
namespace {

Text strayUnits(const std::string& bytes) {
  Text units;
  for (const char byte : bytes) units += static_cast<Char>(0xDC00 + static_cast<unsigned char>(byte));
  return units;
}

char byteOf(unsigned value) { return static_cast<char>(value); }

// The plain table of UTF-8.
std::string encode(std::uint32_t c) {
  if (c < 0x80) return {byteOf(c)};
  if (c < 0x800) return {byteOf(0xC0 + c / 64), byteOf(0x80 + c % 64)};
  if (c < 0x10000) return {byteOf(0xE0 + c / 4096), byteOf(0x80 + c / 64 % 64), byteOf(0x80 + c % 64)};
  return {byteOf(0xF0 + c / 262144), byteOf(0x80 + c / 4096 % 64), byteOf(0x80 + c / 64 % 64),
          byteOf(0x80 + c % 64)};
}

Text unitsOf(std::uint32_t c) {
  if (c < 0x10000) return {static_cast<Char>(c)};
  const std::uint32_t rest = c - 0x10000;
  return {static_cast<Char>(0xD800 + rest / 1024), static_cast<Char>(0xDC00 + rest % 1024)};
}

TEST(PosixNames, EveryCodePointIsItsUtf16) {
  for (std::uint32_t c = 0; c <= 0x10FFFF; ++c) {
    if (c >= 0xD800 && c <= 0xDFFF) continue;
    ASSERT_EQ(textFromName(encode(c)), unitsOf(c)) << std::hex << c;
    ASSERT_EQ(nameFromText(unitsOf(c)), encode(c)) << std::hex << c;
  }
}

TEST(PosixNames, EncodedSurrogatesAreStrayBytes) {
  for (std::uint32_t c = 0xD800; c <= 0xDFFF; ++c) {
    const std::string bytes = encode(c);
    ASSERT_EQ(textFromName(bytes), strayUnits(bytes)) << std::hex << c;
    ASSERT_EQ(nameFromText(strayUnits(bytes)), bytes) << std::hex << c;
  }
}

TEST(PosixNames, BytesThatAreNotUtf8AreKeptOneByOne) {
  for (const std::string bytes : {
           "\x80",              // a trailing byte alone
           "\xBF\x80",          //
           "\xC0\x80",          // overlong forms
           "\xC1\xBF",          //
           "\xE0\x80\x80",      //
           "\xE0\x9F\xBF",      //
           "\xF0\x80\x80\x80",  //
           "\xF0\x8F\xBF\xBF",  //
           "\xF4\x90\x80\x80",  // past the last code point
           "\xF5\x80\x80\x80",  //
           "\xFF\xFE",          //
           "\xC3",              // cut off
           "\xE2\x82",          //
           "\xF0\x9F\x98",      //
       }) {
    EXPECT_EQ(textFromName(bytes), strayUnits(bytes)) << testing::PrintToString(bytes);
    EXPECT_EQ(nameFromText(strayUnits(bytes)), bytes) << testing::PrintToString(bytes);
  }
}

TEST(PosixNames, StrayBytesDoNotSwallowTheirNeighbours) {
  EXPECT_EQ(textFromName("a\xE2\x82(\xC3\xC3\xA9"
                         "b"),
            Text(u"a") + strayUnits("\xE2\x82") + u"(" + strayUnits("\xC3") + u"éb");
}

TEST(PosixNames, EveryPairOfBytesSurvives) {
  std::string bytes(2, '\0');
  for (unsigned first = 0; first < 256; ++first) {
    for (unsigned second = 0; second < 256; ++second) {
      bytes[0] = byteOf(first);
      bytes[1] = byteOf(second);
      ASSERT_EQ(nameFromText(textFromName(bytes)), bytes) << std::hex << first << ' ' << second;
    }
  }
}

TEST(PosixNames, EveryStartOfThreeAndFourBytesSurvives) {
  constexpr std::array<unsigned, 8> edges = {0x00, 0x41, 0x7F, 0x80, 0x9F, 0xBF, 0xC3, 0xFF};
  std::string bytes(4, '\0');
  for (unsigned first = 0xE0; first < 256; ++first) {
    for (unsigned second = 0; second < 256; ++second) {
      for (const unsigned third : edges) {
        for (const unsigned fourth : edges) {
          bytes = {byteOf(first), byteOf(second), byteOf(third), byteOf(fourth)};
          ASSERT_EQ(nameFromText(textFromName(bytes)), bytes) << testing::PrintToString(bytes);
          bytes.pop_back();
          ASSERT_EQ(nameFromText(textFromName(bytes)), bytes) << testing::PrintToString(bytes);
        }
      }
    }
  }
}

TEST(PosixNames, RandomBytesSurvive) {
  std::mt19937 random(29);
  for (int i = 0; i < 20000; ++i) {
    std::string bytes(random() % 40, '\0');
    for (char& byte : bytes) byte = byteOf(random() % 3 == 0 ? random() % 128 : 128 + random() % 128);
    ASSERT_EQ(nameFromText(textFromName(bytes)), bytes) << testing::PrintToString(bytes);
  }
}

TEST(PosixNames, DifferentNamesAreDifferentTexts) {
  EXPECT_NE(textFromName("\xC3\xA9"), textFromName("\xC3\x28"));
  EXPECT_NE(textFromName("\xED\xA0\x80"), textFromName("\xEE\x80\x80"));
}

TEST(PosixNames, ALoneSurrogateThatStandsForNoByteNamesNothing) {
  for (unsigned unit = 0xD800; unit <= 0xDFFF; ++unit) {
    const bool standsForByte = unit >= 0xDC80 && unit <= 0xDCFF;
    const Text alone(1, static_cast<Char>(unit));
    ASSERT_EQ(nameFromText(alone).has_value(), standsForByte) << std::hex << unit;
    ASSERT_EQ(nameFromText(u"a" + alone + u"b").has_value(), standsForByte) << std::hex << unit;
  }
  EXPECT_EQ(nameFromText(Text{Char(0xD800), Char(0xD800), Char(0xDC00)}), std::nullopt);
}

TEST(PosixNames, AHighSurrogatePairsWithAnyLowOne) {
  EXPECT_EQ(nameFromText(Text{Char(0xD800), Char(0xDC80)}), encode(0x10080));
}

TEST(PosixNames, NothingIsNothing) {
  EXPECT_EQ(textFromName(""), Text());
  EXPECT_EQ(nameFromText(TextView()), "");
}

}  // namespace
}  // namespace Tesk::KoStyle::platform

#endif
