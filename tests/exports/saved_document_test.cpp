// The bytes that saving a style writes.
#include <gmock/gmock.h>
#include <kostyle/kostyle.h>

#include <cfloat>
#include <climits>
#include <string>

#include "support/host.h"

namespace {

using test::text;
using test::utf8;

class SavedDocument : public testing::Test {
 protected:
  KoStyleParameter* add(const char* name) {
    return MutableEffect_addParameter(effect, text(name).c_str());
  }

  /// Saves the style and gives what its file holds, with the identifier in the file replaced by "ID".
  std::string saved(bool pretty) {
    KoStyleStyle* const stored = test::Host::save(style, pretty);
    std::string content = test::readFile(test::Host::fileOf(stored));
    const std::string id = utf8(Style_id(stored));
    const std::size_t at = content.find(id);
    if (at == std::string::npos) return "no identifier in " + content;
    return content.replace(at, id.size(), "ID");
  }

  /// What is written for the value of a parameter.
  std::string savedFloat(float value) {
    MutableParameter_setValueFloat(add("p"), value);
    const std::string content = saved(false);
    const std::size_t start = content.find("\"p\":") + 4;
    style = named("N");
    effect = MutableStyle_insertAudioEffect(style, 0, KOSTYLE_TEXT("E"));
    return content.substr(start, content.find('}', start) - start);
  }

  KoStyleStyle* named(const char* name) {
    KoStyleStyle* const made = StyleManager_createMutableStyle(host.manager);
    MutableStyle_setName(made, text(name).c_str());
    return made;
  }

  test::Host host;
  KoStyleStyle* style = named("N");
  KoStyleEffect* effect = MutableStyle_insertAudioEffect(style, 0, KOSTYLE_TEXT("E"));
};

TEST_F(SavedDocument, IsCompactWithoutWhiteSpace) {
  MutableParameter_setValueInt(add("p"), 3);
  EXPECT_EQ(saved(false), R"({"id":"ID","name":"N","audioEffect":{"E":{"parameter":{"p":3}}}})");
}

TEST_F(SavedDocument, IsPrettyWithALineForEachMember) {
  MutableParameter_setValueInt(add("p"), 3);
  EXPECT_EQ(saved(true), R"({
    "id": "ID",
    "name": "N",
    "audioEffect": {
        "E": {
            "parameter": {
                "p": 3
            }
        }
    }
})");
}

TEST_F(SavedDocument, HoldsEverythingInTheWritersOrder) {
  const KoStyleChar* const singer = KOSTYLE_TEXT("0123456789abcdef");
  for (const int language : {4, 0}) MutableStyle_addLanguage(style, language);
  for (const KoStyleChar* word : {KOSTYLE_TEXT("y"), KOSTYLE_TEXT("x")}) {
    MutableStyle_addColor(style, word);
    MutableStyle_addSubGenre(style, word);
    MutableStyle_addGenre(style, word);
    MutableStyle_addSingerGroup(style, word);
  }
  MutableStyle_addSingerID(style, singer);
  MutableParameter_setValueString(add("text"), KOSTYLE_TEXT("t"));
  MutableParameter_setValueFloat(add("real"), 0.5f);
  MutableParameter_setValueInt(add("int"), -1);
  MutableStyle_insertMidiEffect(style, 0, KOSTYLE_TEXT("M"));
  MutableStyle_insertAudioEffect(style, 0, KOSTYLE_TEXT("D"));
  EXPECT_EQ(saved(false),
            R"({"id":"ID","name":"N","filter":{"languages":[0,4],"singerGroups":["x","y"],)"
            R"("singerIDs":["0123456789abcdef"],"genres":["x","y"],"subGenres":["x","y"],)"
            R"("colors":["x","y"]},"audioEffect":{"D":{},"E":{"parameter":)"
            R"({"int":-1,"real":0.5,"text":"t"}}},"midiEffect":{"M":{}}})");
}

TEST_F(SavedDocument, IsPrettyDownToTheElementsOfLists) {
  for (const int language : {1, 2}) MutableStyle_addLanguage(style, language);
  MutableStyle_addGenre(style, KOSTYLE_TEXT("g"));
  EXPECT_EQ(saved(true), R"({
    "id": "ID",
    "name": "N",
    "filter": {
        "languages": [
            1,
            2
        ],
        "genres": [
            "g"
        ]
    },
    "audioEffect": {
        "E": {}
    }
})");
}

TEST_F(SavedDocument, HasNoMemberForAnEmptyChain) {
  MutableEffect_destroy(effect);
  MutableStyle_insertMidiEffect(style, 0, KOSTYLE_TEXT("M"));
  EXPECT_EQ(saved(false), R"({"id":"ID","name":"N","midiEffect":{"M":{}}})");
}

TEST_F(SavedDocument, HasFloatsAsTheDoublesThatTheyWidenTo) {
  EXPECT_EQ(savedFloat(0.25f), "0.25");
  EXPECT_EQ(savedFloat(0.1f), "0.10000000149011612");
  EXPECT_EQ(savedFloat(0.0f), "0.0");
  EXPECT_EQ(savedFloat(-0.0f), "-0.0");
  EXPECT_EQ(savedFloat(1.0f), "1.0");
  EXPECT_EQ(savedFloat(-1.5f), "-1.5");
  EXPECT_EQ(savedFloat(16777216.0f), "16777216.0");
  EXPECT_EQ(savedFloat(1e10f), "10000000000.0");
  for (const float value : {FLT_MAX, FLT_MIN, 1 / 3.f, -123456.789f, 1e22f})
    EXPECT_EQ(std::stod(savedFloat(value)), static_cast<double>(value));
  EXPECT_EQ(savedFloat(FLT_TRUE_MIN), "1.401298464324817e-45");
}

TEST_F(SavedDocument, HasIntegersInDecimal) {
  MutableParameter_setValueInt(add("a"), INT_MIN);
  MutableParameter_setValueInt(add("b"), INT_MAX);
  MutableParameter_setValueInt(add("c"), 0);
  EXPECT_EQ(saved(false), R"({"id":"ID","name":"N","audioEffect":{"E":{"parameter":)"
                          R"({"a":-2147483648,"b":2147483647,"c":0}}}})");
}

TEST_F(SavedDocument, HasEmptyTextValues) {
  MutableParameter_setValueString(add("p"), nullptr);
  EXPECT_EQ(saved(false), R"({"id":"ID","name":"N","audioEffect":{"E":{"parameter":{"p":""}}}})");
}

TEST_F(SavedDocument, EscapesQuotesBackslashesAndControls) {
  MutableStyle_setName(style, KOSTYLE_TEXT("\"\\/\b\f\n\r\t\x01\x1F\x7F"));
  EXPECT_EQ(saved(false),
            "{\"id\":\"ID\",\"name\":\"\\\"\\\\/\\b\\f\\n\\r\\t\\u0001\\u001F\x7F\","
            "\"audioEffect\":{\"E\":{}}}");
}

TEST_F(SavedDocument, HasOtherCharactersAsUtf8) {
  MutableStyle_setName(style, text(u8"é\u2028\uFFFF\U0001D11E\U0010FFFF").c_str());
  EXPECT_EQ(saved(false), std::string(R"({"id":"ID","name":")") +
                              u8"é\u2028\uFFFF\U0001D11E\U0010FFFF" + R"(","audioEffect":{"E":{}}})");
}

TEST_F(SavedDocument, HasTextsLongerThanAnyBuffer) {
  const std::string longText(100000, 'x');
  MutableParameter_setValueString(add(longText.c_str()), text(longText).c_str());
  MutableStyle_addGenre(style, text(longText).c_str());
  EXPECT_EQ(saved(false), R"({"id":"ID","name":"N","filter":{"genres":[")" + longText +
                              R"("]},"audioEffect":{"E":{"parameter":{")" + longText + R"(":")" +
                              longText + R"("}}}})");
}

TEST_F(SavedDocument, HasParametersInTheOrderOfTheListAndAllOfOneName) {
  KoStyleParameter* a = add("a");
  KoStyleParameter* b = add("b");
  add("c");
  MutableParameter_setValueInt(a, 1);
  MutableParameter_setValueInt(b, 2);
  MutableParameter_setName(a, KOSTYLE_TEXT("z"));
  MutableParameter_setName(b, KOSTYLE_TEXT("c"));
  EXPECT_EQ(saved(false),
            R"({"id":"ID","name":"N","audioEffect":{"E":{"parameter":{"z":1,"c":2,"c":0}}}})");
}

TEST_F(SavedDocument, IsTheSameOfAStoredStyle) {
  for (const KoStyleChar* word : {KOSTYLE_TEXT("y"), KOSTYLE_TEXT("x")}) {
    MutableStyle_addColor(style, word);
    MutableStyle_addSubGenre(style, word);
    MutableStyle_addGenre(style, word);
  }
  MutableStyle_addLanguage(style, 2);
  MutableParameter_setValueFloat(add("f"), 0.1f);
  MutableParameter_setValueInt(add("i"), 7);
  KoStyleEffect* midi = MutableStyle_insertMidiEffect(style, 0, KOSTYLE_TEXT("M"));
  MutableParameter_setValueString(MutableEffect_addParameter(midi, KOSTYLE_TEXT("s")), nullptr);
  KoStyleStyle* const stored = test::Host::save(style, true);
  const std::string content = test::readFile(test::Host::fileOf(stored));

  KoStylePropertyEditor* const editor = UserStyle_createPropertyEditor(stored);
  PropertyEditor_setStyleName(editor, Style_name(stored));
  for (std::size_t i = 0; i < 2; ++i) {
    PropertyEditor_addSubGenre(editor, Style_subGenre(stored, i));
    PropertyEditor_addColor(editor, Style_color(stored, i));
  }
  ASSERT_TRUE(PropertyEditor_save(editor, true));
  EXPECT_EQ(test::readFile(test::Host::fileOf(stored)), content);
}

}  // namespace
