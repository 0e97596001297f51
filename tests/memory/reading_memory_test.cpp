// Running out of memory while a style directory is read.
#include <gmock/gmock.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "format/encodings.h"
#include "format/style_snapshot.h"
#include "manager/style_manager.h"
#include "memory/failing_allocations.h"
#include "support/temporary_directory.h"

namespace {

using namespace Tesk::KoStyle;

const char* const rich =
    R"({"id":"rich","name":"A name that is long enough to be allocated","vendor":"V",
  "filter":{"languages":[0,4],"singerGroups":["b","a"],"singerIDs":["1234567890123456"],
  "genres":["a genre with a long name","b"],"subGenres":["c"],"colors":["d","e"]},
  "audioEffect":{"An effect with a long name":{"parameter":{"a parameter with a long name":1,
  "b":2.5,"c":"a value with a long text in it","Tarn":0}},"F":{"parameter":[]}},
  "midiEffect":{"M":{"script":"a script that is thrown away","parameter":{"p":"x"}}}})";

class ReadingWithoutMemory : public testing::Test {
 protected:
  ReadingWithoutMemory() {
    test::writeFile(system / "rich.kostyle", rich);
    test::writeFile(system / "wide.kostyle", test::encoded(std::string(rich).replace(7, 4, "wide"),
                                                           test::Encoding::utf16be, true));
    test::writeFile(system / "broken.kostyle", std::string(rich).substr(0, 300));
    test::writeFile(system / "empty.kostyle", "");
    test::writeFile(system / "unnamed.kostyle", R"({"id":"unnamed"})");
    test::writeFile(system / "deep.kostyle", std::string(5000, '['));
    test::writeFile(system / "noeffect.kostyle", R"({"id":"n","name":"N","audioEffect":{"E":{}}})");
    test::writeFile(system / "other.txt", rich);
    test::writeFile(further / "again.kostyle", rich);
    test::writeFile(user / "user.kostyle", std::string(rich).replace(7, 4, "user"));
    manager.readUserStyles();
    manager.readSystemStyles();
  }

  using Records = std::vector<std::pair<Text, std::uint32_t>>;

  Records records(StyleKind kind) {
    Records records;
    for (const StyleCreationResult& record : *manager.creationResults(kind))
      records.emplace_back(record.filePath(), record.error());
    return records;
  }

  std::vector<test::StyleSnapshot> styles(StyleKind kind) {
    std::vector<test::StyleSnapshot> styles;
    for (const StyleBase& style : manager.styles(kind)) styles.push_back(test::snapshot(style));
    return styles;
  }

  // Whether a list is the front of another.
  template <class List>
  static bool isFrontOf(const List& list, const List& whole) {
    return list.size() <= whole.size() && std::equal(list.begin(), list.end(), whole.begin());
  }

  test::TemporaryDirectory directory;
  test::fs::path system = directory.folder("system");
  test::fs::path further = directory.folder("further");
  test::fs::path user = directory.folder("user");
  StyleManager manager{
      test::text("app"), test::pathText(system), test::pathText(user), {test::pathText(further)}, {}};
};

TEST_F(ReadingWithoutMemory, KeepsWhatWasReadSoFarAndReadsAllLater) {
  const Records allRecords = records(StyleKind::system);
  const auto allStyles = styles(StyleKind::system);
  ASSERT_EQ(allRecords.size(), 8u);
  ASSERT_EQ(allStyles.size(), 2u);
  const auto userRecords = records(StyleKind::user);
  const auto userStyles = styles(StyleKind::user);
  std::set<std::size_t> countsSeen;

  const auto check = [&](long n, bool thrown) {
    ASSERT_TRUE(thrown) << n;
    const Records read = records(StyleKind::system);
    countsSeen.insert(read.size());
    EXPECT_TRUE(isFrontOf(read, allRecords)) << n;
    EXPECT_TRUE(isFrontOf(styles(StyleKind::system), allStyles)) << n;
    const auto taken =
        std::count_if(read.begin(), read.end(), [](const auto& record) { return record.second == 0; });
    EXPECT_EQ(manager.numSystemStyle(), static_cast<std::size_t>(taken)) << n;
    for (std::size_t i = 0; i < manager.numSystemStyle(); ++i) {
      EXPECT_TRUE(manager.hasSystemStyle(manager.systemStyle(i)));
      EXPECT_EQ(manager.systemStyle(i)->next(), manager.systemStyle(i + 1));
    }
    for (std::size_t i = 0; i < read.size(); ++i) {
      EXPECT_EQ(manager.systemStyleCreationResult(i)->next(), manager.systemStyleCreationResult(i + 1));
    }
    EXPECT_EQ(records(StyleKind::user), userRecords);
    EXPECT_EQ(styles(StyleKind::user), userStyles);
    if (n % 16 == 0) {
      EXPECT_EQ(manager.readSystemStyles(), KOSTYLE_OK);
      EXPECT_EQ(records(StyleKind::system), allRecords);
      EXPECT_EQ(styles(StyleKind::system), allStyles);
    }
  };
  const long failures = test::failEachAllocation([&] { manager.readSystemStyles(); }, check);
  EXPECT_GT(failures, 100);
  EXPECT_EQ(countsSeen.size(), 8u) << "a failure at every file";
  EXPECT_EQ(records(StyleKind::system), allRecords);
  EXPECT_EQ(styles(StyleKind::system), allStyles);
}

}  // namespace
