// Numbers that are made to overflow whoever computes them.
#include <gmock/gmock.h>

#include "support/file_reader.h"

namespace {

using test::outcomeOf;
using test::ParameterValue;
using test::parseErrorOf;
using test::syntaxError;
using testing::ElementsAre;

ParameterValue numberOf(const std::string& written) {
  return test::parametersOf("\"p\":" + written).at(0);
}

ParameterValue real(float value) { return ParameterValue::ofFloat(test::text("p"), value); }

TEST(HostileNumber, ExponentsNearTheSmallestIntegerGiveZero) {
  for (const char* digits :
       {"9", "99", "2147483", "214748363", "214748364", "2147483639", "2147483640", "2147483647",
        "2147483648", "2147483649", "4294967296", "99999999999999999999"}) {
    for (const std::string mantissa :
         {"1", "0", "9.9", "0.1", "0.00000000001", "0.000000000000000000000000000000001",
          "123456789.12345678901234567890", "0.0", "99999999999999999999999"}) {
      if (std::string(digits) == "9" || std::string(digits) == "99") continue;
      EXPECT_EQ(numberOf(mantissa + "e-" + digits), real(0.0f)) << mantissa << "e-" << digits;
      EXPECT_EQ(numberOf("-" + mantissa + "E-" + digits), real(-0.0f)) << mantissa << "e-" << digits;
    }
  }
}

TEST(HostileNumber, ManyFractionDigitsAndTheSmallestExponentGiveZero) {
  for (const std::size_t zeros : {1u, 9u, 10u, 100u, 1000u, 100000u}) {
    for (const char* exponent : {"e-2147483639", "e-2147483647", "e-9999999999"})
      EXPECT_EQ(numberOf("0." + std::string(zeros, '0') + "1" + exponent), real(0.0f))
          << zeros << exponent;
  }
}

TEST(HostileNumber, LargeExponentsAreTooBig) {
  for (const char* exponent : {"309", "400", "2147483639", "2147483647", "2147483648", "4294967296",
                               "99999999999999999999999999"}) {
    EXPECT_EQ(outcomeOf(std::string("1e") + exponent), syntaxError(KOSTYLE_PARSE_NUMBER_TOO_BIG, 1))
        << exponent;
    EXPECT_EQ(parseErrorOf(std::string("0.00000000001e+") + exponent),
              std::string(exponent) == "309" ? KOSTYLE_PARSE_OK : KOSTYLE_PARSE_NUMBER_TOO_BIG)
        << exponent;
  }
}

TEST(HostileNumber, LeadingZerosOfAnExponentDoNotCount) {
  for (const std::size_t zeros : {1u, 8u, 9u, 10u, 100u, 100000u}) {
    const std::string padding(zeros, '0');
    EXPECT_EQ(numberOf("25e-" + padding + "1"), real(2.5f)) << zeros;
    EXPECT_EQ(numberOf("25e+" + padding + "1"), real(250.0f)) << zeros;
    EXPECT_EQ(numberOf("25e" + padding), real(25.0f)) << zeros;
    EXPECT_EQ(numberOf("1e-" + padding + "2147483649"), real(0.0f)) << zeros;
  }
}

TEST(HostileNumber, ManyDigitsKeepTheirValue) {
  EXPECT_EQ(numberOf("0." + std::string(100000, '0') + "1"), real(0.0f));
  EXPECT_EQ(numberOf("0." + std::string(1000, '0') + "15e1000"), real(1.5e-1f));
  EXPECT_EQ(numberOf("1." + std::string(100000, '0')), real(1.0f));
  EXPECT_EQ(numberOf("1.5" + std::string(100000, '0') + "e2"), real(150.0f));
  EXPECT_EQ(outcomeOf(std::string(1000000, '1')), syntaxError(KOSTYLE_PARSE_NUMBER_TOO_BIG, 1));
  EXPECT_EQ(numberOf("-" + std::string(30, '9')).type, int{KOSTYLE_PARAMETER_FLOAT});
}

TEST(HostileNumber, WhatFollowsOneIsReadAsEver) {
  const std::string huge = "1e-99999999999999999999";
  EXPECT_THAT(test::parametersOf("\"a\":" + huge +
                                 ",\"1e-99999999999999999999\":\"1.5e99999999999999\","
                                 "\"b\":1234567890,\"c\":[1e-12345678901,12345678901234567890]"),
              ElementsAre(ParameterValue::ofString(test::text("1e-99999999999999999999"),
                                                   test::text("1.5e99999999999999")),
                          ParameterValue::ofFloat(test::text("a"), 0.0f),
                          ParameterValue::ofInt(test::text("b"), 1234567890)));
  EXPECT_EQ(outcomeOf("[" + huge + "}"), syntaxError(KOSTYLE_PARSE_ARRAY_END_MISSING, 25));
  EXPECT_EQ(outcomeOf("[" + huge + "x"), syntaxError(KOSTYLE_PARSE_ARRAY_END_MISSING, 25));
}

}  // namespace
