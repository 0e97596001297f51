// Large sets, honest and hostile. Nothing here looks at a clock: with a cost of n squared these tests
// would take hours.
#include <gmock/gmock.h>
#include <kostyle/kostyle.h>

#include <functional>
#include <string>

#include "support/host.h"
#include "support/style_value.h"
#include "support/text.h"

namespace {

using test::text;
using test::utf8;

constexpr int many = 100'000;
#if defined(_WIN32)
constexpr int manyFiles = 10'000;  // making files is what takes long there
#else
constexpr int manyFiles = 100'000;
#endif

// Texts with a long common front part, whose order is neither that of their numbers nor the reverse.
std::string scattered(int i) {
  const auto shuffled = static_cast<unsigned>(i) * 2654435761U;
  return "a front part that all have in common " + std::to_string(shuffled);
}

std::string members(int count, const std::function<std::string(int)>& member) {
  std::string list;
  for (int i = 0; i < count; ++i) list += (i ? "," : "") + member(i);
  return list;
}

std::string quoted(const std::string& text) { return '"' + text + '"'; }

KoStyleStyle* readOne(const test::Host& host, const std::string& rest) {
  test::writeFile(host.system / "one.kostyle", R"({"id":"x","name":"x",)" + rest + "}");
  StyleManager_readSystemStyles(host.manager);
  return StyleManager_systemStyle(host.manager, 0);
}

TEST(Scale, DirectoryOfManyFiles) {
  const test::Host host;
  for (int i = 0; i < manyFiles; ++i) {
    const std::string id = std::to_string(i / 2);  // each identifier twice
    test::writeFile(host.system / (std::to_string(i) + ".kostyle"), test::document(id, id));
  }
  ASSERT_EQ(StyleManager_readSystemStyles(host.manager), KOSTYLE_OK);
  ASSERT_EQ(StyleManager_numSystemStyleCreationResult(host.manager), std::size_t{manyFiles});
  EXPECT_EQ(StyleManager_numSystemStyle(host.manager), std::size_t{manyFiles / 2});

  int duplicates = 0;
  KoStyleCreationResult* result = StyleManager_systemStyleCreationResult(host.manager, 0);
  for (; result; result = StyleCreationResult_next(result)) {
    duplicates += StyleCreationResult_error(result) == KOSTYLE_ERROR_DUPLICATE_ID;
  }
  EXPECT_EQ(duplicates, manyFiles / 2);

  int walked = 0;
  KoStyleStyle* style = StyleManager_systemStyle(host.manager, manyFiles / 2 - 1);
  for (; style; style = SystemStyle_prev(style)) ++walked;
  EXPECT_EQ(walked, manyFiles / 2);
}

TEST(Scale, FileOfManyEffects) {
  const test::Host host;
  const auto member = [](int i) { return quoted(scattered(i / 2)) + R"(:{"parameter":{}})"; };
  KoStyleStyle* style = readOne(host, R"("audioEffect":{)" + members(2 * many, member) + "}");
  ASSERT_EQ(Style_numAudioEffect(style), std::size_t{many});
  int walked = 0;
  for (KoStyleEffect* e = Style_audioEffect(style, 0); e; e = AudioEffect_next(e)) ++walked;
  EXPECT_EQ(walked, many);
  KoStyleEffect* effect = Style_audioEffect(style, many - 1);
  for (; effect; effect = AudioEffect_prev(effect)) --walked;
  EXPECT_EQ(walked, 0);
}

TEST(Scale, FileOfManyParameters) {
  const test::Host host;
  const auto parameter = [](int i) { return quoted(scattered(i / 2)) + ":" + std::to_string(i); };
  KoStyleStyle* style =
      readOne(host, R"("midiEffect":{"e":{"parameter":{)" + members(2 * many, parameter) + "}}}");
  KoStyleEffect* effect = Style_midiEffect(style, 0);
  ASSERT_EQ(Effect_numParameter(effect), std::size_t{many});
  int walked = 0;
  for (KoStyleParameter* p = Effect_parameter(effect, 0); p; p = Parameter_next(p)) ++walked;
  EXPECT_EQ(walked, many);
  KoStyleParameter* last = Effect_parameter(effect, many - 1);
  for (; last; last = Parameter_prev(last)) --walked;
  EXPECT_EQ(walked, 0);
}

TEST(Scale, FileOfManyValuesInAList) {
  const test::Host host;
  const auto value = [](int i) { return quoted(scattered(i / 2)); };
  KoStyleStyle* style = readOne(host, R"("audioEffect":{"e":{"parameter":0}},"filter":{"genres":[)" +
                                          members(2 * many, value) + "]}");
  ASSERT_EQ(Style_numGenre(style), std::size_t{many});
  for (std::size_t i = 1; i < many; ++i) {
    ASSERT_LT(utf8(Style_genre(style, i - 1)), utf8(Style_genre(style, i)));
  }
}

TEST(Scale, FileOfManyMembersThatAreIgnored) {
  const test::Host host;
  const auto member = [](int i) { return quoted("unknown" + std::to_string(i)) + ":[]"; };
  KoStyleStyle* style =
      readOne(host, members(many, member) + R"(,"audioEffect":{"e":{"parameter":0}})");
  EXPECT_EQ(Style_numAudioEffect(style), 1U);
}

TEST(Scale, MutableChainChangedEverywhere) {
  const test::Host host;
  KoStyleStyle* style = StyleManager_createMutableStyle(host.manager);
  for (int i = 0; i < many; ++i) {
    // At the front, in the middle and at the end in turn.
    const std::size_t size = Style_numAudioEffect(style);
    const std::size_t places[] = {0, size / 2, size};
    ASSERT_NE(MutableStyle_insertAudioEffect(style, places[i % 3], text(scattered(i)).c_str()),
              nullptr);
  }
  for (int i = 0; i < many; ++i) {
    ASSERT_TRUE(MutableEffect_move(MutableStyle_audioEffect(style, 0), many / 2));
  }
  int walked = 0;
  KoStyleEffect* effect = MutableStyle_audioEffect(style, 0);
  for (; effect; effect = MutableAudioEffect_next(effect)) ++walked;
  EXPECT_EQ(walked, many);
  while (Style_numAudioEffect(style) > 0) {
    MutableEffect_destroy(MutableStyle_audioEffect(style, Style_numAudioEffect(style) / 2));
  }
}

TEST(Scale, ParametersRenamedAndAppendedInTurn) {
  const test::Host host;
  KoStyleStyle* style = StyleManager_createMutableStyle(host.manager);
  KoStyleEffect* effect = MutableStyle_insertMidiEffect(style, 0, KOSTYLE_TEXT("e"));
  for (int i = 0; i < many; ++i) {
    ASSERT_NE(MutableEffect_addParameter(effect, text(scattered(i)).c_str()), nullptr);
    KoStyleParameter* middle = MutableEffect_parameter(effect, static_cast<std::size_t>(i) / 2);
    ASSERT_TRUE(MutableParameter_setName(middle, KOSTYLE_TEXT("the same for all")));
  }
  EXPECT_EQ(Effect_numParameter(effect), std::size_t{many});
  while (Effect_numParameter(effect) > 0) {
    MutableParameter_destroy(MutableEffect_parameter(effect, 0));
  }
}

TEST(Scale, ParametersAddedInAnyOrderAndRenamedAtOnce) {
  const test::Host host;
  KoStyleStyle* style = StyleManager_createMutableStyle(host.manager);
  KoStyleEffect* effect = MutableStyle_insertAudioEffect(style, 0, KOSTYLE_TEXT("e"));
  for (int i = 0; i < many; ++i)
    ASSERT_NE(MutableEffect_addParameter(effect, text(scattered(i)).c_str()), nullptr);
  for (int i = 0; i < many; ++i)
    ASSERT_EQ(MutableEffect_addParameter(effect, text(scattered(i)).c_str()), nullptr);
  KoStyleParameter* parameter = MutableEffect_parameter(effect, 0);
  for (int i = 0; parameter; parameter = MutableParameter_next(parameter), ++i) {
    ASSERT_TRUE(Effect_hasParameter(effect, parameter));
    ASSERT_TRUE(MutableParameter_setName(parameter, text(std::to_string(4 * many - i)).c_str()));
  }
  ASSERT_NE(MutableEffect_addParameter(effect, KOSTYLE_TEXT("0")), nullptr);
  ASSERT_EQ(Effect_numParameter(effect), std::size_t{many} + 1);
  for (std::size_t i = 0; i < many; ++i) {
    ASSERT_LT(utf8(Parameter_name(MutableEffect_parameter(effect, i))),
              utf8(Parameter_name(MutableEffect_parameter(effect, i + 1))));
  }
}

TEST(Scale, ValuesAddedAndDeletedInMutableLists) {
  const test::Host host;
  KoStyleStyle* style = StyleManager_createMutableStyle(host.manager);
  for (const test::TextList& list : test::textLists()) {
    const auto number = [](int i) { return text("0123456789" + std::to_string(many + i)); };
    for (int i = 0; i < many; ++i) ASSERT_TRUE(list.add(style, number(i).c_str())) << list.name;
    for (int i = 0; i < many; ++i) ASSERT_FALSE(list.add(style, number(i).c_str())) << list.name;
    ASSERT_EQ(list.count(style), std::size_t{many});
    for (std::size_t i = many; i-- > 0;) ASSERT_TRUE(list.remove(style, list.at(style, i / 2)));
    EXPECT_EQ(list.count(style), 0u);
  }
}

TEST(Scale, ManyMutableStylesDestroyedFromTheFront) {
  const test::Host host;
  std::vector<KoStyleStyle*> styles;
  for (int i = 0; i < many; ++i) styles.push_back(StyleManager_createMutableStyle(host.manager));
  for (KoStyleStyle* style : styles) {
    ASSERT_TRUE(StyleManager_hasMutableStyle(host.manager, style));
    MutableStyle_destroy(style);
  }
  EXPECT_FALSE(StyleManager_hasMutableStyle(host.manager, styles.front()));
}

}  // namespace
