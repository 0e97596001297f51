// The default that each export gives for a null handle.
#include <gmock/gmock.h>
#include <kostyle/kostyle.h>

#include <cfloat>
#include <climits>
#include <cstdint>
#include <set>
#include <string>

#include "support/export_list.h"
#include "support/style_value.h"

namespace {

struct Call {
  const char* name;
  void (*check)();
};

const KoStyleChar* const anyText = KOSTYLE_TEXT("word");

// Each of these expects the default of a function for the null handle and some valid arguments.
template <auto Function, class... Arguments>
void givesNull(Arguments... arguments) {
  EXPECT_EQ(Function(nullptr, arguments...), nullptr);
}
template <auto Function>
void null() {
  givesNull<Function>();
}
template <auto Function>
void nullAt() {
  givesNull<Function>(std::size_t{0});
  givesNull<Function>(SIZE_MAX);
}
template <auto Function>
void noCount() {
  EXPECT_EQ(Function(nullptr), SIZE_MAX);
}
template <auto Function, int Code>
void code() {
  EXPECT_EQ(Function(nullptr), Code);
}
template <auto Function>
void isFalse() {
  EXPECT_FALSE(Function(nullptr));
}
template <auto Function>
void falseForText() {
  EXPECT_FALSE(Function(nullptr, anyText));
}
template <auto Function>
void falseForNull() {
  EXPECT_FALSE(Function(nullptr, nullptr));
}
template <auto Function>
void nothing() {
  Function(nullptr);
}

template <auto Create>
void makesNoManager() {
  int error = -1;
  EXPECT_EQ(Create(nullptr, nullptr, nullptr, nullptr, 0, nullptr, 0, &error), nullptr);
  EXPECT_EQ(error, KOSTYLE_ERROR_APP_ID_MISSING);
}

const Call calls[] = {
    {"CreateStyleManager", makesNoManager<CreateStyleManager>},
    {"Module_createStyleManager", makesNoManager<Module_createStyleManager>},
    {"HasStyleManager", isFalse<HasStyleManager>},
    {"Module_hasStyleManager", isFalse<Module_hasStyleManager>},

    {"StyleManager_destroy", isFalse<StyleManager_destroy>},
    {"StyleManager_appID", null<StyleManager_appID>},
    {"StyleManager_systemStyleDirPath", null<StyleManager_systemStyleDirPath>},
    {"StyleManager_userStyleDirPath", null<StyleManager_userStyleDirPath>},
    {"StyleManager_readSystemStyles",
     code<StyleManager_readSystemStyles, KOSTYLE_ERROR_INVALID_HANDLE>},
    {"StyleManager_readUserStyles", code<StyleManager_readUserStyles, KOSTYLE_ERROR_INVALID_HANDLE>},
    {"StyleManager_numSystemStyleCreationResult", noCount<StyleManager_numSystemStyleCreationResult>},
    {"StyleManager_systemStyleCreationResult", nullAt<StyleManager_systemStyleCreationResult>},
    {"StyleManager_numUserStyleCreationResult", noCount<StyleManager_numUserStyleCreationResult>},
    {"StyleManager_userStyleCreationResult", nullAt<StyleManager_userStyleCreationResult>},
    {"StyleManager_numSystemStyle", noCount<StyleManager_numSystemStyle>},
    {"StyleManager_systemStyle", nullAt<StyleManager_systemStyle>},
    {"StyleManager_numUserStyle", noCount<StyleManager_numUserStyle>},
    {"StyleManager_userStyle", nullAt<StyleManager_userStyle>},
    {"StyleManager_hasSystemStyle", falseForNull<StyleManager_hasSystemStyle>},
    {"StyleManager_hasUserStyle", falseForNull<StyleManager_hasUserStyle>},
    {"StyleManager_hasMutableStyle", falseForNull<StyleManager_hasMutableStyle>},
    {"StyleManager_createMutableStyle", null<StyleManager_createMutableStyle>},

    {"Style_parent", null<Style_parent>},
    {"Style_type", code<Style_type, KOSTYLE_KIND_NONE>},
    {"Style_id", null<Style_id>},
    {"Style_path", null<Style_path>},
    {"Style_name", null<Style_name>},
    {"Style_numLanguage", noCount<Style_numLanguage>},
    {"Style_language", [] { EXPECT_EQ(Style_language(nullptr, 0), -1); }},
    {"Style_minLangID", [] { EXPECT_EQ(Style_minLangID(), KOSTYLE_MIN_LANGUAGE); }},
    {"Style_maxLangID", [] { EXPECT_EQ(Style_maxLangID(), KOSTYLE_MAX_LANGUAGE); }},
    {"Style_numSingerGroup", noCount<Style_numSingerGroup>},
    {"Style_singerGroup", nullAt<Style_singerGroup>},
    {"Style_numSingerID", noCount<Style_numSingerID>},
    {"Style_singerID", nullAt<Style_singerID>},
    {"Style_singerIDLength", [] { EXPECT_EQ(Style_singerIDLength(), KOSTYLE_SINGER_ID_LENGTH); }},
    {"Style_numGenre", noCount<Style_numGenre>},
    {"Style_genre", nullAt<Style_genre>},
    {"Style_numSubGenre", noCount<Style_numSubGenre>},
    {"Style_subGenre", nullAt<Style_subGenre>},
    {"Style_numColor", noCount<Style_numColor>},
    {"Style_color", nullAt<Style_color>},
    {"Style_numAudioEffect", noCount<Style_numAudioEffect>},
    {"Style_numMidiEffect", noCount<Style_numMidiEffect>},
    {"Style_hasAudioEffect", falseForNull<Style_hasAudioEffect>},
    {"Style_hasMidiEffect", falseForNull<Style_hasMidiEffect>},
    {"Style_vendor", null<Style_vendor>},
    {"Style_audioEffect", nullAt<Style_audioEffect>},
    {"Style_midiEffect", nullAt<Style_midiEffect>},
    {"SystemStyle_next", null<SystemStyle_next>},
    {"SystemStyle_prev", null<SystemStyle_prev>},
    {"UserStyle_next", null<UserStyle_next>},
    {"UserStyle_prev", null<UserStyle_prev>},
    {"UserStyle_remove", code<UserStyle_remove, KOSTYLE_ERROR_INVALID_HANDLE>},
    {"UserStyle_createPropertyEditor", null<UserStyle_createPropertyEditor>},
    {"UserStyle_destroyPropertyEditor", nothing<UserStyle_destroyPropertyEditor>},

    {"MutableStyle_destroy", nothing<MutableStyle_destroy>},
    {"MutableStyle_audioEffect", nullAt<MutableStyle_audioEffect>},
    {"MutableStyle_midiEffect", nullAt<MutableStyle_midiEffect>},
    {"MutableStyle_setName", falseForText<MutableStyle_setName>},
    {"MutableStyle_addLanguage", [] { EXPECT_FALSE(MutableStyle_addLanguage(nullptr, 1)); }},
    {"MutableStyle_deleteLanguage", [] { EXPECT_FALSE(MutableStyle_deleteLanguage(nullptr, 1)); }},
    {"MutableStyle_addSingerGroup", falseForText<MutableStyle_addSingerGroup>},
    {"MutableStyle_deleteSingerGroup", falseForText<MutableStyle_deleteSingerGroup>},
    {"MutableStyle_addSingerID", falseForText<MutableStyle_addSingerID>},
    {"MutableStyle_deleteSingerID", falseForText<MutableStyle_deleteSingerID>},
    {"MutableStyle_addGenre", falseForText<MutableStyle_addGenre>},
    {"MutableStyle_deleteGenre", falseForText<MutableStyle_deleteGenre>},
    {"MutableStyle_addSubGenre", falseForText<MutableStyle_addSubGenre>},
    {"MutableStyle_deleteSubGenre", falseForText<MutableStyle_deleteSubGenre>},
    {"MutableStyle_addColor", falseForText<MutableStyle_addColor>},
    {"MutableStyle_deleteColor", falseForText<MutableStyle_deleteColor>},
    {"MutableStyle_insertAudioEffect",
     [] { givesNull<MutableStyle_insertAudioEffect>(std::size_t{0}, anyText); }},
    {"MutableStyle_insertMidiEffect",
     [] { givesNull<MutableStyle_insertMidiEffect>(std::size_t{0}, anyText); }},
    {"MutableStyle_save",
     [] {
       int error = 77;
       givesNull<MutableStyle_save>(false, &error);
       EXPECT_EQ(error, 77);
     }},
    {"MutableStyle_overwrite",
     [] {
       int error = 77;
       givesNull<MutableStyle_overwrite>(anyText, false, &error);
       EXPECT_EQ(error, 77);
     }},

    {"PropertyEditor_setStyleName", falseForText<PropertyEditor_setStyleName>},
    {"PropertyEditor_addSubGenre", falseForText<PropertyEditor_addSubGenre>},
    {"PropertyEditor_addColor", falseForText<PropertyEditor_addColor>},
    {"PropertyEditor_save", [] { EXPECT_FALSE(PropertyEditor_save(nullptr, true)); }},

    {"StyleCreationResult_next", null<StyleCreationResult_next>},
    {"StyleCreationResult_prev", null<StyleCreationResult_prev>},
    {"StyleCreationResult_error", code<StyleCreationResult_error, KOSTYLE_ERROR_NO_CREATION_RESULT>},
    {"StyleCreationResult_filePath", null<StyleCreationResult_filePath>},
    {"StyleCreationResult_id", null<StyleCreationResult_id>},
    {"StyleCreationResult_type", code<StyleCreationResult_type, KOSTYLE_KIND_NONE>},
    {"StyleCreationResult_jsonPath", null<StyleCreationResult_jsonPath>},
    {"StyleCreationResult_parseError",
     code<StyleCreationResult_parseError, KOSTYLE_PARSE_NO_CREATION_RESULT>},
    {"StyleCreationResult_parseErrorOffset", noCount<StyleCreationResult_parseErrorOffset>},

    {"Effect_type", code<Effect_type, KOSTYLE_EFFECT_NONE>},
    {"Effect_id", null<Effect_id>},
    {"Effect_numParameter", noCount<Effect_numParameter>},
    {"Effect_hasParameter", falseForNull<Effect_hasParameter>},
    {"Effect_parent", null<Effect_parent>},
    {"Effect_parameter", nullAt<Effect_parameter>},
    {"AudioEffect_next", null<AudioEffect_next>},
    {"AudioEffect_prev", null<AudioEffect_prev>},
    {"MidiEffect_next", null<MidiEffect_next>},
    {"MidiEffect_prev", null<MidiEffect_prev>},
    {"MutableEffect_destroy", nothing<MutableEffect_destroy>},
    {"MutableEffect_parent", null<MutableEffect_parent>},
    {"MutableEffect_parameter", nullAt<MutableEffect_parameter>},
    {"MutableEffect_move", [] { EXPECT_FALSE(MutableEffect_move(nullptr, 0)); }},
    {"MutableEffect_addParameter", [] { givesNull<MutableEffect_addParameter>(anyText); }},
    {"MutableAudioEffect_next", null<MutableAudioEffect_next>},
    {"MutableAudioEffect_prev", null<MutableAudioEffect_prev>},
    {"MutableMidiEffect_next", null<MutableMidiEffect_next>},
    {"MutableMidiEffect_prev", null<MutableMidiEffect_prev>},

    {"Parameter_type", code<Parameter_type, KOSTYLE_PARAMETER_NONE>},
    {"Parameter_name", null<Parameter_name>},
    {"Parameter_valueInt", code<Parameter_valueInt, INT_MIN>},
    {"Parameter_valueFloat",
     [] { EXPECT_EQ(test::bitsOf(Parameter_valueFloat(nullptr)), test::bitsOf(FLT_MIN)); }},
    {"Parameter_valueString", null<Parameter_valueString>},
    {"Parameter_parent", null<Parameter_parent>},
    {"Parameter_next", null<Parameter_next>},
    {"Parameter_prev", null<Parameter_prev>},
    {"MutableParameter_destroy", nothing<MutableParameter_destroy>},
    {"MutableParameter_parent", null<MutableParameter_parent>},
    {"MutableParameter_next", null<MutableParameter_next>},
    {"MutableParameter_prev", null<MutableParameter_prev>},
    {"MutableParameter_setName", falseForText<MutableParameter_setName>},
    {"MutableParameter_setValueInt", [] { MutableParameter_setValueInt(nullptr, 1); }},
    {"MutableParameter_setValueFloat", [] { MutableParameter_setValueFloat(nullptr, 1); }},
    {"MutableParameter_setValueString", [] { MutableParameter_setValueString(nullptr, anyText); }},
};

TEST(NullHandle, TableHasARowForEveryExport) {
  std::set<std::string> names;
  for (const Call& call : calls) EXPECT_TRUE(names.insert(call.name).second) << call.name;
  EXPECT_EQ(names.size(), 124u);
  EXPECT_EQ(names, test::exportedNames());
}

TEST(NullHandle, GivesTheDefaultOfEveryExport) {
  for (const Call& call : calls) {
    SCOPED_TRACE(call.name);
    call.check();
  }
}

}  // namespace
