// The example styles: all good ones are read, all broken ones refused, each for its own reason.
#include <set>

#include "tool/tool.h"

namespace test {
namespace {

std::size_t countFiles(const char* folder) { return entryNames(exampleStyles() / folder).size(); }

TEST(Examples, AreAllRead) {
  const Outcome outcome = runTool({"list", "--json", "--system", argument(exampleStyles() / "system"),
                                   "--user", argument(exampleStyles() / "user")});
  expectSuccess(outcome);
  const auto document = parseJson(outcome.out);
  EXPECT_GE(document["styles"].Size(), 12u);
  EXPECT_EQ(document["styles"].Size(), countFiles("system") + countFiles("user"));
  for (const auto& style : document["styles"].GetArray()) {
    EXPECT_STRNE(style["name"].GetString(), "");
    EXPECT_GE(style["audioEffects"].Size() + style["midiEffects"].Size(), 1u);
  }
}

// The shortest text that tells the encoding: the mark, or the first bytes.
std::string encodingOf(const fs::path& path) {
  const std::string start = readFile(path).substr(0, 4);
  using namespace std::string_literals;
  if (start == "\xFF\xFE\0\0"s) return "UTF-32LE with mark";
  if (start.substr(0, 3) == "\xEF\xBB\xBF") return "UTF-8 with mark";
  if (start.substr(0, 2) == "\xFF\xFE") return "UTF-16LE with mark";
  if (start.substr(0, 2) == "\xFE\xFF") return "UTF-16BE with mark";
  return start.find('\0') == start.npos ? "UTF-8" : "UTF-16LE";
}

TEST(Examples, StandInEveryEncoding) {
  std::set<std::string> encodings;
  for (const char* folder : {"system", "user"})
    for (const auto& entry : fs::directory_iterator(exampleStyles() / folder))
      encodings.insert(encodingOf(entry.path()));
  EXPECT_THAT(encodings, testing::UnorderedElementsAre("UTF-8", "UTF-8 with mark", "UTF-16LE",
                                                       "UTF-16LE with mark", "UTF-16BE with mark",
                                                       "UTF-32LE with mark"));
}

TEST(Examples, InUtf16ShowTheirText) {
  const auto style = styleIn(exampleStyles() / "system" / "harbour_night.kostyle");
  EXPECT_STREQ(style["name"].GetString(), "港の夜");
  EXPECT_THAT(texts(style["genres"]), ElementsAre("歌謡曲", "演歌"));
}

TEST(Examples, ThatAreBrokenAreRefusedForDifferentReasons) {
  const Outcome outcome = runTool({"list", "--json", "--system", argument(exampleStyles() / "system"),
                                   "--user", argument(exampleStyles() / "broken")});
  EXPECT_EQ(outcome.exitCode, 1);
  const auto document = parseJson(outcome.out);
  EXPECT_EQ(document["styles"].Size(), countFiles("system"));
  EXPECT_EQ(document["refused"].Size(), countFiles("broken"));
  std::set<std::string> reasons;
  for (const auto& refused : document["refused"].GetArray()) {
    std::string reason = std::to_string(refused["code"].GetInt()) + refused["jsonPath"].GetString();
    if (refused.HasMember("parseError"))
      reason += " " + std::to_string(refused["parseError"]["code"].GetInt());
    reasons.insert(reason);
  }
  EXPECT_EQ(reasons.size(), countFiles("broken"));
  for (const char* reason :
       {"17 1", "17 4", "17 11", "17 13", "17 16", "19/name", "20/", "20/name", "21/id", "22", "23/"})
    EXPECT_EQ(reasons.count(reason), 1u) << reason;
}

}  // namespace
}  // namespace test
