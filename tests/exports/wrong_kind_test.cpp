// The default that each export which checks its handle gives for the other kinds of the handle's
// family.
#include <gmock/gmock.h>
#include <kostyle/kostyle.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "support/host.h"
#include "support/style_value.h"

namespace {

const KoStyleChar* const someText = KOSTYLE_TEXT("word");

// Expects the default of a function for a handle.
template <class Handle>
using Check = std::function<void(Handle*)>;

template <class Handle, class Function, class... Arguments>
Check<Handle> null(Function function, Arguments... arguments) {
  return [=](Handle* handle) { EXPECT_EQ(function(handle, arguments...), nullptr); };
}
template <class Handle, class Function, class... Arguments>
Check<Handle> isFalse(Function function, Arguments... arguments) {
  return [=](Handle* handle) { EXPECT_FALSE(function(handle, arguments...)); };
}
template <class Handle, class Function, class... Arguments>
Check<Handle> nothing(Function function, Arguments... arguments) {
  return [=](Handle* handle) { function(handle, arguments...); };
}

template <class Handle>
struct Row {
  const char* name;
  std::vector<std::string> kinds;  // that the function is for
  Check<Handle> check;
};

const std::vector<Row<KoStyleStyle>>& styleRows() {
  using S = KoStyleStyle;
  const std::vector<std::string> system{"system"}, user{"user"}, stored{"system", "user"},
      unsaved{"mutable"};
  static const std::vector<Row<S>> rows{
      {"Style_vendor", stored, null<S>(Style_vendor)},
      {"Style_audioEffect", stored, null<S>(Style_audioEffect, 0u)},
      {"Style_midiEffect", stored, null<S>(Style_midiEffect, 0u)},
      {"SystemStyle_next", system, null<S>(SystemStyle_next)},
      {"SystemStyle_prev", system, null<S>(SystemStyle_prev)},
      {"UserStyle_next", user, null<S>(UserStyle_next)},
      {"UserStyle_prev", user, null<S>(UserStyle_prev)},
      {"UserStyle_remove", user,
       [](S* style) { EXPECT_EQ(UserStyle_remove(style), KOSTYLE_ERROR_INVALID_HANDLE); }},
      {"UserStyle_createPropertyEditor", user, null<S>(UserStyle_createPropertyEditor)},
      {"UserStyle_destroyPropertyEditor", user, nothing<S>(UserStyle_destroyPropertyEditor)},
      {"MutableStyle_destroy", unsaved, nothing<S>(MutableStyle_destroy)},
      {"MutableStyle_audioEffect", unsaved, null<S>(MutableStyle_audioEffect, 0u)},
      {"MutableStyle_midiEffect", unsaved, null<S>(MutableStyle_midiEffect, 0u)},
      {"MutableStyle_setName", unsaved, isFalse<S>(MutableStyle_setName, someText)},
      {"MutableStyle_addLanguage", unsaved, isFalse<S>(MutableStyle_addLanguage, 4)},
      {"MutableStyle_deleteLanguage", unsaved, isFalse<S>(MutableStyle_deleteLanguage, 1)},
      {"MutableStyle_addSingerGroup", unsaved, isFalse<S>(MutableStyle_addSingerGroup, someText)},
      {"MutableStyle_deleteSingerGroup", unsaved,
       isFalse<S>(MutableStyle_deleteSingerGroup, KOSTYLE_TEXT("held"))},
      {"MutableStyle_addSingerID", unsaved,
       isFalse<S>(MutableStyle_addSingerID, KOSTYLE_TEXT("0123456789abcdef"))},
      {"MutableStyle_deleteSingerID", unsaved,
       isFalse<S>(MutableStyle_deleteSingerID, KOSTYLE_TEXT("fedcba9876543210"))},
      {"MutableStyle_addGenre", unsaved, isFalse<S>(MutableStyle_addGenre, someText)},
      {"MutableStyle_deleteGenre", unsaved, isFalse<S>(MutableStyle_deleteGenre, KOSTYLE_TEXT("held"))},
      {"MutableStyle_addSubGenre", unsaved, isFalse<S>(MutableStyle_addSubGenre, someText)},
      {"MutableStyle_deleteSubGenre", unsaved,
       isFalse<S>(MutableStyle_deleteSubGenre, KOSTYLE_TEXT("held"))},
      {"MutableStyle_addColor", unsaved, isFalse<S>(MutableStyle_addColor, someText)},
      {"MutableStyle_deleteColor", unsaved, isFalse<S>(MutableStyle_deleteColor, KOSTYLE_TEXT("held"))},
      {"MutableStyle_insertAudioEffect", unsaved,
       null<S>(MutableStyle_insertAudioEffect, 0u, someText)},
      {"MutableStyle_insertMidiEffect", unsaved, null<S>(MutableStyle_insertMidiEffect, 0u, someText)},
      {"MutableStyle_save", unsaved,
       [](S* style) {
         int error = 77;
         EXPECT_EQ(MutableStyle_save(style, true, &error), nullptr);
         EXPECT_EQ(error, 77);
       }},
      {"MutableStyle_overwrite", unsaved,
       [](S* style) {
         int error = 77;
         EXPECT_EQ(MutableStyle_overwrite(style, KOSTYLE_TEXT("user"), true, &error), nullptr);
         EXPECT_EQ(error, 77);
       }},
  };
  return rows;
}

const std::vector<Row<KoStyleEffect>>& effectRows() {
  using E = KoStyleEffect;
  const std::vector<std::string> stored{"audio", "midi"}, unsaved{"mutable audio", "mutable midi"};
  static const std::vector<Row<E>> rows{
      {"Effect_parent", stored, null<E>(Effect_parent)},
      {"Effect_parameter", stored, null<E>(Effect_parameter, 0u)},
      {"AudioEffect_next", {"audio"}, null<E>(AudioEffect_next)},
      {"AudioEffect_prev", {"audio"}, null<E>(AudioEffect_prev)},
      {"MidiEffect_next", {"midi"}, null<E>(MidiEffect_next)},
      {"MidiEffect_prev", {"midi"}, null<E>(MidiEffect_prev)},
      {"MutableEffect_destroy", unsaved, nothing<E>(MutableEffect_destroy)},
      {"MutableEffect_parent", unsaved, null<E>(MutableEffect_parent)},
      {"MutableEffect_parameter", unsaved, null<E>(MutableEffect_parameter, 0u)},
      {"MutableEffect_move", unsaved, isFalse<E>(MutableEffect_move, 0u)},
      {"MutableEffect_addParameter", unsaved, null<E>(MutableEffect_addParameter, someText)},
      {"MutableAudioEffect_next", {"mutable audio"}, null<E>(MutableAudioEffect_next)},
      {"MutableAudioEffect_prev", {"mutable audio"}, null<E>(MutableAudioEffect_prev)},
      {"MutableMidiEffect_next", {"mutable midi"}, null<E>(MutableMidiEffect_next)},
      {"MutableMidiEffect_prev", {"mutable midi"}, null<E>(MutableMidiEffect_prev)},
  };
  return rows;
}

const std::vector<Row<KoStyleParameter>>& parameterRows() {
  using P = KoStyleParameter;
  const std::vector<std::string> stored{"stored"}, unsaved{"mutable"};
  static const std::vector<Row<P>> rows{
      {"Parameter_parent", stored, null<P>(Parameter_parent)},
      {"Parameter_next", stored, null<P>(Parameter_next)},
      {"Parameter_prev", stored, null<P>(Parameter_prev)},
      {"MutableParameter_destroy", unsaved, nothing<P>(MutableParameter_destroy)},
      {"MutableParameter_parent", unsaved, null<P>(MutableParameter_parent)},
      {"MutableParameter_next", unsaved, null<P>(MutableParameter_next)},
      {"MutableParameter_prev", unsaved, null<P>(MutableParameter_prev)},
      {"MutableParameter_setName", unsaved, isFalse<P>(MutableParameter_setName, someText)},
      {"MutableParameter_setValueInt", unsaved, nothing<P>(MutableParameter_setValueInt, 9)},
      {"MutableParameter_setValueFloat", unsaved, nothing<P>(MutableParameter_setValueFloat, 9.f)},
      {"MutableParameter_setValueString", unsaved,
       nothing<P>(MutableParameter_setValueString, someText)},
  };
  return rows;
}

// One object of each kind, in the middle of three alike, so that every navigation has somewhere to go.
class WrongKind : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* id : {"a", "held", "z"}) {
      const std::string content = document(id);
      test::writeFile(host.system / (std::string(id) + ".kostyle"), document(id));
      test::writeFile(host.user / (std::string(id) + ".kostyle"), document("u" + std::string(id)));
    }
    ASSERT_EQ(StyleManager_readSystemStyles(host.manager), KOSTYLE_OK);
    ASSERT_EQ(StyleManager_readUserStyles(host.manager), KOSTYLE_OK);
    styles["system"] = StyleManager_systemStyle(host.manager, 1);
    styles["user"] = StyleManager_userStyle(host.manager, 1);
    styles["mutable"] = makeMutableStyle();
    effects["audio"] = Style_audioEffect(styles["user"], 1);
    effects["midi"] = Style_midiEffect(styles["user"], 1);
    effects["mutable audio"] = MutableStyle_audioEffect(styles["mutable"], 1);
    effects["mutable midi"] = MutableStyle_midiEffect(styles["mutable"], 1);
    parameters["stored"] = Effect_parameter(effects["audio"], 1);
    parameters["mutable"] = MutableEffect_parameter(effects["mutable audio"], 1);
    for (const auto& [kind, handle] : parameters) ASSERT_NE(handle, nullptr) << kind;
    for (const auto& [kind, style] : styles) before[kind] = test::valueOf(style);
  }

  static std::string document(const std::string& id) {
    const std::string chain =
        R"({"A":{"parameter":{}},"B":{"parameter":{"p":1,"q":2,"r":3}},"C":{"parameter":{}}})";
    return R"({"id":")" + id + R"(","name":"n","audioEffect":)" + chain + R"(,"midiEffect":)" + chain +
           R"(,"filter":{"languages":[1],"singerGroups":["held"],"singerIDs":["fedcba9876543210"],)" +
           R"("genres":["held"],"subGenres":["held"],"colors":["held"]}})";
  }

  KoStyleStyle* makeMutableStyle() {
    KoStyleStyle* style = host.createMutableStyle("n");
    for (const KoStyleChar* id : {KOSTYLE_TEXT("B"), KOSTYLE_TEXT("C")})
      MutableStyle_insertAudioEffect(style, 9, id);
    for (const KoStyleChar* id : {KOSTYLE_TEXT("A"), KOSTYLE_TEXT("B"), KOSTYLE_TEXT("C")})
      MutableStyle_insertMidiEffect(style, 9, id);
    for (const KoStyleChar* name : {KOSTYLE_TEXT("p"), KOSTYLE_TEXT("q"), KOSTYLE_TEXT("r")})
      MutableEffect_addParameter(MutableStyle_audioEffect(style, 1), name);
    return style;
  }

  // Calls every function with the handles of the kinds that it is not for.
  template <class Handle>
  void expectDefaults(const std::vector<Row<Handle>>& rows, std::map<std::string, Handle*>& handles) {
    for (const Row<Handle>& row : rows) {
      for (const auto& [kind, handle] : handles) {
        if (std::count(row.kinds.begin(), row.kinds.end(), kind) != 0) continue;
        SCOPED_TRACE(std::string(row.name) + " on " + kind);
        row.check(handle);
      }
    }
    for (const auto& [kind, style] : styles) EXPECT_EQ(test::valueOf(style), before[kind]) << kind;
    EXPECT_EQ(StyleManager_numSystemStyle(host.manager), 3u);
    EXPECT_EQ(StyleManager_numUserStyle(host.manager), 3u);
    EXPECT_TRUE(StyleManager_hasMutableStyle(host.manager, styles["mutable"]));
    EXPECT_EQ(test::entryNames(host.user).size(), 3u);
    EXPECT_EQ(test::entryNames(host.system).size(), 3u);
  }

  test::Host host;
  std::map<std::string, KoStyleStyle*> styles;
  std::map<std::string, KoStyleEffect*> effects;
  std::map<std::string, KoStyleParameter*> parameters;
  std::map<std::string, test::StyleValue> before;
};

TEST_F(WrongKind, OfStyleGivesTheDefaultAndChangesNothing) { expectDefaults(styleRows(), styles); }

TEST_F(WrongKind, OfEffectGivesTheDefaultAndChangesNothing) { expectDefaults(effectRows(), effects); }

TEST_F(WrongKind, OfParameterGivesTheDefaultAndChangesNothing) {
  expectDefaults(parameterRows(), parameters);
}

TEST_F(WrongKind, OfStyleIsNotOneOfTheManagersOtherSets) {
  KoStyleManager* manager = host.manager;
  for (const auto& [kind, style] : styles) {
    EXPECT_EQ(StyleManager_hasSystemStyle(manager, style), kind == "system") << kind;
    EXPECT_EQ(StyleManager_hasUserStyle(manager, style), kind == "user") << kind;
    EXPECT_EQ(StyleManager_hasMutableStyle(manager, style), kind == "mutable") << kind;
    EXPECT_FALSE(StyleManager_hasSystemStyle(nullptr, style)) << kind;
    EXPECT_FALSE(StyleManager_hasUserStyle(nullptr, style)) << kind;
    EXPECT_FALSE(StyleManager_hasMutableStyle(nullptr, style)) << kind;
  }
  EXPECT_FALSE(StyleManager_hasSystemStyle(manager, nullptr));
  EXPECT_FALSE(StyleManager_hasUserStyle(manager, nullptr));
  EXPECT_FALSE(StyleManager_hasMutableStyle(manager, nullptr));
}

TEST_F(WrongKind, OfEffectIsNotInTheOtherChain) {
  EXPECT_TRUE(Style_hasAudioEffect(styles["user"], effects["audio"]));
  EXPECT_FALSE(Style_hasMidiEffect(styles["user"], effects["audio"]));
  EXPECT_TRUE(Style_hasMidiEffect(styles["user"], effects["midi"]));
  EXPECT_FALSE(Style_hasAudioEffect(styles["user"], effects["midi"]));
  EXPECT_FALSE(Style_hasAudioEffect(styles["user"], nullptr));
  EXPECT_FALSE(Style_hasMidiEffect(styles["user"], nullptr));
  EXPECT_FALSE(Effect_hasParameter(effects["audio"], nullptr));
}

TEST_F(WrongKind, DoesNotConcernTheReadersOfEveryKind) {
  for (const auto& [kind, style] : styles) {
    EXPECT_EQ(test::utf8(Style_name(style)), "n") << kind;
    EXPECT_EQ(Style_parent(style), host.manager) << kind;
    EXPECT_EQ(Style_numAudioEffect(style), 3u) << kind;
  }
  for (const auto& [kind, effect] : effects) EXPECT_EQ(test::utf8(Effect_id(effect)), "B") << kind;
  for (const auto& [kind, parameter] : parameters)
    EXPECT_EQ(test::utf8(Parameter_name(parameter)), "q") << kind;
}

}  // namespace
