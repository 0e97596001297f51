// The records that reading a directory leaves behind.
#include <gmock/gmock.h>

#include <map>

#include "api/exports.h"
#include "format/encodings.h"
#include "format/sample_documents.h"
#include "manager/style_manager.h"

namespace {

using namespace Tesk::KoStyle;
using testing::ElementsAre;
using testing::IsEmpty;

std::string document(const std::string& id) {
  return R"({"id":")" + id + R"(","name":"N","audioEffect":{"E":{"parameter":{}}}})";
}

class CreationResults : public testing::Test {
 protected:
  static std::string describe(const IStyleCreationResult& record) {
    return std::to_string(record.error()) + " " + test::utf8(record.id()) + " " +
           test::utf8(record.jsonPath()) + " " + std::to_string(record.parseError()) + "@" +
           std::to_string(record.parseErrorOffset());
  }

  // The records of the system files by file name.
  std::map<std::string, std::string> systemRecords() {
    std::map<std::string, std::string> records;
    for (std::size_t i = 0; const auto* record = manager.systemStyleCreationResult(i); ++i)
      records[nameOf(*record)] = describe(*record);
    return records;
  }
  static std::string nameOf(const IStyleCreationResult& record) {
    const std::string path = test::utf8(record.filePath());
    return path.substr(path.find_last_of("/\\") + 1);
  }

  void write(const test::fs::path& folder, const std::string& name, std::string_view bytes) {
    test::writeFile(folder / (name + ".kostyle"), bytes);
  }

  test::TemporaryDirectory directory;
  test::fs::path system = directory.folder("system");
  test::fs::path user = directory.folder("user");
  test::fs::path further = directory.folder("further");
  StyleManager manager{
      test::text("app"), test::pathText(system), test::pathText(user), {test::pathText(further)}, {}};
};

TEST_F(CreationResults, TellWhatBecameOfEachFile) {
  write(system, "taken", document("T"));
  write(system, "empty", "");
  write(system, "two", "{}{}");
  write(system, "noid", R"({"name":"N"})");
  write(system, "noname", R"({"id":"I"})");
  write(system, "array", "[]");
  write(system, "idtype", R"({"id":1,"name":"N"})");
  write(system, "nametype", R"({"id":"I","name":5})");
  write(system, "emptyid", R"({"id":"","name":"N"})");
  write(system, "emptyname", R"({"id":"I","name":""})");
  write(system, "noeffect", R"({"id":"I","name":"N","audioEffect":[]})");
  test::writeFile(system / "other.txt", document("X"));
  EXPECT_EQ(manager.readSystemStyles(), KOSTYLE_OK);
  EXPECT_EQ(systemRecords(), (std::map<std::string, std::string>{{"taken.kostyle", "0 T  0@0"},
                                                                 {"empty.kostyle", "17   1@0"},
                                                                 {"two.kostyle", "17   2@3"},
                                                                 {"noid.kostyle", "19  /id 0@0"},
                                                                 {"noname.kostyle", "19  /name 0@0"},
                                                                 {"array.kostyle", "20  / 0@0"},
                                                                 {"idtype.kostyle", "20  /id 0@0"},
                                                                 {"nametype.kostyle", "20  /name 0@0"},
                                                                 {"emptyid.kostyle", "21  /id 0@0"},
                                                                 {"emptyname.kostyle", "21  /name 0@0"},
                                                                 {"noeffect.kostyle", "23  / 0@0"}}));
  EXPECT_EQ(manager.numSystemStyle(), 1u);
  EXPECT_EQ(manager.numUserStyleCreationResult(), 0u);
}

TEST_F(CreationResults, HoldThePathAsListed) {
  write(system, "a", document("A"));
  write(further, "b", document("B"));
  manager.readSystemStyles();
  ASSERT_EQ(manager.numSystemStyleCreationResult(), 2u);
  const Text separator(1, platform::separator);
  EXPECT_EQ(manager.systemStyleCreationResult(0)->filePath(),
            test::pathText(system) + separator + test::text("a.kostyle"));
  EXPECT_EQ(manager.systemStyleCreationResult(1)->filePath(),
            test::pathText(further) + separator + test::text("b.kostyle"));
  EXPECT_EQ(Text(manager.systemStyle(0)->path()), manager.systemStyleCreationResult(0)->filePath());
  EXPECT_EQ(Text(manager.systemStyle(1)->path()), manager.systemStyleCreationResult(1)->filePath());
}

TEST_F(CreationResults, TypeTellsTheSet) {
  write(system, "a", document("A"));
  write(user, "b", "{");
  manager.readSystemStyles();
  manager.readUserStyles();
  EXPECT_EQ(manager.systemStyleCreationResult(0)->type(), unsigned{KOSTYLE_KIND_SYSTEM});
  EXPECT_EQ(manager.userStyleCreationResult(0)->type(), unsigned{KOSTYLE_KIND_USER});
}

TEST_F(CreationResults, AreWalkedInReadingOrder) {
  for (int i = 0; i < 20; ++i)
    write(system, std::to_string(i), i % 3 ? document(std::to_string(i)) : "x");
  for (int i = 0; i < 5; ++i)
    write(further, "f" + std::to_string(i), document("f" + std::to_string(i)));
  write(user, "u", document("u"));
  manager.readSystemStyles();
  manager.readUserStyles();
  ASSERT_EQ(manager.numSystemStyleCreationResult(), 25u);
  const IStyleCreationResult* before = nullptr;
  const IStyleCreationResult* record = manager.systemStyleCreationResult(0);
  std::size_t styles = 0;
  for (std::size_t i = 0; i < 25; ++i) {
    ASSERT_EQ(record, manager.systemStyleCreationResult(i));
    EXPECT_EQ(record->prev(), before);
    if (record->error() == 0) {
      EXPECT_STREQ(test::utf8(manager.systemStyle(styles++)->id()).c_str(),
                   test::utf8(record->id()).c_str());
    }
    before = record;
    record = record->next();
  }
  EXPECT_EQ(record, nullptr);
  EXPECT_EQ(styles, manager.numSystemStyle());
  EXPECT_EQ(manager.systemStyleCreationResult(25), nullptr);
}

TEST_F(CreationResults, ASingleOneHasNoNeighbours) {
  write(system, "a", document("A"));
  write(user, "b", document("B"));
  manager.readSystemStyles();
  manager.readUserStyles();
  for (const auto* record :
       {manager.systemStyleCreationResult(0), manager.userStyleCreationResult(0)}) {
    EXPECT_EQ(record->next(), nullptr);
    EXPECT_EQ(record->prev(), nullptr);
  }
}

TEST_F(CreationResults, WithoutAManagerOrASetHaveNoNeighbours) {
  write(system, "a", document("A"));
  manager.readSystemStyles();
  const StyleCreationResult alone(nullptr, Text(), Text(), StyleKind::system, {});
  const StyleCreationResult foreign(&manager, Text(), Text(), StyleKind::system, {});
  const StyleCreationResult otherKind(&manager, Text(), Text(), StyleKind::editable, {});
  for (const StyleCreationResult* record : {&alone, &foreign, &otherKind}) {
    EXPECT_EQ(record->next(), nullptr);
    EXPECT_EQ(record->prev(), nullptr);
  }
}

TEST_F(CreationResults, OfAnIdThatIsTakenHoldTheId) {
  write(system, "a", document("A"));
  write(further, "b", R"({"id":"A","name":"Other","midiEffect":{"E":{"parameter":{}}}})");
  EXPECT_EQ(manager.readSystemStyles(), KOSTYLE_OK);
  EXPECT_EQ(systemRecords(), (std::map<std::string, std::string>{{"a.kostyle", "0 A  0@0"},
                                                                 {"b.kostyle", "22 A  0@0"}}));
  ASSERT_EQ(manager.numSystemStyle(), 1u);
  EXPECT_EQ(test::utf8(manager.systemStyle(0)->name()), "N");
}

TEST_F(CreationResults, AnIdIsComparedWithBothSets) {
  write(system, "s", document("A"));
  write(user, "u", document("A"));
  manager.readSystemStyles();
  manager.readUserStyles();
  EXPECT_EQ(manager.numUserStyle(), 0u);
  EXPECT_EQ(describe(*manager.userStyleCreationResult(0)), "22 A  0@0");
  // A new read empties its own set first, so the file that was refused now finds the id free.
  test::fs::remove(system / "s.kostyle");
  manager.readSystemStyles();
  manager.readUserStyles();
  EXPECT_EQ(describe(*manager.userStyleCreationResult(0)), "0 A  0@0");
  write(system, "s", document("A"));
  manager.readSystemStyles();
  EXPECT_EQ(manager.numSystemStyle(), 0u);
  EXPECT_EQ(manager.numUserStyle(), 1u);
  EXPECT_EQ(describe(*manager.systemStyleCreationResult(0)), "22 A  0@0");
}

TEST_F(CreationResults, ARefusedFileDoesNotTakeItsId) {
  write(system, "a", R"({"id":"A","name":"N"})");
  write(further, "b", document("A"));
  manager.readSystemStyles();
  EXPECT_EQ(describe(*manager.systemStyleCreationResult(0)), "23  / 0@0");
  EXPECT_EQ(describe(*manager.systemStyleCreationResult(1)), "0 A  0@0");
  EXPECT_EQ(manager.numSystemStyle(), 1u);
}

TEST_F(CreationResults, IdsThatAHostCannotTellApartAreOne) {
  write(system, "a", document("A\\u0000b"));
  write(further, "b", document("A\\u0000c"));
  write(further, "c", document("A"));
  manager.readSystemStyles();
  ASSERT_EQ(manager.numSystemStyle(), 1u);
  const auto* style = dynamic_cast<StyleBase*>(manager.systemStyle(0));
  EXPECT_EQ(style->wholeId(), test::text("A") + Char{0} + test::text("b"));
  EXPECT_EQ(systemRecords(),
            (std::map<std::string, std::string>{
                {"a.kostyle", "0 A  0@0"}, {"b.kostyle", "22 A  0@0"}, {"c.kostyle", "22 A  0@0"}}));
}

TEST_F(CreationResults, AnIdThatAHostSeesAsEmptyIsNeverTaken) {
  write(system, "a", document("\\u0000"));
  write(further, "b", document("\\u0000"));
  manager.readSystemStyles();
  EXPECT_EQ(manager.numSystemStyle(), 2u);
}

TEST_F(CreationResults, IdsAreComparedExactly) {
  write(system, "a", document("A"));
  write(system, "b", document("a-"));
  write(further, "a", document("a"));
  write(further, "b", document("A "));
  manager.readSystemStyles();
  EXPECT_EQ(manager.numSystemStyle(), 4u);
}

TEST_F(CreationResults, OfTheLastReadReplaceTheEarlier) {
  write(system, "a", document("A"));
  manager.readSystemStyles();
  manager.readSystemStyles();
  EXPECT_EQ(manager.numSystemStyleCreationResult(), 1u);
  EXPECT_EQ(describe(*manager.systemStyleCreationResult(0)), "0 A  0@0");
  test::fs::remove_all(system);
  EXPECT_EQ(manager.readSystemStyles(), KOSTYLE_ERROR_DIRECTORY_MISSING);
  EXPECT_EQ(manager.numSystemStyleCreationResult(), 0u);
  EXPECT_EQ(manager.numSystemStyle(), 0u);
}

TEST_F(CreationResults, OffsetsCountTheBytesOfTheFile) {
  write(system, "a", test::encoded("{} x  ", test::Encoding::utf16le, true));
  manager.readSystemStyles();
  EXPECT_EQ(describe(*manager.systemStyleCreationResult(0)), "17   2@10");
}

TEST(CreationResultDefaults, OfANullHandleAreValuesThatNoRecordHas) {
  EXPECT_EQ(StyleCreationResult_error(nullptr), 31);
  EXPECT_EQ(StyleCreationResult_type(nullptr), 3);
  EXPECT_EQ(StyleCreationResult_jsonPath(nullptr), nullptr);
  EXPECT_EQ(StyleCreationResult_parseError(nullptr), 18);
  EXPECT_EQ(StyleCreationResult_parseErrorOffset(nullptr), SIZE_MAX);
}

}  // namespace
