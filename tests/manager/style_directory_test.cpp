// Reading a style directory, as no host can ask for it.
#include "manager/style_directory.h"

#include <gmock/gmock.h>

#include <vector>

#include "manager/style_manager.h"
#include "support/document.h"
#include "support/temporary_directory.h"

namespace Tesk::KoStyle {
namespace {

using test::pathText;
using test::text;

class StyleDirectory : public testing::Test {
 protected:
  int read(const Char* path, StyleKind kind) {
    return readStyleDirectory(manager_, path, {pathText(main_)}, kind, manager_.styles(kind));
  }
  int read(StyleKind kind) { return read(pathText(main_).c_str(), kind); }

  const test::TemporaryDirectory directory_;
  const test::fs::path main_ = directory_.folder("main");
  StyleManager manager_{text("tests"), pathText(main_), pathText(main_), {}, {}};
};

TEST_F(StyleDirectory, WithoutAPathTheSetIsEmptied) {
  test::writeFile(main_ / "a.kostyle", test::document("a", "n"));
  EXPECT_EQ(read(StyleKind::user), KOSTYLE_OK);
  EXPECT_EQ(manager_.numUserStyle(), 1u);
  EXPECT_EQ(read(nullptr, StyleKind::user), KOSTYLE_ERROR_ARGUMENT_MISSING);
  EXPECT_EQ(manager_.numUserStyle(), 0u);
  EXPECT_EQ(read(KOSTYLE_TEXT(""), StyleKind::user), KOSTYLE_ERROR_DIRECTORY_MISSING);
}

TEST_F(StyleDirectory, AKindThatIsNotReadGivesNeitherStyleNorRecord) {
  test::writeFile(main_ / "a.kostyle", test::document("a", "n"));
  test::writeFile(main_ / "broken.kostyle", "{");
  constexpr StyleKind notRead{KOSTYLE_KIND_MUTABLE};
  EXPECT_EQ(read(notRead), KOSTYLE_OK);
  EXPECT_TRUE(manager_.styles(notRead).empty());
  EXPECT_EQ(manager_.numSystemStyle(), 0u);
  EXPECT_EQ(manager_.numUserStyle(), 0u);
  EXPECT_EQ(manager_.numSystemStyleCreationResult(), 0u);
  EXPECT_EQ(manager_.numUserStyleCreationResult(), 0u);
}

}  // namespace
}  // namespace Tesk::KoStyle
