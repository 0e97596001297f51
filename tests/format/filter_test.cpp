// The attribute lists of a document.
#include <gmock/gmock.h>

#include "support/file_reader.h"

namespace {

using test::StoredValue;
using test::Text;
using test::text;
using testing::ElementsAre;
using testing::IsEmpty;

StoredValue withFilter(const std::string& members) {
  return test::styleOf(test::documentWith(R"("filter":{)" + members + "}"));
}

TEST(Filter, LanguagesAreTakenFrom0To4) {
  EXPECT_THAT(withFilter(R"("languages":[4,5,-1,4,"1",0])").languages, ElementsAre(0, 4));
  EXPECT_THAT(withFilter(R"("languages":[3,1,2,0,4])").languages, ElementsAre(0, 1, 2, 3, 4));
  EXPECT_THAT(withFilter(R"("languages":[1.0,2e0,null,true,[3],{"a":3},"4",4294967297,-4294967295,
                            18446744073709551617])")
                  .languages,
              IsEmpty());
  EXPECT_THAT(withFilter(R"("languages":[-0])").languages, ElementsAre(0));
}

TEST(Filter, SingerIDsAreTakenAt16Units) {
  EXPECT_THAT(withFilter(R"("singerIDs":["123456789012345","1234567890123456","12345678901234567",""])")
                  .lists[test::singerIDs],
              ElementsAre(text("1234567890123456")));
  // Eight characters of two units each; sixteen of one unit and three bytes.
  const std::string pairs =
      "\xF0\x9F\x98\x80\xF0\x9F\x98\x80\xF0\x9F\x98\x80\xF0\x9F\x98\x80"
      "\xF0\x9F\x98\x80\xF0\x9F\x98\x80\xF0\x9F\x98\x80\xF0\x9F\x98\x80";
  EXPECT_THAT(withFilter("\"singerIDs\":[\"" + pairs + "\"]").lists[test::singerIDs],
              ElementsAre(text(pairs)));
  EXPECT_THAT(withFilter(R"("singerIDs":["a\u0000aaaaaaaaaaaaaa"])").lists[test::singerIDs].size(), 1u);
}

/// Runs for each list that takes any text that is not empty.
class TextLists : public testing::TestWithParam<std::size_t> {
 protected:
  static std::string key() { return test::textLists()[GetParam()].name; }
  static std::vector<Text> read(const std::string& array) {
    return withFilter("\"" + key() + "\":" + array).lists[GetParam()];
  }
};

TEST_P(TextLists, AreSortedWithoutDuplicatesAndEmptyTexts) {
  EXPECT_THAT(read(R"(["b","","a","b"])"), ElementsAre(text("a"), text("b")));
  EXPECT_THAT(read(R"(["b","B","ä","a","aa"])"),
              ElementsAre(text("B"), text("a"), text("aa"), text("b"), text("\xC3\xA4")));
  EXPECT_THAT(read("[\"\xEF\xBD\x9E\",\"\xF0\x9F\x98\x80\"]"),
              ElementsAre(text("\xF0\x9F\x98\x80"), text("\xEF\xBD\x9E")));
}

TEST_P(TextLists, TellTextsApartExactly) {
  const Text loneLow(1, KoStyleChar(0xDC00));
  EXPECT_THAT(read(R"(["x","\uDC00","x\u0000","X","x","x\u0000"])"),
              ElementsAre(text("X"), text("x"), text("x"), loneLow));
}

TEST_P(TextLists, LeaveOutElementsOfOtherTypes) {
  EXPECT_THAT(read(R"([1,"x",1.5,null,true,["y"],{"z":"z"}])"), ElementsAre(text("x")));
}

TEST_P(TextLists, AreEmptyWhenTheMemberIsNoArray) {
  for (const char* value : {"\"x\"", "{\"0\":\"x\"}", "1", "null", "true", "[]"})
    EXPECT_THAT(read(value), IsEmpty()) << value;
}

TEST_P(TextLists, StandAlone) {
  const auto style = withFilter("\"" + key() + R"(":["x"])");
  StoredValue expected = test::styleOf(test::documentWith(""));
  expected.lists[GetParam()] = {text("x")};
  EXPECT_EQ(style, expected);
}

TEST_P(TextLists, HoldManyTexts) {
  std::string array = "[";
  for (int i = 0; i < 5000; ++i) array += "\"" + std::to_string(i * 7919 % 5000) + "\",";
  EXPECT_EQ(read(array + "\"0\"]").size(), 5000u);
}

INSTANTIATE_TEST_SUITE_P(All, TextLists,
                         testing::Values(test::singerGroups, test::genres, test::subGenres,
                                         test::colors),
                         [](const auto& list) { return test::textLists()[list.param].name; });

TEST(Filter, OnePartOfTheWrongTypeLeavesTheOthers) {
  const auto style = withFilter(
      R"("languages":{"0":1},"singerGroups":"g","singerIDs":null,"genres":["g"],"subGenres":5,"colors":["c"])");
  EXPECT_THAT(style.languages, IsEmpty());
  EXPECT_THAT(style.lists[test::singerGroups], IsEmpty());
  EXPECT_THAT(style.lists[test::singerIDs], IsEmpty());
  EXPECT_THAT(style.lists[test::genres], ElementsAre(text("g")));
  EXPECT_THAT(style.lists[test::subGenres], IsEmpty());
  EXPECT_THAT(style.lists[test::colors], ElementsAre(text("c")));
}

TEST(Filter, IsNotReadUnlessItIsAnObject) {
  const StoredValue plain = test::styleOf(test::documentWith(""));
  for (const std::string value : {"[]", "null", "\"genres\"", "1", R"([{"genres":["g"]}])", "{}"})
    EXPECT_EQ(test::styleOf(test::documentWith("\"filter\":" + value)), plain) << value;
  EXPECT_NE(test::styleOf(test::documentWith(R"("filter":{"genres":["g"]})")), plain);
}

TEST(Filter, OfDuplicateListsTheFirstCounts) {
  EXPECT_THAT(withFilter(R"("colors":5,"colors":["c"])").lists[test::colors], IsEmpty());
  EXPECT_THAT(withFilter(R"("colors":["b"],"colors":["c"])").lists[test::colors],
              ElementsAre(text("b")));
}

}  // namespace
