// Texts and numbers that a document cannot hold: saving says nothing, and the file ends in front of
// them. It holds whole blocks of 256 bytes, which are written when they are full.
#include <gmock/gmock.h>
#include <kostyle/kostyle.h>

#include <limits>
#include <string>
#include <vector>

#include "support/host.h"
#include "support/style_value.h"

namespace {

using test::Text;
using test::text;
using test::utf8;

const KoStyleChar loneHigh[] = {'h', 0xD800, 0};
const KoStyleChar loneLow[] = {0xDC00, 'l', 0};
const KoStyleChar reversed[] = {'r', 0xDC00, 0xD800, 0};

class UnwritableValue : public testing::Test {
 protected:
  /// Saves a style, whose file then must be empty and unreadable.
  void expectEmptyFile(KoStyleStyle* written) {
    const test::StyleValue before = test::valueOf(written);
    KoStyleStyle* const saved = test::Host::save(written);
    EXPECT_FALSE(StyleManager_hasMutableStyle(host.manager, written));
    EXPECT_EQ(test::valueOf(saved), before);
    EXPECT_EQ(test::readFile(test::Host::fileOf(saved)), "");
  }

  test::Host host;
  KoStyleStyle* style = host.createMutableStyle("N");
  KoStyleParameter* parameter = MutableEffect_parameter(MutableStyle_audioEffect(style, 0), 0);
};

TEST_F(UnwritableValue, OfTheNameEndsTheFile) {
  for (const KoStyleChar* name : {loneHigh, loneLow, reversed}) {
    KoStyleStyle* each = host.createMutableStyle("N");
    ASSERT_TRUE(MutableStyle_setName(each, name));
    expectEmptyFile(each);
  }
}

TEST_F(UnwritableValue, OfAnAttributeEndsTheFile) {
  const KoStyleChar singer[] = {'0', '1', '2', '3', '4', '5', '6',    '7', '8',
                                '9', 'a', 'b', 'c', 'd', 'e', 0xDBFF, 0};
  for (const test::TextList& list : test::textLists()) {
    KoStyleStyle* each = host.createMutableStyle("N");
    ASSERT_TRUE(list.add(each, singer)) << list.name;
    expectEmptyFile(each);
  }
}

TEST_F(UnwritableValue, OfAnEffectsIdentifierEndsTheFile) {
  ASSERT_NE(MutableStyle_insertMidiEffect(style, 0, loneLow), nullptr);
  expectEmptyFile(style);
}

TEST_F(UnwritableValue, OfAParametersNameEndsTheFile) {
  ASSERT_TRUE(MutableParameter_setName(parameter, loneHigh));
  expectEmptyFile(style);
}

TEST_F(UnwritableValue, OfAParametersTextEndsTheFile) {
  MutableParameter_setValueString(parameter, reversed);
  expectEmptyFile(style);
}

TEST_F(UnwritableValue, OfAFloatEndsTheFile) {
  for (const float value :
       {std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::infinity(),
        std::numeric_limits<float>::quiet_NaN()}) {
    KoStyleStyle* each = host.createMutableStyle("N");
    MutableParameter_setValueFloat(MutableEffect_parameter(MutableStyle_audioEffect(each, 0), 0),
                                   value);
    expectEmptyFile(each);
  }
}

// A block that is full is written when one more byte comes, wherever in a text that is.
TEST_F(UnwritableValue, LeavesWholeBlocksOfWhatStandsInFrontOfIt) {
  for (std::size_t length = 1; length <= 1001; length += length < 300 ? 1 : 100) {
    const std::string genre(length, 'g');
    KoStyleStyle* each = host.createMutableStyle("N");
    MutableStyle_addGenre(each, text(genre).c_str());
    MutableParameter_setValueString(MutableEffect_parameter(MutableStyle_audioEffect(each, 0), 0),
                                    loneHigh);
    KoStyleStyle* saved = test::Host::save(each);
    const std::string front = R"({"id":")" + utf8(Style_id(saved)) +
                              R"(","name":"N","filter":{"genres":[")" + genre +
                              R"("]},"audioEffect":{"E":{"parameter":{"p":"h)";
    EXPECT_EQ(test::readFile(test::Host::fileOf(saved)),
              front.substr(0, (front.size() - 1) / 256 * 256));
  }
}

TEST_F(UnwritableValue, IsRefusedWhenReadAgain) {
  MutableStyle_setName(style, loneHigh);
  test::Host::save(style);
  ASSERT_EQ(StyleManager_readUserStyles(host.manager), KOSTYLE_OK);
  EXPECT_EQ(StyleManager_numUserStyle(host.manager), 0u);
  KoStyleCreationResult* record = StyleManager_userStyleCreationResult(host.manager, 0);
  EXPECT_EQ(StyleCreationResult_error(record), KOSTYLE_ERROR_JSON_SYNTAX);
  EXPECT_EQ(StyleCreationResult_parseError(record), KOSTYLE_PARSE_EMPTY);
}

TEST_F(UnwritableValue, DestroysTheFileThatItOverwrites) {
  KoStyleStyle* user = host.addUserStyle("u");
  MutableStyle_setName(style, loneHigh);
  int error = -1;
  EXPECT_EQ(MutableStyle_overwrite(style, KOSTYLE_TEXT("u"), true, &error), user);
  EXPECT_EQ(error, KOSTYLE_OK);
  EXPECT_EQ(test::readFile(host.user / "u.kostyle"), "");
  EXPECT_EQ(Style_name(user), Text(loneHigh));
}

TEST_F(UnwritableValue, DestroysTheFileThatAnEditorWrites) {
  KoStyleStyle* user = host.addUserStyle("u");
  KoStylePropertyEditor* editor = UserStyle_createPropertyEditor(user);
  ASSERT_TRUE(PropertyEditor_setStyleName(editor, KOSTYLE_TEXT("good")));
  ASSERT_TRUE(PropertyEditor_addColor(editor, loneLow));
  EXPECT_TRUE(PropertyEditor_save(editor, true));
  EXPECT_EQ(test::readFile(host.user / "u.kostyle"), "");
  EXPECT_EQ(utf8(Style_name(user)), "good");
  EXPECT_EQ(Style_color(user, 0), Text(loneLow));
}

}  // namespace
