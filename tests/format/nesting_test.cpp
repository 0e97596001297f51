// Documents that nest deeply: 512 levels are read, more end the parse.
#include <gmock/gmock.h>

#include "format/small_stack.h"
#include "support/encodings.h"
#include "support/file_reader.h"

namespace {

using test::documentWith;
using test::outcomeOf;
using test::parseErrorOf;
using test::refused;
using test::syntaxError;
using test::taken;

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

TEST(Nesting, TheRootIsTheFirstOf512Levels) {
  EXPECT_EQ(outcomeOf(arrays(512)), refused(KOSTYLE_ERROR_WRONG_TYPE, "/"));
  EXPECT_EQ(outcomeOf(arrays(513)), syntaxError(KOSTYLE_PARSE_TERMINATED, 514));
  EXPECT_EQ(outcomeOf(objects(512)), refused(KOSTYLE_ERROR_MEMBER_MISSING, "/id"));
  EXPECT_EQ(outcomeOf(objects(513)), syntaxError(KOSTYLE_PARSE_TERMINATED, 2562))
      << "512 times five characters, a brace and the one after";
  EXPECT_EQ(outcomeOf(mixture(512)), refused(KOSTYLE_ERROR_MEMBER_MISSING, "/id"));
  EXPECT_EQ(parseErrorOf(mixture(513)), KOSTYLE_PARSE_TERMINATED);
}

TEST(Nesting, IsCountedBelowUnknownKeysToo) {
  EXPECT_EQ(outcomeOf(documentWith("\"x\":" + arrays(511))), taken());
  EXPECT_EQ(parseErrorOf(documentWith("\"x\":" + arrays(512))), KOSTYLE_PARSE_TERMINATED);
  EXPECT_EQ(outcomeOf(documentWith("\"x\":" + objects(511))), taken());
  EXPECT_EQ(parseErrorOf(documentWith("\"x\":" + objects(512))), KOSTYLE_PARSE_TERMINATED);
  EXPECT_EQ(outcomeOf(documentWith("\"x\":" + mixture(511))), taken());
  EXPECT_EQ(parseErrorOf(documentWith("\"x\":" + mixture(512))), KOSTYLE_PARSE_TERMINATED);
}

TEST(Nesting, IsCountedInPlaceToo) {
  using test::documentWithParameters;
  EXPECT_EQ(outcomeOf(documentWithParameters("\"p\":" + arrays(508))), taken());
  EXPECT_EQ(parseErrorOf(documentWithParameters("\"p\":" + arrays(509))), KOSTYLE_PARSE_TERMINATED);
  EXPECT_EQ(outcomeOf(documentWith("\"filter\":" + objects(511))), taken());
  EXPECT_EQ(parseErrorOf(documentWith("\"filter\":" + objects(512))), KOSTYLE_PARSE_TERMINATED);
  EXPECT_EQ(outcomeOf(documentWith("\"vendor\":" + mixture(511))), taken());
  EXPECT_EQ(parseErrorOf(documentWith("\"vendor\":" + mixture(512))), KOSTYLE_PARSE_TERMINATED);
}

TEST(Nesting, LevelsThatWereLeftDoNotCount) {
  EXPECT_EQ(outcomeOf("[" + repeated(arrays(511) + ",", 20) + objects(511) + "]"),
            refused(KOSTYLE_ERROR_WRONG_TYPE, "/"));
  EXPECT_EQ(outcomeOf("[" + repeated("[],{},", 100000) + "0]"), refused(KOSTYLE_ERROR_WRONG_TYPE, "/"));
  EXPECT_EQ(parseErrorOf("[" + repeated(arrays(511) + ",", 20) + objects(512) + "]"),
            KOSTYLE_PARSE_TERMINATED);
}

TEST(Nesting, BracketsInTextsDoNotCount) {
  EXPECT_EQ(outcomeOf(documentWith("\"vendor\":\"" + repeated("[", 2000) + "\"")), taken());
}

TEST(Nesting, AMillionBracketsAreASyntaxError) {
  EXPECT_EQ(outcomeOf(repeated("[", 1000000)), syntaxError(KOSTYLE_PARSE_TERMINATED, 514));
  EXPECT_EQ(outcomeOf(repeated("{\"a\":", 1000000)), syntaxError(KOSTYLE_PARSE_TERMINATED, 2562));
  EXPECT_EQ(parseErrorOf(repeated("[{\"\":", 1000000)), KOSTYLE_PARSE_TERMINATED);
  EXPECT_EQ(parseErrorOf(documentWith("\"x\":" + repeated("[", 1000000))), KOSTYLE_PARSE_TERMINATED);
}

TEST(Nesting, TheOffsetCountsBytes) {
  for (const test::Encoding encoding : test::allEncodings()) {
    EXPECT_EQ(outcomeOf(encoded(repeated("[", 600), encoding)),
              syntaxError(KOSTYLE_PARSE_TERMINATED, 514 * unitSize(encoding)))
        << nameOf(encoding);
  }
}

TEST(Nesting, ASmallStackIsEnough) {
  const test::FileReader reader;
  std::vector<test::Outcome> outcomes;
  test::runOnSmallStack([&] {
    for (const std::string& document :
         {repeated("[", 1000000), repeated("{\"a\":", 1000000), arrays(512), objects(512), mixture(512),
          documentWith("\"x\":" + mixture(511)), documentWith("\"x\":" + objects(511))})
      outcomes.push_back(reader.read(document).outcome);
  });
  EXPECT_THAT(outcomes,
              testing::ElementsAre(syntaxError(KOSTYLE_PARSE_TERMINATED, 514),
                                   syntaxError(KOSTYLE_PARSE_TERMINATED, 2562),
                                   refused(KOSTYLE_ERROR_WRONG_TYPE, "/"),
                                   refused(KOSTYLE_ERROR_MEMBER_MISSING, "/id"),
                                   refused(KOSTYLE_ERROR_MEMBER_MISSING, "/id"), taken(), taken()));
}

TEST(Nesting, ASmallStackIsEnoughInEveryEncoding) {
  const test::FileReader reader;
  std::vector<test::Outcome> outcomes;
  test::runOnSmallStack([&] {
    for (const test::Encoding encoding : test::allEncodings()) {
      outcomes.push_back(reader.read(encoded(documentWith("\"x\":" + mixture(511)), encoding)).outcome);
      const test::Outcome tooDeep = reader.read(encoded(repeated("[", 1000000), encoding)).outcome;
      EXPECT_EQ(tooDeep.parseError, KOSTYLE_PARSE_TERMINATED) << nameOf(encoding);
    }
  });
  EXPECT_THAT(outcomes, testing::Each(taken()));
}

}  // namespace
