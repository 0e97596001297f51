// Texts and handles that stay where they are, by address, as long as their values stay.
#include <gmock/gmock.h>
#include <kostyle/kostyle.h>

#include <string>
#include <vector>

#include "support/host.h"
#include "support/style_places.h"

namespace {

using test::effectsOf;
using test::fixedTextsOf;
using test::placesOf;
using test::propertyTextsOf;

// Texts that are too long to lie in the object of a string.
const std::string filler(40, 'x');

class LastingText : public testing::Test {
 protected:
  void SetUp() override { ASSERT_NE(style, nullptr); }

  static std::string fullDocument() {
    return R"({"id":"u)" + filler + R"(","name":"name )" + filler + R"(","vendor":")" + filler +
           R"(","filter":{"languages":[1],"singerGroups":["a","b"],"singerIDs":["1234567890123456"],)"
           R"("genres":["g","h"],"subGenres":["s","t"],"colors":["c"]},)"
           R"("audioEffect":{"E":{"parameter":{"p":1,"q":"text"}}},"midiEffect":{"M":{"parameter":{"p":0.5}}}})";
  }

  KoStylePropertyEditor* editorOf(const KoStyleChar* name) const {
    KoStylePropertyEditor* const editor = UserStyle_createPropertyEditor(style);
    PropertyEditor_setStyleName(editor, name);
    return editor;
  }

  // A mutable style with the user style's name and lists, and with another effect.
  KoStyleStyle* likeTheUserStyle() const {
    KoStyleStyle* const copy = StyleManager_createMutableStyle(host.manager);
    MutableStyle_setName(copy, Style_name(style));
    MutableStyle_addSingerGroup(copy, KOSTYLE_TEXT("a"));
    MutableStyle_addSingerGroup(copy, KOSTYLE_TEXT("b"));
    MutableStyle_addSingerID(copy, KOSTYLE_TEXT("1234567890123456"));
    MutableStyle_addGenre(copy, KOSTYLE_TEXT("g"));
    MutableStyle_addGenre(copy, KOSTYLE_TEXT("h"));
    MutableStyle_addSubGenre(copy, KOSTYLE_TEXT("s"));
    MutableStyle_addSubGenre(copy, KOSTYLE_TEXT("t"));
    MutableStyle_addColor(copy, KOSTYLE_TEXT("c"));
    MutableStyle_insertAudioEffect(copy, 0, KOSTYLE_TEXT("new"));
    return copy;
  }

  test::Host host;
  KoStyleStyle* style = host.addUserStyle("u" + filler, fullDocument());
  test::fs::path file = host.user / ("u" + filler + ".kostyle");
};

TEST_F(LastingText, IsAllThatAnEditorDoesNotChange) {
  const std::vector<const void*> fixed = fixedTextsOf(style);
  const std::vector<const void*> effects = effectsOf(style);
  ASSERT_TRUE(PropertyEditor_save(editorOf(KOSTYLE_TEXT("another")), true));
  EXPECT_EQ(fixedTextsOf(style), fixed);
  EXPECT_EQ(effectsOf(style), effects);
}

TEST_F(LastingText, IsWhatAnEditorSetsToTheSameValue) {
  const std::vector<const void*> places = placesOf(style);
  KoStylePropertyEditor* const editor = editorOf(Style_name(style));
  for (const KoStyleChar* subGenre : {KOSTYLE_TEXT("t"), KOSTYLE_TEXT("s")})
    PropertyEditor_addSubGenre(editor, subGenre);
  PropertyEditor_addColor(editor, KOSTYLE_TEXT("c"));
  ASSERT_TRUE(PropertyEditor_save(editor, true));
  EXPECT_EQ(placesOf(style), places);
}

TEST_F(LastingText, IsEverythingWhenAnEditorFails) {
  const std::vector<const void*> places = placesOf(style);
  test::fs::remove(file);
  test::fs::create_directory(file);
  KoStylePropertyEditor* const editor = editorOf(KOSTYLE_TEXT("another"));
  PropertyEditor_addColor(editor, KOSTYLE_TEXT("red"));
  ASSERT_FALSE(PropertyEditor_save(editor, true));
  EXPECT_EQ(placesOf(style), places);
}

TEST_F(LastingText, IsWhatAnOverwriteSetsToTheSameValue) {
  const std::vector<const void*> fixed = fixedTextsOf(style);
  const std::vector<const void*> properties = propertyTextsOf(style);
  int error = -1;
  ASSERT_EQ(MutableStyle_overwrite(likeTheUserStyle(), Style_id(style), false, &error), style);
  EXPECT_EQ(fixedTextsOf(style), fixed);
  EXPECT_EQ(propertyTextsOf(style), properties);
}

TEST_F(LastingText, IsEverythingWhenAnOverwriteFails) {
  KoStyleStyle* const source = likeTheUserStyle();
  const std::vector<const void*> places = placesOf(style);
  const KoStyleChar* const name = Style_name(source);
  const KoStyleChar* const genre = Style_genre(source, 1);
  test::fs::remove(file);
  int error = -1;
  ASSERT_EQ(MutableStyle_overwrite(source, Style_id(style), false, &error), nullptr);
  EXPECT_EQ(error, KOSTYLE_ERROR_TARGET_NOT_REPLACEABLE);
  EXPECT_EQ(placesOf(style), places);
  EXPECT_EQ(Style_name(source), name);
  EXPECT_EQ(Style_genre(source, 1), genre);
}

}  // namespace
