// Documents that nest deeply: 512 levels are read, more end the parse.
#include <gmock/gmock.h>

#include "format/encodings.h"
#include "format/sample_documents.h"
#include "format/small_stack.h"

namespace {

using test::documentWith;
using test::outcomeOf;

std::string repeated(const std::string& text, std::size_t count) {
  std::string result;
  result.reserve(text.size() * count);
  for (std::size_t i = 0; i < count; ++i) result += text;
  return result;
}

std::string arrays(std::size_t levels) { return repeated("[", levels) + repeated("]", levels); }

std::string objects(std::size_t levels) {
  return levels == 0 ? "1" : repeated("{\"a\":", levels - 1) + "{" + repeated("}", levels);
}

std::string mixture(std::size_t levels) {
  std::string front;
  std::string back;
  for (std::size_t i = 0; i < levels; ++i) {
    const bool array = i % 3 != 0;
    front += array ? "[" : "{\"a\":";
    back = (array ? "]" : "}") + back;
  }
  return front + "0" + back;
}

constexpr char taken[] = "taken";

TEST(Nesting, TheRootIsTheFirstOf512Levels) {
  EXPECT_EQ(outcomeOf(arrays(512)), "20 / 0@0");
  EXPECT_EQ(outcomeOf(arrays(513)), "17  16@514");
  EXPECT_EQ(outcomeOf(objects(512)), "19 /id 0@0");
  EXPECT_EQ(outcomeOf(objects(513)), "17  16@2562")
      << "512 times five characters, a brace and the one after";
  EXPECT_EQ(outcomeOf(mixture(512)), "19 /id 0@0");
  EXPECT_EQ(outcomeOf(mixture(513)).substr(0, 6), "17  16");
}

TEST(Nesting, IsCountedBelowUnknownKeysToo) {
  EXPECT_EQ(outcomeOf(documentWith("\"x\":" + arrays(511))), taken);
  EXPECT_EQ(outcomeOf(documentWith("\"x\":" + arrays(512))).substr(0, 6), "17  16");
  EXPECT_EQ(outcomeOf(documentWith("\"x\":" + objects(511))), taken);
  EXPECT_EQ(outcomeOf(documentWith("\"x\":" + objects(512))).substr(0, 6), "17  16");
  EXPECT_EQ(outcomeOf(documentWith("\"x\":" + mixture(511))), taken);
  EXPECT_EQ(outcomeOf(documentWith("\"x\":" + mixture(512))).substr(0, 6), "17  16");
}

TEST(Nesting, IsCountedInPlaceToo) {
  using test::documentWithParameters;
  EXPECT_EQ(outcomeOf(documentWithParameters("\"p\":" + arrays(508))), taken);
  EXPECT_EQ(outcomeOf(documentWithParameters("\"p\":" + arrays(509))).substr(0, 6), "17  16");
  EXPECT_EQ(outcomeOf(documentWith("\"filter\":" + objects(511))), taken);
  EXPECT_EQ(outcomeOf(documentWith("\"filter\":" + objects(512))).substr(0, 6), "17  16");
  EXPECT_EQ(outcomeOf(documentWith("\"vendor\":" + mixture(511))), taken);
  EXPECT_EQ(outcomeOf(documentWith("\"vendor\":" + mixture(512))).substr(0, 6), "17  16");
}

TEST(Nesting, LevelsThatWereLeftDoNotCount) {
  EXPECT_EQ(outcomeOf("[" + repeated(arrays(511) + ",", 20) + objects(511) + "]"), "20 / 0@0");
  EXPECT_EQ(outcomeOf("[" + repeated("[],{},", 100000) + "0]"), "20 / 0@0");
  EXPECT_EQ(outcomeOf("[" + repeated(arrays(511) + ",", 20) + objects(512) + "]").substr(0, 6),
            "17  16");
}

TEST(Nesting, BracketsInTextsDoNotCount) {
  EXPECT_EQ(outcomeOf(documentWith("\"vendor\":\"" + repeated("[", 2000) + "\"")), taken);
}

TEST(Nesting, AMillionBracketsAreASyntaxError) {
  EXPECT_EQ(outcomeOf(repeated("[", 1000000)), "17  16@514");
  EXPECT_EQ(outcomeOf(repeated("{\"a\":", 1000000)), "17  16@2562");
  EXPECT_EQ(outcomeOf(repeated("[{\"\":", 1000000)).substr(0, 6), "17  16");
  EXPECT_EQ(outcomeOf(documentWith("\"x\":" + repeated("[", 1000000))).substr(0, 6), "17  16");
}

TEST(Nesting, TheOffsetCountsBytes) {
  for (const test::Encoding encoding : test::allEncodings()) {
    const std::size_t bytes = 514 * unitSize(encoding);
    EXPECT_EQ(outcomeOf(encoded(repeated("[", 600), encoding)),
              "17  16@" + std::to_string(encoding == test::Encoding::utf8 ? 514 : bytes))
        << nameOf(encoding);
  }
}

TEST(Nesting, ASmallStackIsEnough) {
  std::vector<std::string> outcomes;
  test::runOnSmallStack([&] {
    for (const std::string& document :
         {repeated("[", 1000000), repeated("{\"a\":", 1000000), arrays(512), objects(512), mixture(512),
          documentWith("\"x\":" + mixture(511)), documentWith("\"x\":" + objects(511))})
      outcomes.push_back(outcomeOf(document));
  });
  EXPECT_THAT(outcomes, testing::ElementsAre("17  16@514", "17  16@2562", "20 / 0@0", "19 /id 0@0",
                                             "19 /id 0@0", taken, taken));
}

}  // namespace
