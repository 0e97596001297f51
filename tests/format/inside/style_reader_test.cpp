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

class StyleReaderTest : public testing::Test {
 protected:
  void open(const std::string& content) {
    test::writeFile(directory / "file", content);
    file = platform::openForReading(platform::nativePath(test::pathText(directory / "file")));
    ASSERT_TRUE(file);
  }
  auto read(StyleKind kind) { return reader.read(kind, nullptr, styles, {}, file.get(), outcome); }

  test::TemporaryDirectory directory;
  platform::File file;
  StyleSequence styles;
  StyleReader reader;
  StyleReadOutcome outcome;
};

TEST_F(StyleReaderTest, OtherKindsGiveNoStyle) {
  for (const unsigned kind : {unsigned{KOSTYLE_KIND_MUTABLE}, unsigned{KOSTYLE_KIND_NONE}, ~0u}) {
    open(sample);
    EXPECT_FALSE(read(StyleKind{kind})) << kind;
    EXPECT_EQ(outcome.error, unsigned{KOSTYLE_ERROR_NO_STYLE_FOR_KIND});
    EXPECT_TRUE(outcome.jsonPath.empty());
  }
}

TEST_F(StyleReaderTest, SyntaxIsCheckedBeforeTheKind) {
  open("");
  read(StyleKind{KOSTYLE_KIND_MUTABLE});
  EXPECT_EQ(outcome.error, unsigned{KOSTYLE_ERROR_JSON_SYNTAX});
  EXPECT_EQ(outcome.parseError, unsigned{KOSTYLE_PARSE_EMPTY});
  open("[]");
  read(StyleKind{KOSTYLE_KIND_MUTABLE});
  EXPECT_EQ(outcome.error, unsigned{KOSTYLE_ERROR_NO_STYLE_FOR_KIND});
}

TEST_F(StyleReaderTest, LeavesTheFileOpen) {
  open(sample);
  EXPECT_TRUE(read(StyleKind::user));
  ASSERT_EQ(std::fseek(file.get(), 0, SEEK_SET), 0);
  EXPECT_EQ(std::fgetc(file.get()), '{');
}

TEST_F(StyleReaderTest, ReadsFromWhereTheFileStands) {
  open("skipped" + sample);
  ASSERT_EQ(std::fseek(file.get(), 7, SEEK_SET), 0);
  EXPECT_TRUE(read(StyleKind::user));
}

// What one file leaves behind in the reader's memory shows in no other.
TEST_F(StyleReaderTest, ReadsOneFileAfterTheOther) {
  open("{\"id\":\"" + std::string(1 << 20, 'x') + "\", \"name\":\"n\"}");
  EXPECT_FALSE(read(StyleKind::user));
  EXPECT_EQ(outcome.error, unsigned{KOSTYLE_ERROR_NO_EFFECT});
  open("[1,");
  EXPECT_FALSE(read(StyleKind::user));
  EXPECT_EQ(outcome.error, unsigned{KOSTYLE_ERROR_JSON_SYNTAX});
  for (int i = 0; i < 3; ++i) {
    open(test::documentWith(R"("filter":{"genres":["a"],"languages":[1]})"));
    const auto style = read(StyleKind::user);
    ASSERT_TRUE(style);
    EXPECT_EQ(style->numGenre(), 1U);
    EXPECT_EQ(style->numLanguage(), 1U);
    open(sample);
    EXPECT_EQ(read(StyleKind::system)->numGenre(), 0U);
  }
}

}  // namespace
