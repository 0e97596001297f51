// kostyle catalog: the file, and the data in it. What a browser makes of them is tried in
// tests/catalog.
#include "tool/tool.h"

#if !defined(_WIN32)
#include <sys/stat.h>
#endif

namespace test {
namespace {

using testing::Not;

constexpr const char* beforeData = R"(<script type="application/json" id="data">)";

std::size_t countIn(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != text.npos; at = text.find(part, at + 1)) ++count;
  return count;
}

/// The text of the data in a page.
std::string dataTextOf(const std::string& page) {
  const std::size_t start = page.find(beforeData);
  const std::size_t end = page.find("</script>", start);
  if (start == page.npos || end == page.npos) throw std::runtime_error("no data in the page: " + page);
  const std::size_t first = start + std::string(beforeData).size();
  return page.substr(first, end - first);
}

/// The page around its data.
std::string withoutData(const std::string& page) {
  const std::string data = dataTextOf(page);
  return std::string(page).replace(page.find(data), data.size(), "");
}

class CatalogTest : public testing::Test {
 protected:
  fs::path put(const std::string& name, const std::string& content) const {
    writeFile(styles_ / fs::u8path(name), content);
    return styles_ / fs::u8path(name);
  }

  Arguments to(const fs::path& page) const {
    return {"catalog", argument(styles_), "-o", argument(page)};
  }
  Outcome make() const { return runTool(to(page_)); }

  rapidjson::Document data() const { return parseJson(dataTextOf(readFile(page_))); }

  const TemporaryDirectory directory_;
  const fs::path styles_ = directory_.folder("styles");
  const fs::path page_ = directory_.folder("out") / "styles.html";
};

std::vector<std::string> names(const rapidjson::Document& data) {
  std::vector<std::string> result;
  for (const auto& file : data["files"].GetArray())
    result.emplace_back(file.HasMember("style") ? file["style"]["name"].GetString() : "refused");
  return result;
}

TEST_F(CatalogTest, HoldsWhatIsInAStyle) {
  put("a.kostyle", R"({"id":"I","name":"Nacht","vendor":"V","filter":{"languages":[3,0],
      "singerGroups":["Duo"],"singerIDs":["0123456789abcdef"],"genres":["Pop"],"subGenres":["Retro"],
      "colors":["#fff"]},"audioEffect":{"EQ":{"parameter":{"gain":0.5,"bands":3}},
      "Reverb":{"parameter":{"size":"hall"}}},"midiEffect":{"Arp":{"parameter":{}}}})");
  const Outcome outcome = make();
  expectSuccess(outcome);
  EXPECT_EQ(outcome.out, "");
  const auto data = this->data();
  EXPECT_STREQ(data["title"].GetString(), "Styles");
  EXPECT_THAT(texts(data["directories"]), ElementsAre(argument(styles_)));
  const auto& file = data["files"][0];
  EXPECT_EQ(file["file"].GetString(), argument(styles_) + "/a.kostyle");
  const auto& style = file["style"];
  EXPECT_STREQ(style["name"].GetString(), "Nacht");
  EXPECT_STREQ(style["id"].GetString(), "I");
  EXPECT_STREQ(style["vendor"].GetString(), "V");
  EXPECT_EQ(style["languages"].Size(), 2u);
  EXPECT_THAT(texts(style["singerIDs"]), ElementsAre("0123456789abcdef"));
  EXPECT_THAT(texts(style["colors"]), ElementsAre("#fff"));
  EXPECT_THAT(texts(style["audioEffects"][0]),
              ElementsAre("EQ", "bands", "int", "3", "gain", "float", "0.5"));
  EXPECT_THAT(texts(style["audioEffects"][1]), ElementsAre("Reverb", "size", "text", "hall"));
  EXPECT_THAT(texts(style["midiEffects"][0]), ElementsAre("Arp"));
}

TEST_F(CatalogTest, IsOneFileThatNamesNoOther) {
  put("a.kostyle", document("I", "N"));
  expectSuccess(make());
  const std::string page = readFile(page_);
  EXPECT_THAT(page, StartsWith("<!doctype html>\n"));
  EXPECT_THAT(page, testing::EndsWith("</html>\n"));
  EXPECT_EQ(countIn(page, "<script"), 2u);
  EXPECT_EQ(countIn(page, "</script>"), 2u);
  EXPECT_EQ(countIn(page, "<style>"), 1u);
  EXPECT_THAT(page, HasSubstr("default-src 'none'; script-src 'sha256-"));
  for (const char* const other : {"http:", "https:", "src=", "url(", "@import", "import ", "<link"})
    EXPECT_THAT(withoutData(page), Not(HasSubstr(other)));
  for (const char* const placeholder : {"@STYLE", "@SCRIPT", "@DATA"})
    EXPECT_THAT(page, Not(HasSubstr(placeholder)));
  EXPECT_EQ(countIn(page, "href="), countIn(page, "href=\"#"));
}

TEST_F(CatalogTest, NothingInAStyleLeavesItsText) {
  put("&amp;.kostyle",
      "\xEF\xBB\xBF"
      R"({"id":"&amp;","name":"</script><script>alert(1)</script><!--",
      "vendor":"\u2028\u202e\u0007\u007f\u200f","filter":{"genres":["\"'`{{}}\\"]},
      "audioEffect":{"<b>":{"parameter":{"\udc00":"\u2066é𝄞"}}}})");
  make();
  const std::string text = dataTextOf(readFile(page_));
  EXPECT_EQ(text.find_first_of("<>&\x7F"), text.npos);
  for (const char c : text) ASSERT_TRUE(c >= ' ' && c <= '~') << static_cast<int>(c);
  const auto data = parseJson(text);
  const auto& style = data["files"][0]["style"];
  EXPECT_STREQ(style["name"].GetString(), "</script><script>alert(1)</script><!--");
  EXPECT_STREQ(style["vendor"].GetString(), "\\u2028\\u202e\\u0007\\u007f\\u200f");
  EXPECT_STREQ(style["id"].GetString(), "&amp;");
  EXPECT_THAT(texts(style["genres"]), ElementsAre("\"'`{{}}\\"));
  EXPECT_THAT(texts(style["audioEffects"][0]), ElementsAre("<b>", "\xEF\xBF\xBD", "text", "\\u2066é𝄞"));
}

TEST_F(CatalogTest, TellsWhatTheCheckFinds) {
  put("a.kostyle", documentWith(R"("x":1)"));
  expectSuccess(make());
  const auto data = this->data();
  const auto& findings = data["files"][0]["findings"];
  ASSERT_EQ(findings.Size(), 1u);
  EXPECT_STREQ(findings[0]["rule"].GetString(), "unknown-member");
  EXPECT_STREQ(findings[0]["path"].GetString(), "/x");
  EXPECT_THAT(texts(findings[0]["excerpt"]), ElementsAre(testing::EndsWith("}}},"), "\"x\"", ":1}"));
  EXPECT_STREQ(data["rules"]["unknown-member"]["severity"].GetString(), "warning");
  EXPECT_FALSE(data["rules"].HasMember("json-syntax"));
}

TEST_F(CatalogTest, MarksTheRightPartOfAWideLine) {
  put("a.kostyle", "{\"港の夜\": 1, \"名前\": " + document("I", "N").substr(1));
  EXPECT_EQ(make().exitCode, 1);
  const auto data = this->data();
  const auto excerpt = texts(data["files"][0]["findings"][0]["excerpt"]);
  EXPECT_THAT(excerpt[0], testing::EndsWith("\"名前\": \"id\""));
  EXPECT_EQ(excerpt[1], ":");
}

TEST_F(CatalogTest, ShowsTheFirstOfManyFindings) {
  std::string members;
  for (int i = 0; i < 130; ++i) members += (i > 0 ? ",\"x" : "\"x") + std::to_string(i) + "\":1";
  put("a.kostyle", documentWith(members));
  expectSuccess(make());
  const auto data = this->data();
  EXPECT_EQ(data["files"][0]["findings"].Size(), 100u);
  EXPECT_EQ(data["files"][0]["more"].GetUint(), 30u);
}

TEST_F(CatalogTest, RefusedFilesHaveTheirPlace) {
  put("a.kostyle", document("I", "N"));
  put("b.kostyle", "{");
  const Outcome outcome = make();
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err, "kostyle: notice: 1 of 2 files is refused; the page says why\n");
  const auto data = this->data();
  EXPECT_THAT(names(data), ElementsAre("N", "refused"));
  EXPECT_STREQ(data["files"][1]["findings"][0]["rule"].GetString(), "json-syntax");
}

TEST_F(CatalogTest, DirectoriesAreOneCollection) {
  const fs::path more = directory_.folder("more");
  put("a.kostyle", document("I", "First"));
  writeFile(more / "0.kostyle", document("I", "Second"));
  writeFile(more / "b.kostyle", document("J", "Third"));
  const auto makeOf = [&](const fs::path& one, const fs::path& other) {
    return runTool(
        {"catalog", argument(one), argument(other), "--title", "<Both>", "-o", argument(page_)});
  };
  EXPECT_EQ(makeOf(styles_, more).exitCode, 1);
  const auto data = this->data();
  EXPECT_STREQ(data["title"].GetString(), "<Both>");
  EXPECT_THAT(names(data), ElementsAre("First", "refused", "Third"));
  EXPECT_EQ(data["files"][0]["directory"].GetUint(), 0u);
  EXPECT_EQ(data["files"][2]["directory"].GetUint(), 1u);
  EXPECT_STREQ(data["files"][1]["findings"][0]["rule"].GetString(), "repeated-identifier");
  EXPECT_EQ(makeOf(more, styles_).exitCode, 1);
  EXPECT_THAT(names(this->data()), ElementsAre("Second", "Third", "refused"));
}

TEST_F(CatalogTest, ADirectoryMayBeEmpty) {
  expectSuccess(make());
  EXPECT_EQ(data()["files"].Size(), 0u);
}

TEST_F(CatalogTest, PrintsTheSamePage) {
  put("a.kostyle", document("I", "N"));
  expectSuccess(make());
  EXPECT_EQ(entryNames(directory_ / "out"), std::vector<std::string>{"styles.html"});
  const std::string page = readFile(page_);
  ASSERT_EQ(runTo(directory_ / "printed", directory_ / "err", KOSTYLE_TOOL, to("-")), 0);
  EXPECT_EQ(readFile(directory_ / "printed"), page);
}

TEST_F(CatalogTest, TakesThePlaceOfAnOlderPage) {
  put("a.kostyle", document("I", "N"));
  writeFile(page_, "older");
  expectSuccess(make());
  EXPECT_THAT(names(data()), ElementsAre("N"));
  EXPECT_EQ(entryNames(directory_ / "out"), std::vector<std::string>{"styles.html"});
}

TEST_F(CatalogTest, NeverReplacesAStyle) {
  const fs::path style = put("a.kostyle", document("I", "N"));
  const auto before = contents(directory_.path());
  expectFailure(runTool(to(style)), 2, "a style file, which no page may replace");
  expectFailure(runTool(to(directory_ / "new.KoStyle")), 2, "a style file");
  EXPECT_EQ(contents(directory_.path()), before);
  const fs::path link = directory_ / "out" / "link.html";
  fs::create_hard_link(style, link);
  expectFailure(runTool(to(link)), 2, "a style file");
  EXPECT_EQ(readFile(style), document("I", "N"));
}

TEST_F(CatalogTest, RefusesWrongUse) {
  const std::string styles = argument(styles_);
  const std::string page = argument(page_);
  expectFailure(runTool({"catalog", "-o", page}), 2, "DIR");
  expectFailure(runTool({"catalog", styles}), 2, "--output");
  expectFailure(runTool({"catalog", styles, "-o", ""}), 2, "the path of the page is empty");
  expectFailure(runTool({"catalog", "", "-o", page}), 2, "no such directory");
  expectFailure(runTool({"catalog", "-", "-o", page}), 2, "no such directory");
  expectFailure(runTool({"catalog", argument(put("a.kostyle", "")), "-o", page}), 2,
                "no such directory");
  expectFailure(runTool({"catalog", styles, styles + "/", "-o", page}), 2,
                "the directory is named twice");
  expectFailure(runTool(to(styles_)), 2, "a directory");
  expectFailure(runTool(to(directory_ / "none" / "styles.html")), 2, "no such directory");
  EXPECT_FALSE(fs::exists(page_));
}

TEST_F(CatalogTest, TakesNoNameThatReplacingNeeds) {
  for (const char* const name : {"kostyle.new", "kostyle.lock"}) {
    const fs::path page = directory_ / name;
    writeFile(page, "mine");
    expectFailure(runTool(to(page)), 1, "kostyle needs the name itself; give the file another one");
    EXPECT_EQ(readFile(page), "mine");
    fs::remove(page);
  }
}

#if !defined(_WIN32)
TEST_F(CatalogTest, WhatIsNoFileIsRefused) {
  ASSERT_EQ(mkfifo((styles_ / "pipe.kostyle").c_str(), 0600), 0);
  fs::create_symlink(directory_ / "nowhere", styles_ / "link.kostyle");
  EXPECT_EQ(make().exitCode, 1);
  EXPECT_THAT(names(data()), ElementsAre("refused", "refused"));
  EXPECT_FALSE(data()["files"][0]["findings"].Empty());
  EXPECT_STREQ(data()["files"][1]["findings"][0]["found"].GetString(), "not a regular file");
}

TEST_F(CatalogTest, KeepsModeAndLink) {
  const auto modeOf = [](const fs::path& file) {
    return static_cast<unsigned>(fs::status(file).permissions());
  };
  const mode_t before = umask(0027);
  expectSuccess(make());
  umask(before);
  EXPECT_EQ(modeOf(page_), 0640u);
  fs::permissions(page_, fs::perms(0604));
  const fs::path link = directory_ / "link.html";
  fs::create_symlink(page_, link);
  put("a.kostyle", document("I", "N"));
  expectSuccess(runTool(to(link)));
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_THAT(names(data()), ElementsAre("N"));
  EXPECT_EQ(modeOf(page_), 0604u);
}

TEST_F(CatalogTest, LeavesAnOlderPageOnAFullDisk) {
  writeFile(page_, "older");
  const Outcome outcome = runToolOnFullDisk(8, to(page_));
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.out, HasSubstr("its new content cannot be written"));
  EXPECT_EQ(readFile(page_), "older");
  EXPECT_EQ(entryNames(directory_ / "out"), std::vector<std::string>{"styles.html"});
}

TEST_F(CatalogTest, ReportsOutputThatCannotBeWritten) {
  EXPECT_EQ(runToolWithoutOutput(directory_ / "err", to("-")), 1);
  EXPECT_THAT(readFile(directory_ / "err"), HasSubstr("the output cannot be written"));
  expectFailure(runTool(to("/dev/full")), 2, "not a regular file");
}
#endif

}  // namespace
}  // namespace test
