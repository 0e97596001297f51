// The reader by itself: kinds that no host can ask for, and the file that it is given.
#include "format/style_reader.h"

#include <gmock/gmock.h>

#include <cstdio>

#include "platform/platform.h"
#include "support/document.h"
#include "support/temporary_directory.h"

namespace {

using namespace Tesk::KoStyle;

const std::string sample = test::documentWith("");

class StyleReader : public testing::Test {
 protected:
  void open(const std::string& content) {
    test::writeFile(directory / "file", content);
    file = platform::openForReading(platform::nativePath(test::pathText(directory / "file")));
    ASSERT_TRUE(file);
  }
  auto read(StyleKind kind) { return readStyleFile(kind, nullptr, file.get(), outcome); }

  test::TemporaryDirectory directory;
  platform::File file;
  StyleReadOutcome outcome;
};

TEST_F(StyleReader, OtherKindsGiveNoStyle) {
  for (const unsigned kind : {unsigned{KOSTYLE_KIND_MUTABLE}, unsigned{KOSTYLE_KIND_NONE}, ~0u}) {
    open(sample);
    EXPECT_EQ(read(StyleKind{kind}), nullptr) << kind;
    EXPECT_EQ(outcome.error, unsigned{KOSTYLE_ERROR_NO_STYLE_FOR_KIND});
    EXPECT_TRUE(outcome.jsonPath.empty());
  }
}

TEST_F(StyleReader, SyntaxIsCheckedBeforeTheKind) {
  open("");
  read(StyleKind{KOSTYLE_KIND_MUTABLE});
  EXPECT_EQ(outcome.error, unsigned{KOSTYLE_ERROR_JSON_SYNTAX});
  EXPECT_EQ(outcome.parseError, unsigned{KOSTYLE_PARSE_EMPTY});
  open("[]");
  read(StyleKind{KOSTYLE_KIND_MUTABLE});
  EXPECT_EQ(outcome.error, unsigned{KOSTYLE_ERROR_NO_STYLE_FOR_KIND});
}

TEST_F(StyleReader, LeavesTheFileOpen) {
  open(sample);
  EXPECT_NE(read(StyleKind::user), nullptr);
  ASSERT_EQ(std::fseek(file.get(), 0, SEEK_SET), 0);
  EXPECT_EQ(std::fgetc(file.get()), '{');
}

TEST_F(StyleReader, ReadsFromWhereTheFileStands) {
  open("skipped" + sample);
  ASSERT_EQ(std::fseek(file.get(), 7, SEEK_SET), 0);
  EXPECT_NE(read(StyleKind::user), nullptr);
}

}  // namespace
