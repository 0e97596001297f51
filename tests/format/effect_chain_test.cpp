// The effect chains of a document.
#include <gmock/gmock.h>

#include "support/file_reader.h"

namespace {

using test::EffectValue;
using test::ParameterValue;
using test::styleOf;
using test::text;

// The chain in both places, where it must come out the same.
class EffectChains : public testing::TestWithParam<std::size_t> {
 protected:
  static constexpr const char* keys[] = {"audioEffect", "midiEffect"};

  static std::vector<EffectValue> chainOf(const std::string& members) {
    const std::size_t kind = GetParam();
    const std::size_t other = 1 - kind;
    const auto style =
        styleOf(R"({"id":"I","name":"N",")" + std::string(keys[other]) +
                R"(":{"Other":{"parameter":{}}},")" + keys[kind] + R"(":{)" + members + "}}");
    EXPECT_EQ(style.chains[other].size(), 1u);
    return style.chains[kind];
  }
  static std::vector<std::string> idsOf(const std::string& members) {
    std::vector<std::string> ids;
    for (const EffectValue& effect : chainOf(members)) ids.push_back(test::utf8(effect.id));
    return ids;
  }
};

using testing::ElementsAre;
using testing::IsEmpty;

TEST_P(EffectChains, KeepTheOrderOfTheFile) {
  EXPECT_THAT(idsOf(R"("b":{"parameter":{}},"a":{"parameter":{}},"c":{"parameter":{}})"),
              ElementsAre("b", "a", "c"));
}

TEST_P(EffectChains, LeaveOutMembersWithoutAName) {
  EXPECT_THAT(idsOf(R"("":{"parameter":{}},"a":{"parameter":{}})"), ElementsAre("a"));
}

TEST_P(EffectChains, LeaveOutMembersThatAreNoObjects) {
  EXPECT_THAT(idsOf(R"("a":[],"b":"x","c":1,"d":1.5,"e":null,"f":true,"g":[{"parameter":{}}],
                       "h":{"parameter":{}})"),
              ElementsAre("h"));
}

TEST_P(EffectChains, LeaveOutEffectsWithoutAParameterMember) {
  EXPECT_THAT(idsOf(R"("a":{},"b":{"Parameter":{}},"c":{"script":"s"},"d":{"parameter":{}})"),
              ElementsAre("d"));
}

TEST_P(EffectChains, TakeEffectsWhoseParameterMemberIsNoObject) {
  for (const std::string value : {"[]", "[{\"p\":1}]", "1", "1.5", "null", "false", "\"p\""}) {
    const auto chain = chainOf(R"("a":{"parameter":)" + value + "}");
    EXPECT_EQ(chain, (std::vector<EffectValue>{{text("a"), {}}})) << value;
  }
}

TEST_P(EffectChains, OfEffectsWithOneNameTheFirstTakenWins) {
  EXPECT_EQ(chainOf(R"("a":{"parameter":{}},"b":{"parameter":{}},"a":{"parameter":{"p":1}})"),
            (std::vector<EffectValue>{{text("a"), {}}, {text("b"), {}}}));
}

TEST_P(EffectChains, AMemberLeftOutDoesNotBlockALaterOneOfItsName) {
  EXPECT_EQ(chainOf(R"("a":5,"a":{},"a":{"parameter":{"p":1}},"a":{"parameter":{"p":2}})"),
            (std::vector<EffectValue>{{text("a"), {ParameterValue::ofInt(text("p"), 1)}}}));
}

TEST_P(EffectChains, NamesAreComparedExactly) {
  EXPECT_THAT(
      idsOf(R"("a":{"parameter":1},"A":{"parameter":1},"a ":{"parameter":1},"\u00e1":{"parameter":1},
                       "a\u0301":{"parameter":1})"),
      ElementsAre("a", "A", "a ", "\xC3\xA1", "a\xCC\x81"));
  EXPECT_THAT(idsOf(R"("a":{"parameter":1},"a\u0000":{"parameter":1},"a\u0000":{"parameter":1},
                       "a\u0000b":{"parameter":1})"),
              ElementsAre("a", "a", "a"));
}

TEST_P(EffectChains, NothingOfAScriptIsKept) {
  EXPECT_EQ(chainOf(R"("a":{"script":"x","parameter":{}})"),
            (std::vector<EffectValue>{{text("a"), {}}}));
  for (const std::string script : {"5", "null", "{}", "[\"x\"]", "\"\""})
    EXPECT_THAT(idsOf(R"("a":{"script":)" + script + R"(,"parameter":{}})"), ElementsAre("a"))
        << script;
}

TEST_P(EffectChains, HoldManyEffectsInOrder) {
  std::string members;
  constexpr int count = 5000;
  for (int i = count; i > 0; --i)
    members += (i == count ? "\"" : ",\"") + std::to_string(i) + R"(":{"parameter":{}})";
  const auto ids = idsOf(members);
  ASSERT_EQ(ids.size(), std::size_t{count});
  for (int i = 0; i < count; ++i)
    ASSERT_EQ(ids[static_cast<std::size_t>(i)], std::to_string(count - i));
}

INSTANTIATE_TEST_SUITE_P(Both, EffectChains, testing::Values(KOSTYLE_EFFECT_AUDIO, KOSTYLE_EFFECT_MIDI),
                         [](const auto& kind) {
                           return kind.param == KOSTYLE_EFFECT_AUDIO ? "audioEffect" : "midiEffect";
                         });

TEST(EffectChainPair, AnAudioAndAMidiEffectMayShareAName) {
  const auto style = styleOf(
      R"({"id":"I","name":"N","audioEffect":{"E":{"parameter":{"p":1}}},
          "midiEffect":{"E":{"parameter":{"p":2}}}})");
  EXPECT_EQ(style.chains[KOSTYLE_EFFECT_AUDIO],
            (std::vector<EffectValue>{{text("E"), {ParameterValue::ofInt(text("p"), 1)}}}));
  EXPECT_EQ(style.chains[KOSTYLE_EFFECT_MIDI],
            (std::vector<EffectValue>{{text("E"), {ParameterValue::ofInt(text("p"), 2)}}}));
}

TEST(EffectChainPair, EffectsHaveTheKindOfTheirChain) {
  const test::FileReader reader;
  reader.read(
      R"({"id":"I","name":"N","audioEffect":{"A":{"parameter":{}}},"midiEffect":{"M":{"parameter":{}}}})");
  KoStyleStyle* const style = reader.style();
  ASSERT_NE(style, nullptr);
  EXPECT_EQ(Effect_type(Style_audioEffect(style, 0)), KOSTYLE_EFFECT_AUDIO);
  EXPECT_EQ(Effect_type(Style_midiEffect(style, 0)), KOSTYLE_EFFECT_MIDI);
  EXPECT_EQ(Effect_parent(Style_audioEffect(style, 0)), style);
  EXPECT_EQ(Effect_parent(Style_midiEffect(style, 0)), style);
  EXPECT_EQ(Style_audioEffect(style, 1), nullptr);
  EXPECT_EQ(Style_midiEffect(style, 1), nullptr);
}

TEST(EffectChainPair, AChainThatIsNoObjectIsEmpty) {
  for (const std::string value : {"[]", "null", "\"M\"", "3", "[{\"M\":{\"parameter\":{}}}]"})
    EXPECT_THAT(styleOf(test::documentWith("\"midiEffect\":" + value)).chains[KOSTYLE_EFFECT_MIDI],
                IsEmpty())
        << value;
}

}  // namespace
