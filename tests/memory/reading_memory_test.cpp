// Running out of memory while a style directory is read.
#include <gmock/gmock.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "memory/failing_allocations.h"
#include "support/encodings.h"
#include "support/host.h"
#include "support/stored_sets.h"
#include "support/style_walk.h"

namespace {

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
    StyleManager_readUserStyles(manager);
    StyleManager_readSystemStyles(manager);
  }

  using Records = std::vector<std::pair<test::Text, int>>;

  Records records(std::size_t kind) const {
    Records records;
    for (std::size_t i = 0; KoStyleCreationResult* record = sets[kind].recordAt(manager, i); ++i)
      records.emplace_back(StyleCreationResult_filePath(record), StyleCreationResult_error(record));
    return records;
  }

  std::vector<test::StoredValue> styles(std::size_t kind) const {
    std::vector<test::StoredValue> styles;
    for (std::size_t i = 0; KoStyleStyle* style = sets[kind].at(manager, i); ++i)
      styles.push_back(test::storedValueOf(style));
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
  test::Manager manager{system, user, {further}};
  const std::array<test::StoredSet, 2>& sets = test::storedSets();
};

TEST_F(ReadingWithoutMemory, KeepsWhatWasReadSoFarAndReadsAllLater) {
  const Records allRecords = records(KOSTYLE_KIND_SYSTEM);
  const auto allStyles = styles(KOSTYLE_KIND_SYSTEM);
  ASSERT_EQ(allRecords.size(), 8u);
  ASSERT_EQ(allStyles.size(), 2u);
  const auto userRecords = records(KOSTYLE_KIND_USER);
  const auto userStyles = styles(KOSTYLE_KIND_USER);
  std::set<std::size_t> countsSeen;

  const auto check = [&](long n, bool thrown) {
    ASSERT_TRUE(thrown) << n;
    const Records read = records(KOSTYLE_KIND_SYSTEM);
    countsSeen.insert(read.size());
    EXPECT_TRUE(isFrontOf(read, allRecords)) << n;
    EXPECT_TRUE(isFrontOf(styles(KOSTYLE_KIND_SYSTEM), allStyles)) << n;
    const auto taken = std::count_if(read.begin(), read.end(),
                                     [](const auto& record) { return record.second == KOSTYLE_OK; });
    EXPECT_EQ(StyleManager_numSystemStyle(manager), static_cast<std::size_t>(taken)) << n;
    test::expectManagerWalks(manager);
    EXPECT_EQ(records(KOSTYLE_KIND_USER), userRecords);
    EXPECT_EQ(styles(KOSTYLE_KIND_USER), userStyles);
    if (n % 16 == 0) {
      EXPECT_EQ(StyleManager_readSystemStyles(manager), KOSTYLE_OK);
      EXPECT_EQ(records(KOSTYLE_KIND_SYSTEM), allRecords);
      EXPECT_EQ(styles(KOSTYLE_KIND_SYSTEM), allStyles);
    }
  };
  const long failures =
      test::failEachAllocation([&] { StyleManager_readSystemStyles(manager); }, check);
  EXPECT_GT(failures, 100);
  EXPECT_EQ(countsSeen.size(), 8u) << "a failure at every file";
  EXPECT_EQ(records(KOSTYLE_KIND_SYSTEM), allRecords);
  EXPECT_EQ(styles(KOSTYLE_KIND_SYSTEM), allStyles);
}

}  // namespace
