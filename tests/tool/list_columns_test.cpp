// What a listing shows: columns that fit, the order of the styles, and which of them.
#include <sstream>

#include "tool/environment.h"
#include "tool/tool.h"

namespace test {
namespace {

class ListColumns : public testing::Test {
 protected:
  ListColumns() {
    writeFile(
        user_ / "a.kostyle",
        R"({"id":"night","name":"港の夜","vendor":"Ours","filter":{"languages":[1],"genres":["演歌"],
                  "singerGroups":["Solo"]},"audioEffect":{"Chorus":{"parameter":{}}}})");
    writeFile(
        user_ / "b.kostyle",
        R"({"id":"Morning","name":"A very long name of a very quiet style","filter":{"languages":[0,1],
                  "genres":["Folk","Pop"],"subGenres":["Ballad"],"colors":["White"]},
                  "audioEffect":{"EQ":{"parameter":{}},"Reverb":{"parameter":{}}},
                  "midiEffect":{"Arp":{"parameter":{}}}})");
    std::string eleven;
    for (int i = 0; i < 11; ++i)
      eleven += (i ? ",\"E" : "\"E") + std::to_string(i) + R"(":{"parameter":{}})";
    writeFile(user_ / "c.kostyle", R"({"id":"zoo","name":"zoo","audioEffect":{)" + eleven + "}}");
  }

  std::string list(const Arguments& more) const {
    const Outcome outcome = runTool(Arguments{"list", "--user", argument(user_)} + more);
    expectSuccess(outcome);
    return outcome.out;
  }
  // The identifiers in the order of the listing.
  std::vector<std::string> ids(const Arguments& more) const {
    std::istringstream lines(list(Arguments{"--columns", "id", "--sort", "id"} + more));
    std::vector<std::string> found;
    for (std::string line; std::getline(lines, line);) found.push_back(line);
    found.erase(found.begin());
    return found;
  }

  const TemporaryDirectory directory_;
  const fs::path user_ = directory_.folder("user");
};

TEST_F(ListColumns, AreThoseThatAreNamed) {
  EXPECT_EQ(list({"--columns", "id,effects,vendor", "--sort", "id"}),
            "ID       EFFECTS  VENDOR\nMorning  3\nnight    1        Ours\nzoo      11\n");
  EXPECT_THAT(list({"--columns", "path"}), HasSubstr("\n" + printed(user_ / "a.kostyle") + "\n"));
}

TEST_F(ListColumns, SortStyles) {
  const auto first = [&](const char* column) {
    const std::string text = list({"--columns", "id", "--sort", column});
    return text.substr(3, text.find('\n', 3) - 3);
  };
  EXPECT_EQ(first("name"), "Morning");
  EXPECT_EQ(first("path"), "night");
  EXPECT_EQ(list({"--columns", "effects", "--sort", "effects"}), "EFFECTS\n1\n3\n11\n");
}

TEST_F(ListColumns, AreRefusedWhenTheyAreUnknown) {
  const auto refused = [&](const char* option, const char* name) {
    return runTool({"list", "--user", argument(user_), option, name});
  };
  expectFailure(refused("--columns", "name,gneres"), 2, "--columns: \"gneres\" is none of kind, name");
  expectFailure(refused("--columns", "name,gneres"), 2, "did you mean \"genres\"?");
  expectFailure(refused("--language", "5"), 2,
                "--language: \"5\" is not taken; a number from 0 to 4 is");
  expectFailure(refused("--language", "en"), 2, "--language: \"en\" is not taken");
  expectFailure(refused("--sort", "size"), 2, "--sort: \"size\" is none of kind, name");
}

TEST_F(ListColumns, FitTheWidth) {
  for (const int width : {200, 120, 80, 60, 40, 20, 10}) {
    const OtherVariable columns("COLUMNS", std::to_string(width));
    std::istringstream lines(list({}));
    for (std::string line; std::getline(lines, line);) {
      // The wide characters of this test are of three bytes, and so is the ellipsis, which is not wide.
      int columnsTaken = 0;
      for (std::size_t i = 0; i < line.size();) {
        const bool isThree = static_cast<unsigned char>(line[i]) >= 0xE0;
        columnsTaken += !isThree || line.compare(i, 3, "…") == 0 ? 1 : 2;
        i += isThree ? 3 : 1;
      }
      EXPECT_LE(columnsTaken, width) << line;
    }
  }
}

TEST_F(ListColumns, AreLeftOutAndCutByDisplay) {
  const OtherVariable columns("COLUMNS", "20");
  EXPECT_EQ(list({"--columns", "id,name", "--sort", "id"}),
            "ID       NAME\nMorning  A very lon…\nnight    港の夜\nzoo      zoo\n");
  EXPECT_EQ(list({"--sort", "id"}), "NAME\nA very long name of…\n港の夜\nzoo\n");
  const OtherVariable narrow("COLUMNS", "6");
  EXPECT_EQ(list({"--columns", "name", "--sort", "id"}), "NAME\nA ver…\n港の夜\nzoo\n");
  const OtherVariable narrower("COLUMNS", "5");
  EXPECT_EQ(list({"--columns", "name", "--sort", "id"}), "NAME\nA ve…\n港の…\nzoo\n");
  const OtherVariable least("COLUMNS", "4");
  EXPECT_EQ(list({"--columns", "name", "--sort", "id"}), "NAME\nA v…\n港…\nzoo\n");
}

TEST_F(ListColumns, AreAllThereWhenAskedForWide) {
  const std::string whole = list({});
  const OtherVariable columns("COLUMNS", "20");
  EXPECT_NE(list({}), whole);
  EXPECT_EQ(list({"--wide"}), whole);
}

TEST_F(ListColumns, KeepCombiningMarksWithTheirLetter) {
  writeFile(user_ / "a.kostyle", document("a", "nai\u0308ve e\u0301tude, हिन्दी"));
  const OtherVariable columns("COLUMNS", "4");
  EXPECT_THAT(list({"--columns", "name", "--text", "tude"}), testing::EndsWith("\nnai\u0308…\n"));
  const OtherVariable more("COLUMNS", "14");
  EXPECT_THAT(list({"--columns", "name", "--text", "tude"}),
              testing::EndsWith("\nnai\u0308ve e\u0301tude, …\n"));
  const OtherVariable all("COLUMNS", "18");
  EXPECT_THAT(list({"--columns", "name", "--text", "tude"}), testing::EndsWith("हिन्दी\n"));
}

TEST_F(ListColumns, ShowStylesThatMatch) {
  EXPECT_THAT(ids({}), ElementsAre("Morning", "night", "zoo"));
  EXPECT_THAT(ids({"--genre", "pop"}), ElementsAre("Morning"));
  EXPECT_THAT(ids({"--genre", "po"}), ElementsAre());
  EXPECT_THAT(ids({"--genre", "Pop", "--genre", "演歌"}), ElementsAre("Morning", "night"));
  EXPECT_THAT(ids({"--language", "1"}), ElementsAre("Morning", "night"));
  EXPECT_THAT(ids({"--language", "0", "--language", "4"}), ElementsAre("Morning"));
  EXPECT_THAT(ids({"--language", "1", "--genre", "folk"}), ElementsAre("Morning"));
  EXPECT_THAT(ids({"--singer-group", "solo"}), ElementsAre("night"));
  EXPECT_THAT(ids({"--sub-genre", "Ballad"}), ElementsAre("Morning"));
  EXPECT_THAT(ids({"--color", "white"}), ElementsAre("Morning"));
  EXPECT_THAT(ids({"--effect", "arp"}), ElementsAre("Morning"));
  EXPECT_THAT(ids({"--effect", "E10"}), ElementsAre("zoo"));
  EXPECT_THAT(ids({"--text", "OURS"}), ElementsAre("night"));
  EXPECT_THAT(ids({"--text", "or"}), ElementsAre("Morning", "night"));
  const auto document = parseJson(list({"--json", "--genre", "pop"}));
  EXPECT_EQ(document["styles"].Size(), 1u);
}

// A file that is refused belongs to nobody's genre, and yet has to be told of.
TEST_F(ListColumns, TellOfRefusedFilesWhateverMatches) {
  writeFile(user_ / "same.kostyle", document("night", "Same"));
  const Outcome outcome = runTool({"list", "--user", argument(user_), "--genre", "Pop", "--json"});
  EXPECT_EQ(outcome.exitCode, 1);
  const auto document = parseJson(outcome.out);
  ASSERT_EQ(document["refused"].Size(), 1u);
  const std::vector<std::string> both{document["refused"][0]["path"].GetString(),
                                      document["refused"][0]["owner"].GetString()};
  EXPECT_THAT(both, testing::UnorderedElementsAre(printed(user_ / "a.kostyle"),
                                                  printed(user_ / "same.kostyle")));
}

}  // namespace
}  // namespace test
