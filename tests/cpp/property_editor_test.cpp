// The property editor, which its style owns.
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

TEST(CppPropertyEditor, StaysUntilItsEndOrTheNextOne) {
  const test::CppHost host;
  const UserStyle style = host.addUserStyle("u");
  style.edit().setName("First");
  const kostyle::PropertyEditor next = style.edit();
  EXPECT_FALSE(next.save());
  EXPECT_TRUE(next.setName("Next"));
  EXPECT_TRUE(kostyle::PropertyEditor(next).save());
  EXPECT_EQ(style.name(), "Next");
  style.endEdit();
  style.endEdit();
  EXPECT_FALSE(style.edit().save());
}

TEST(CppPropertyEditor, EndsWithItsStyle) {
  const test::CppHost host;
  const UserStyle style = host.addUserStyle("u");
  const kostyle::PropertyEditor editor = style.edit();
  EXPECT_TRUE(editor.setName("x"));
  EXPECT_TRUE(style.remove());
  EXPECT_TRUE(host.manager.userStyles().empty());
}

TEST(CppPropertyEditor, OfAnEmptyViewDoesNothing) {
  const kostyle::PropertyEditor editor = UserStyle().edit();
  EXPECT_FALSE(editor);
  EXPECT_FALSE(editor.setName("x") || editor.addSubGenre("x") || editor.addColor("x") || editor.save());
  UserStyle().endEdit();
}

}  // namespace
