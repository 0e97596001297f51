// Texts that the library returned, passed back to change the object that returned them.
#include <gmock/gmock.h>
#include <kostyle/kostyle.h>

#include <string>

#include "support/host.h"
#include "support/style_value.h"

namespace {

using test::text;
using test::TextList;
using test::utf8;

// Once with a text that a string holds in itself, once with a longer one, which when it is gone is
// memory that is gone.
class AliasedText : public testing::TestWithParam<const char*> {
 protected:
  const test::Text aText = text(GetParam());
  const test::Text longText = text("another text of more than sixteen units");
  test::Host host;
  KoStyleStyle* style = host.createMutableStyle("a name of more than sixteen units");
  KoStyleEffect* effect = MutableStyle_audioEffect(style, 0);
  KoStyleParameter* parameter = MutableEffect_parameter(effect, 0);
};

INSTANTIATE_TEST_SUITE_P(OfEitherLength, AliasedText,
                         testing::Values("x-y", "a text of more than sixteen units"),
                         [](const auto& text) { return text.index == 0 ? "Short" : "Long"; });

TEST_P(AliasedText, DeletesFromItsOwnList) {
  for (const TextList& list : test::textLists()) {
    SCOPED_TRACE(list.name);
    const bool exact = &list == &test::textLists()[test::singerIDs];
    const test::Text word = exact ? test::Text(KOSTYLE_SINGER_ID_LENGTH, KoStyleChar('x')) : aText;
    ASSERT_TRUE(list.add(style, word.c_str()));
    EXPECT_FALSE(list.add(style, list.at(style, 0)));
    EXPECT_TRUE(list.remove(style, list.at(style, 0)));
    EXPECT_EQ(list.count(style), 0u);
  }
}

TEST_P(AliasedText, MovesFromListToList) {
  MutableStyle_addGenre(style, aText.c_str());
  EXPECT_TRUE(MutableStyle_addSubGenre(style, Style_genre(style, 0)));
  EXPECT_TRUE(MutableStyle_addColor(style, Style_subGenre(style, 0)));
  EXPECT_TRUE(MutableStyle_deleteGenre(style, Style_color(style, 0)));
  EXPECT_EQ(Style_color(style, 0), aText);
}

TEST_P(AliasedText, IsTheEndOfAValueOfItsList) {
  MutableStyle_addColor(style, (text("z") + aText).c_str());
  EXPECT_TRUE(MutableStyle_addColor(style, Style_color(style, 0) + 1));
  EXPECT_EQ(Style_color(style, 0), aText);
  EXPECT_EQ(Style_color(style, 1), text("z") + aText);
}

TEST_P(AliasedText, IsTheNameAgain) {
  ASSERT_TRUE(MutableStyle_setName(style, aText.c_str()));
  EXPECT_TRUE(MutableStyle_setName(style, Style_name(style)));
  EXPECT_EQ(Style_name(style), aText);
  EXPECT_TRUE(MutableStyle_setName(style, Style_name(style) + 2));
  EXPECT_EQ(Style_name(style), aText.substr(2));
}

TEST_P(AliasedText, IsTheParametersNameAgain) {
  ASSERT_TRUE(MutableParameter_setName(parameter, aText.c_str()));
  EXPECT_TRUE(MutableParameter_setName(parameter, Parameter_name(parameter)));
  EXPECT_EQ(Parameter_name(parameter), aText);
  EXPECT_TRUE(MutableParameter_setName(parameter, Parameter_name(parameter) + 2));
  EXPECT_EQ(Parameter_name(parameter), aText.substr(2));
  EXPECT_EQ(MutableEffect_addParameter(effect, Parameter_name(parameter)), nullptr);
}

TEST_P(AliasedText, IsTheParametersValueAgain) {
  MutableParameter_setValueString(parameter, aText.c_str());
  MutableParameter_setValueString(parameter, Parameter_valueString(parameter));
  EXPECT_EQ(Parameter_valueString(parameter), aText);
  MutableParameter_setValueString(parameter, Parameter_valueString(parameter) + 2);
  EXPECT_EQ(Parameter_valueString(parameter), aText.substr(2));
  MutableParameter_setValueString(parameter, Parameter_name(parameter));
  EXPECT_EQ(utf8(Parameter_valueString(parameter)), "p");
}

TEST_P(AliasedText, IsTheParametersNameAndThenItsValue) {
  MutableParameter_setValueString(parameter, aText.c_str());
  EXPECT_TRUE(MutableParameter_setName(parameter, Parameter_valueString(parameter)));
  EXPECT_EQ(Parameter_name(parameter), aText);
  EXPECT_EQ(MutableEffect_addParameter(effect, aText.c_str()), nullptr);
  MutableParameter_setValueString(parameter, longText.c_str());
  MutableParameter_setValueString(parameter, Parameter_name(parameter));
  EXPECT_EQ(Parameter_valueString(parameter), aText);
}

TEST_P(AliasedText, NamesTheParametersSibling) {
  MutableParameter_setValueString(parameter, aText.c_str());
  KoStyleParameter* sibling = MutableEffect_addParameter(effect, Parameter_valueString(parameter));
  ASSERT_NE(sibling, nullptr);
  EXPECT_EQ(Parameter_name(sibling), aText);
  EXPECT_EQ(MutableEffect_addParameter(effect, Parameter_name(sibling)), nullptr);
}

TEST_P(AliasedText, NamesAnEffectAfterAnother) {
  KoStyleEffect* audio = MutableStyle_insertAudioEffect(style, 0, aText.c_str());
  EXPECT_EQ(MutableStyle_insertAudioEffect(style, 0, Effect_id(audio)), nullptr);
  KoStyleEffect* midi = MutableStyle_insertMidiEffect(style, 0, Effect_id(audio));
  ASSERT_NE(midi, nullptr);
  EXPECT_EQ(Effect_id(midi), aText);
}

TEST_P(AliasedText, NamesTheStyleToOverwrite) {
  KoStyleStyle* user = host.addUserStyle(GetParam());
  int error = -1;
  ASSERT_EQ(MutableStyle_overwrite(style, Style_id(user), true, &error), user);
  EXPECT_EQ(error, KOSTYLE_OK);
  EXPECT_EQ(Style_id(user), aText);
  EXPECT_EQ(utf8(Style_name(user)), "a name of more than sixteen units");
  EXPECT_EQ(StyleManager_readUserStyles(host.manager), KOSTYLE_OK);
  EXPECT_NE(host.userStyle(GetParam()), nullptr);
}

TEST_P(AliasedText, KeepsThePropertiesOfTheEditedStyle) {
  const std::string id = GetParam();
  const std::string colour = std::string("colour ") + GetParam();
  KoStyleStyle* user = host.addUserStyle(id, R"({"id":")" + id + R"(","name":")" + id + R"(",
             "filter":{"subGenres":[")" + id + R"("],"colors":[")" +
                                                 colour + R"("]},
             "audioEffect":{"E":{"parameter":{"p":1}}}})");
  const test::StyleValue before = test::valueOf(user);
  KoStylePropertyEditor* editor = UserStyle_createPropertyEditor(user);
  EXPECT_TRUE(PropertyEditor_setStyleName(editor, Style_name(user)));
  EXPECT_TRUE(PropertyEditor_addSubGenre(editor, Style_subGenre(user, 0)));
  EXPECT_TRUE(PropertyEditor_addColor(editor, Style_color(user, 0)));
  EXPECT_TRUE(PropertyEditor_save(editor, false));
  EXPECT_EQ(test::valueOf(user), before);
  EXPECT_TRUE(PropertyEditor_setStyleName(editor, Style_name(user) + 2));
  EXPECT_TRUE(PropertyEditor_save(editor, false));
  EXPECT_EQ(Style_name(user), aText.substr(2));
}

TEST(AliasedPath, NamesAManagerThatExists) {
  const test::Host host;
  int error = -1;
  KoStyleManager* manager = host.manager;
  EXPECT_EQ(CreateStyleManager(StyleManager_appID(manager), StyleManager_systemStyleDirPath(manager),
                               StyleManager_userStyleDirPath(manager), nullptr, 0, nullptr, 0, &error),
            manager);
  EXPECT_EQ(error, KOSTYLE_OK);
}

}  // namespace
