// The property editor, which ends with its object.
#include <utility>

#include "cpp/cpp_host.h"

namespace {

using namespace kostyle;
using test::utf8Of;
using testing::ElementsAre;

TEST(CppPropertyEditor, ReplacesNameSubGenresAndColours) {
  const test::CppHost host;
  const UserStyle style = host.addUserStyle("w", test::wholeDocument("w"));
  const kostyle::PropertyEditor editor = style.edit();
  EXPECT_FALSE(editor.save());
  EXPECT_TRUE(editor.setName("Edited") && editor.addSubGenre("x") && editor.addColor("blue"));
  EXPECT_FALSE(editor.setName("") || editor.addSubGenre("x") || editor.addColor(""));
  EXPECT_EQ(style.name(), "Whole");
  EXPECT_TRUE(editor.save());
  EXPECT_EQ(style.name(), "Edited");
  EXPECT_THAT(utf8Of(style.subGenres()), ElementsAre("x"));
  EXPECT_THAT(utf8Of(style.colors()), ElementsAre("blue"));
  EXPECT_NE(host.bytes("w").find("\"Edited\""), std::string::npos);
}

TEST(CppPropertyEditor, EndsWithItsObject) {
  const test::CppHost host;
  const UserStyle style = host.addUserStyle("u");
  {
    kostyle::PropertyEditor editor = style.edit();
    editor.setName("First");
    kostyle::PropertyEditor moved = std::move(editor);
    EXPECT_FALSE(editor.setName("x"));
    EXPECT_TRUE(moved.addColor("c"));
    EXPECT_FALSE(moved.addColor("c"));
  }
  EXPECT_FALSE(style.edit().save());
}

TEST(CppPropertyEditor, OfAnEmptyViewDoesNothing) {
  const kostyle::PropertyEditor editor = UserStyle().edit();
  EXPECT_FALSE(editor.setName("x") || editor.addSubGenre("x") || editor.addColor("x") || editor.save());
}

}  // namespace
