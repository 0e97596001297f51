// The parameters of an effect: which values a document's members give.
#include <gmock/gmock.h>

#include <limits>

#include "support/file_reader.h"

namespace {

using test::parametersOf;
using test::ParameterValue;
using test::text;
using testing::ElementsAre;
using testing::IsEmpty;

const test::Text p = text("p");

std::vector<ParameterValue> valueOf(const std::string& value) { return parametersOf("\"p\":" + value); }

TEST(ParameterValue, IntegersOf32BitsAreInts) {
  const std::vector<std::pair<std::string, std::int32_t>> values{
      {"3", 3},
      {"0", 0},
      {"-0", 0},
      {"-1", -1},
      {"2147483647", std::numeric_limits<std::int32_t>::max()},
      {"-5", -5},
      {"-2147483648", std::numeric_limits<std::int32_t>::min()}};
  for (const auto& [value, integer] : values) {
    EXPECT_THAT(valueOf(value), ElementsAre(ParameterValue::ofInt(p, integer))) << value;
  }
}

TEST(ParameterValue, NumbersWithFractionOrExponentAreFloats) {
  const std::vector<std::pair<std::string, float>> values{{"3.0", 3.0f},
                                                          {"3e0", 3.0f},
                                                          {"3E0", 3.0f},
                                                          {"3e+0", 3.0f},
                                                          {"30e-1", 3.0f},
                                                          {"0.1", 0.1f},
                                                          {"-0.0", -0.0f},
                                                          {"-0e0", -0.0f},
                                                          {"0.0", 0.0f},
                                                          {"1e10", 1e10f},
                                                          {"-2.5e-3", -2.5e-3f},
                                                          {"16777217.0", 16777216.0f},
                                                          {"3.4028234e38", 3.4028234e38f},
                                                          {"1e-45", 1.4012984643e-45f},
                                                          {"1e-60", 0.0f},
                                                          {"1e-400", 0.0f},
                                                          {"-1e-400", -0.0f},
                                                          {"0.00000000001", 1e-11f}};
  for (const auto& [value, real] : values)
    EXPECT_THAT(valueOf(value), ElementsAre(ParameterValue::ofFloat(p, real))) << value;
}

TEST(ParameterValue, FloatsTooLargeForSinglePrecisionAreInfinite) {
  const float infinity = std::numeric_limits<float>::infinity();
  for (const char* value : {"1e300", "3.5e38", "1e39", "9.9e307"})
    EXPECT_THAT(valueOf(value), ElementsAre(ParameterValue::ofFloat(p, infinity))) << value;
  EXPECT_THAT(valueOf("-1e300"), ElementsAre(ParameterValue::ofFloat(p, -infinity)));
}

TEST(ParameterValue, IntegersBeyond64BitsAreFloats) {
  const std::vector<std::pair<std::string, float>> values{
      {"18446744073709551616", 18446744073709551616.f},
      {"-9223372036854775809", -9223372036854775808.f},
      {"100000000000000000000000", 1e23f}};
  for (const auto& [value, real] : values)
    EXPECT_THAT(valueOf(value), ElementsAre(ParameterValue::ofFloat(p, real))) << value;
}

TEST(ParameterValue, IntegersBetween32And64BitsGiveNoParameter) {
  for (const char* value :
       {"2147483648", "-2147483649", "4294967295", "4294967296", "-4294967296", "9223372036854775807",
        "-9223372036854775808", "9223372036854775808", "18446744073709551615"})
    EXPECT_THAT(valueOf(value), IsEmpty()) << value;
}

TEST(ParameterValue, StringsAreTakenWhole) {
  EXPECT_THAT(valueOf("\"3\""), ElementsAre(ParameterValue::ofString(p, text("3"))));
  EXPECT_THAT(valueOf("\"\""), ElementsAre(ParameterValue::ofString(p, text(""))));
  const std::string large(300000, 's');
  EXPECT_THAT(valueOf("\"" + large + "\""), ElementsAre(ParameterValue::ofString(p, text(large))));
  EXPECT_THAT(valueOf(R"("a\"\\\/\b\f\n\r\t\u00e4b")"),
              ElementsAre(ParameterValue::ofString(p, text("a\"\\/\b\f\n\r\t\xC3\xA4"
                                                           "b"))));
}

TEST(ParameterValue, OtherTypesGiveNoParameter) {
  for (const char* value : {"true", "false", "null", "[]", "{}", "[1]", R"({"p":1})"})
    EXPECT_THAT(valueOf(value), IsEmpty()) << value;
}

TEST(ParameterValue, AMemberLeftOutKeepsTheOthers) {
  EXPECT_THAT(parametersOf(R"("a":1,"b":true,"c":2.5,"d":4294967296,"e":"x")"),
              ElementsAre(ParameterValue::ofInt(text("a"), 1), ParameterValue::ofFloat(text("c"), 2.5f),
                          ParameterValue::ofString(text("e"), text("x"))));
}

TEST(ParameterName, EmptyOnesAreLeftOut) {
  EXPECT_THAT(parametersOf(R"("":1,"a":2)"), ElementsAre(ParameterValue::ofInt(text("a"), 2)));
}

TEST(ParameterName, TarnIsReadAsTarn630) {
  EXPECT_THAT(parametersOf(R"("Tarn":"x")"),
              ElementsAre(ParameterValue::ofString(text("Tarn630"), text("x"))));
}

TEST(ParameterName, NoOtherNameIsReplaced) {
  for (const std::string name : {"tarn", "TARN", "Tarn6", " Tarn", "Tarn ", "Tar", "Tarn630"})
    EXPECT_THAT(parametersOf("\"" + name + "\":1"), ElementsAre(ParameterValue::ofInt(text(name), 1)));
  EXPECT_THAT(parametersOf(R"("Tarn\u0000":1)"), ElementsAre(ParameterValue::ofInt(text("Tarn"), 1)))
      << "U+0000 makes another name";
}

TEST(ParameterName, TarnAndTarn630AreOneName) {
  EXPECT_THAT(parametersOf(R"("Tarn":1,"Tarn630":2)"),
              ElementsAre(ParameterValue::ofInt(text("Tarn630"), 1)));
  EXPECT_THAT(parametersOf(R"("Tarn630":2,"Tarn":1)"),
              ElementsAre(ParameterValue::ofInt(text("Tarn630"), 2)));
  EXPECT_THAT(parametersOf(R"("Tarn":null,"Tarn630":2)"),
              ElementsAre(ParameterValue::ofInt(text("Tarn630"), 2)));
}

TEST(ParameterName, OfOneNameTheFirstTakenWins) {
  EXPECT_THAT(parametersOf(R"("a":1,"a":2.5)"), ElementsAre(ParameterValue::ofInt(text("a"), 1)));
  EXPECT_THAT(parametersOf(R"("a":true,"a":1)"), ElementsAre(ParameterValue::ofInt(text("a"), 1)));
  EXPECT_THAT(parametersOf(R"("a":4294967296,"a":"x","a":1)"),
              ElementsAre(ParameterValue::ofString(text("a"), text("x"))));
}

TEST(ParameterName, DecidesTheOrder) {
  EXPECT_THAT(
      parametersOf(R"("b":1,"aa":2,"B":3,"a":4,"é":5,"z":6)"),
      ElementsAre(ParameterValue::ofInt(text("B"), 3), ParameterValue::ofInt(text("a"), 4),
                  ParameterValue::ofInt(text("aa"), 2), ParameterValue::ofInt(text("b"), 1),
                  ParameterValue::ofInt(text("z"), 6), ParameterValue::ofInt(text("\xC3\xA9"), 5)));
}

TEST(ParameterName, IsOrderedByUnitsNotByCodePoints) {
  // U+1F600 starts with the unit D83D, which comes before U+FF5E.
  EXPECT_THAT(parametersOf("\"\xEF\xBD\x9E\":1,\"\xF0\x9F\x98\x80\":2"),
              ElementsAre(ParameterValue::ofInt(text("\xF0\x9F\x98\x80"), 2),
                          ParameterValue::ofInt(text("\xEF\xBD\x9E"), 1)));
}

TEST(ParameterName, IsReplacedBeforeSorting) {
  EXPECT_THAT(
      parametersOf(R"("Tarn5":1,"Tarn":2,"Tarn7":3)"),
      ElementsAre(ParameterValue::ofInt(text("Tarn5"), 1), ParameterValue::ofInt(text("Tarn630"), 2),
                  ParameterValue::ofInt(text("Tarn7"), 3)));
}

}  // namespace
