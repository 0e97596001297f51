// The attribute lists of a document.
#include <gmock/gmock.h>

#include "format/sample_documents.h"

namespace {

using test::StyleSnapshot;
using test::Text;
using test::text;
using testing::ElementsAre;
using testing::IsEmpty;

StyleSnapshot withFilter(const std::string& members) {
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
                  .singerIDs,
              ElementsAre(text("1234567890123456")));
  // Eight characters of two units each; sixteen of one unit and three bytes.
  const std::string pairs =
      "\xF0\x9F\x98\x80\xF0\x9F\x98\x80\xF0\x9F\x98\x80\xF0\x9F\x98\x80"
      "\xF0\x9F\x98\x80\xF0\x9F\x98\x80\xF0\x9F\x98\x80\xF0\x9F\x98\x80";
  EXPECT_THAT(withFilter("\"singerIDs\":[\"" + pairs + "\"]").singerIDs, ElementsAre(text(pairs)));
  EXPECT_THAT(withFilter(R"("singerIDs":["a\u0000aaaaaaaaaaaaaa"])").singerIDs.size(), 1u);
}

struct List {
  const char* key;
  std::vector<Text> StyleSnapshot::*values;
};

void PrintTo(const List& list, std::ostream* out) { *out << list.key; }

class TextLists : public testing::TestWithParam<List> {
 protected:
  static std::vector<Text> read(const std::string& array) {
    return withFilter("\"" + std::string(GetParam().key) + "\":" + array).*GetParam().values;
  }
};

TEST_P(TextLists, AreSortedWithoutDuplicatesAndEmptyTexts) {
  EXPECT_THAT(read(R"(["b","","a","b"])"), ElementsAre(text("a"), text("b")));
  EXPECT_THAT(read(R"(["b","B","ä","a","aa"])"),
              ElementsAre(text("B"), text("a"), text("aa"), text("b"), text("\xC3\xA4")));
  EXPECT_THAT(read("[\"\xEF\xBD\x9E\",\"\xF0\x9F\x98\x80\"]"),
              ElementsAre(text("\xF0\x9F\x98\x80"), text("\xEF\xBD\x9E")));
}

TEST_P(TextLists, LeaveOutElementsOfOtherTypes) {
  EXPECT_THAT(read(R"([1,"x",1.5,null,true,["y"],{"z":"z"}])"), ElementsAre(text("x")));
}

TEST_P(TextLists, AreEmptyWhenTheMemberIsNoArray) {
  for (const char* value : {"\"x\"", "{\"0\":\"x\"}", "1", "null", "true", "[]"})
    EXPECT_THAT(read(value), IsEmpty()) << value;
}

TEST_P(TextLists, StandAlone) {
  const auto style = withFilter("\"" + std::string(GetParam().key) + R"(":["x"])");
  StyleSnapshot expected = test::styleOf(test::documentWith(""));
  expected.*GetParam().values = {text("x")};
  EXPECT_EQ(style, expected);
}

TEST_P(TextLists, HoldManyTexts) {
  std::string array = "[";
  for (int i = 0; i < 5000; ++i) array += "\"" + std::to_string(i * 7919 % 5000) + "\",";
  EXPECT_EQ(read(array + "\"0\"]").size(), 5000u);
}

INSTANTIATE_TEST_SUITE_P(All, TextLists,
                         testing::Values(List{"singerGroups", &StyleSnapshot::singerGroups},
                                         List{"genres", &StyleSnapshot::genres},
                                         List{"subGenres", &StyleSnapshot::subGenres},
                                         List{"colors", &StyleSnapshot::colors}),
                         [](const auto& list) { return std::string(list.param.key); });

TEST(Filter, OnePartOfTheWrongTypeLeavesTheOthers) {
  const auto style = withFilter(
      R"("languages":{"0":1},"singerGroups":"g","singerIDs":null,"genres":["g"],"subGenres":5,"colors":["c"])");
  EXPECT_THAT(style.languages, IsEmpty());
  EXPECT_THAT(style.singerGroups, IsEmpty());
  EXPECT_THAT(style.singerIDs, IsEmpty());
  EXPECT_THAT(style.genres, ElementsAre(text("g")));
  EXPECT_THAT(style.subGenres, IsEmpty());
  EXPECT_THAT(style.colors, ElementsAre(text("c")));
}

TEST(Filter, IsNotReadUnlessItIsAnObject) {
  const StyleSnapshot plain = test::styleOf(test::documentWith(""));
  for (const std::string value : {"[]", "null", "\"genres\"", "1", R"([{"genres":["g"]}])", "{}"})
    EXPECT_EQ(test::styleOf(test::documentWith("\"filter\":" + value)), plain) << value;
  EXPECT_NE(test::styleOf(test::documentWith(R"("filter":{"genres":["g"]})")), plain);
}

TEST(Filter, OfDuplicateListsTheFirstCounts) {
  EXPECT_THAT(withFilter(R"("colors":5,"colors":["c"])").colors, IsEmpty());
  EXPECT_THAT(withFilter(R"("colors":["b"],"colors":["c"])").colors, ElementsAre(text("b")));
}

}  // namespace
