#include "model/mutable_style.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <string>

#include "api/exports.h"
#include "chains.h"
#include "model/effect.h"
#include "model/mutable_effect.h"

namespace Tesk::KoStyle {
namespace {

using test::text;
using test::utf8;
using testing::ElementsAre;

class MutableStyleTest : public testing::Test {
 protected:
  std::vector<std::string> audioIds() const { return effectIds(style_.chain(EffectKind::audio)); }
  std::vector<std::string> midiIds() const { return effectIds(style_.chain(EffectKind::midi)); }

  MutableStyle style_{nullptr};
};

TEST_F(MutableStyleTest, TakesANameOfAHundredUnitsAtMost) {
  const Text longest(100, Char('x'));
  EXPECT_TRUE(style_.setName(KOSTYLE_TEXT("n")));
  EXPECT_TRUE(style_.setName(longest.c_str()));
  EXPECT_EQ(style_.name(), longest);
  EXPECT_FALSE(style_.setName((longest + Char('x')).c_str()));
  EXPECT_EQ(style_.name(), longest);
  // Fifty-one characters outside the basic plane are a hundred and two units.
  Text wide;
  for (int i = 0; i < 50; ++i) wide += text("😀");
  EXPECT_TRUE(style_.setName(wide.c_str()));
  EXPECT_FALSE(style_.setName((wide + text("😀")).c_str()));
}

TEST_F(MutableStyleTest, RefusesNoNameAndKeepsTheOld) {
  EXPECT_TRUE(style_.setName(KOSTYLE_TEXT("n")));
  EXPECT_FALSE(style_.setName(nullptr));
  EXPECT_FALSE(style_.setName(KOSTYLE_TEXT("")));
  EXPECT_EQ(utf8(style_.name()), "n");
}

TEST_F(MutableStyleTest, AddsAndDeletesLanguages) {
  EXPECT_FALSE(style_.addLanguage(5));
  EXPECT_FALSE(style_.addLanguage(-1));
  for (const int language : {4, 0, 2}) EXPECT_TRUE(style_.addLanguage(language));
  EXPECT_FALSE(style_.addLanguage(2));
  EXPECT_EQ(style_.language(0), 0);
  EXPECT_EQ(style_.language(1), 2);
  EXPECT_EQ(style_.language(2), 4);
  EXPECT_TRUE(style_.deleteLanguage(2));
  EXPECT_FALSE(style_.deleteLanguage(2));
  EXPECT_FALSE(style_.deleteLanguage(-1));
  EXPECT_FALSE(style_.deleteLanguage(INT32_MAX));
  EXPECT_EQ(style_.numLanguage(), 2u);
  EXPECT_EQ(style_.language(1), 4);
}

struct TextList {
  const char* name;
  bool (IMutableStyle::*add)(const Char*);
  bool (IMutableStyle::*remove)(const Char*);
  std::size_t (IStyleBase::*count)() const;
  const Char* (IStyleBase::*at)(const std::size_t&) const;
};

class MutableStyleTextList : public testing::TestWithParam<TextList> {
 protected:
  // Sixteen units, so that a singer identifier takes it too.
  static Text value(char last) { return text("0123456789abcde") + Char(last); }
  bool add(const Char* value) { return (style_.*GetParam().add)(value); }
  bool add(char last) { return add(value(last).c_str()); }
  bool remove(const Char* value) { return (style_.*GetParam().remove)(value); }
  bool remove(char last) { return remove(value(last).c_str()); }
  std::size_t count() const { return (style_.*GetParam().count)(); }
  const Char* at(std::size_t index) const { return (style_.*GetParam().at)(index); }

  MutableStyle style_{nullptr};
};

INSTANTIATE_TEST_SUITE_P(
    All, MutableStyleTextList,
    testing::Values(TextList{"singerGroups", &IMutableStyle::addSingerGroup,
                             &IMutableStyle::deleteSingerGroup, &IStyleBase::numSingerGroup,
                             &IStyleBase::singerGroup},
                    TextList{"singerIDs", &IMutableStyle::addSingerID, &IMutableStyle::deleteSingerID,
                             &IStyleBase::numSingerID, &IStyleBase::singerID},
                    TextList{"genres", &IMutableStyle::addGenre, &IMutableStyle::deleteGenre,
                             &IStyleBase::numGenre, &IStyleBase::genre},
                    TextList{"subGenres", &IMutableStyle::addSubGenre, &IMutableStyle::deleteSubGenre,
                             &IStyleBase::numSubGenre, &IStyleBase::subGenre},
                    TextList{"colors", &IMutableStyle::addColor, &IMutableStyle::deleteColor,
                             &IStyleBase::numColor, &IStyleBase::color}),
    [](const auto& list) { return list.param.name; });

TEST_P(MutableStyleTextList, IsSortedAndWithoutDuplicates) {
  for (const char last : {'b', 'c', 'a'}) EXPECT_TRUE(add(last));
  EXPECT_FALSE(add('b'));
  ASSERT_EQ(count(), 3u);
  EXPECT_EQ(at(0), value('a'));
  EXPECT_EQ(at(1), value('b'));
  EXPECT_EQ(at(2), value('c'));
  EXPECT_EQ(at(3), nullptr);
  EXPECT_EQ(at(SIZE_MAX), nullptr);
}

TEST_P(MutableStyleTextList, RefusesNullAndEmptyTexts) {
  EXPECT_FALSE(add(nullptr));
  EXPECT_FALSE(add(KOSTYLE_TEXT("")));
  EXPECT_FALSE(remove(nullptr));
  EXPECT_FALSE(remove(KOSTYLE_TEXT("")));
  EXPECT_EQ(count(), 0u);
}

TEST_P(MutableStyleTextList, DeletesExactlyTheTextItIsGiven) {
  for (const char last : {'a', 'b', 'c'}) add(last);
  EXPECT_FALSE(remove('B'));
  EXPECT_FALSE(remove(value('b').substr(0, 15).c_str()));
  EXPECT_FALSE(remove((value('b') + Char('b')).c_str()));
  EXPECT_TRUE(remove('b'));
  EXPECT_FALSE(remove('b'));
  ASSERT_EQ(count(), 2u);
  EXPECT_EQ(at(0), value('a'));
  EXPECT_EQ(at(1), value('c'));
  EXPECT_TRUE(add('b'));
  EXPECT_EQ(at(1), value('b'));
}

TEST_P(MutableStyleTextList, TakesLoneSurrogates) {
  const Text surrogates(16, Char(0xD83D));
  EXPECT_TRUE(add(surrogates.c_str()));
  EXPECT_EQ(at(0), surrogates);
  EXPECT_TRUE(remove(surrogates.c_str()));
}

TEST_P(MutableStyleTextList, TakesAHundredThousandValues) {
  constexpr std::size_t total = 100000;
  const auto number = [](std::size_t i) { return text("0123456789" + std::to_string(total + i)); };
  for (std::size_t i = 0; i < total; ++i) ASSERT_TRUE(add(number(i).c_str()));
  ASSERT_EQ(count(), total);
  for (std::size_t i = total; i-- > 0;) ASSERT_TRUE(remove(at(i / 2)));
  EXPECT_EQ(count(), 0u);
}

TEST_F(MutableStyleTest, ChecksOnlyTheLengthOfASingerIdOnAdding) {
  EXPECT_FALSE(style_.addSingerID(KOSTYLE_TEXT("0123456789abcde")));
  EXPECT_FALSE(style_.addSingerID(KOSTYLE_TEXT("0123456789abcdefg")));
  EXPECT_FALSE(style_.deleteSingerID(KOSTYLE_TEXT("0123456789abcde")));
  EXPECT_TRUE(style_.addSingerID(KOSTYLE_TEXT("                ")));
}

TEST_F(MutableStyleTest, InsertsEffectsAtAPosition) {
  EXPECT_NE(style_.insertAudioEffect(0, KOSTYLE_TEXT("x")), nullptr);
  EXPECT_NE(style_.insertAudioEffect(1000, KOSTYLE_TEXT("y")), nullptr);
  EXPECT_EQ(style_.insertAudioEffect(0, KOSTYLE_TEXT("x")), nullptr);
  EXPECT_NE(style_.insertAudioEffect(0, KOSTYLE_TEXT("w")), nullptr);
  EXPECT_NE(style_.insertAudioEffect(2, KOSTYLE_TEXT("v")), nullptr);
  EXPECT_NE(style_.insertAudioEffect(SIZE_MAX, KOSTYLE_TEXT("X")), nullptr);
  EXPECT_THAT(audioIds(), ElementsAre("w", "x", "v", "y", "X"));
  EXPECT_EQ(style_.numMidiEffect(), 0u);
}

TEST_F(MutableStyleTest, KeepsTheIdsOfItsChainsApart) {
  style_.insertAudioEffect(0, KOSTYLE_TEXT("x"));
  EXPECT_NE(style_.insertMidiEffect(0, KOSTYLE_TEXT("x")), nullptr);
  EXPECT_EQ(style_.insertMidiEffect(0, KOSTYLE_TEXT("x")), nullptr);
  EXPECT_NE(style_.insertMidiEffect(SIZE_MAX, KOSTYLE_TEXT("y")), nullptr);
  EXPECT_THAT(audioIds(), ElementsAre("x"));
  EXPECT_THAT(midiIds(), ElementsAre("x", "y"));
}

TEST_F(MutableStyleTest, RefusesAnEffectWithoutId) {
  EXPECT_EQ(style_.insertAudioEffect(0, nullptr), nullptr);
  EXPECT_EQ(style_.insertAudioEffect(0, KOSTYLE_TEXT("")), nullptr);
  EXPECT_EQ(style_.insertMidiEffect(0, nullptr), nullptr);
  EXPECT_EQ(style_.insertMidiEffect(0, KOSTYLE_TEXT("")), nullptr);
  EXPECT_EQ(style_.numAudioEffect() + style_.numMidiEffect(), 0u);
}

TEST_F(MutableStyleTest, InsertsEditableEffectsWithoutParameters) {
  IMutableAudioEffect* audio = style_.insertAudioEffect(0, KOSTYLE_TEXT("x"));
  IMutableMidiEffect* midi = style_.insertMidiEffect(0, KOSTYLE_TEXT("y"));
  EXPECT_EQ(audio->type(), 0u);
  EXPECT_EQ(midi->type(), 1u);
  EXPECT_EQ(utf8(audio->id()), "x");
  EXPECT_EQ(utf8(midi->id()), "y");
  EXPECT_EQ(audio->numParameter(), 0u);
  EXPECT_EQ(audio->parent(), static_cast<IMutableStyle*>(&style_));
  EXPECT_TRUE(style_.hasAudioEffect(audio));
  EXPECT_FALSE(style_.hasMidiEffect(audio));
  EXPECT_TRUE(style_.hasMidiEffect(midi));
}

TEST_F(MutableStyleTest, GivesItsEffectsByIndex) {
  IMutableAudioEffect* audio = style_.insertAudioEffect(0, KOSTYLE_TEXT("x"));
  IMutableMidiEffect* midi = style_.insertMidiEffect(0, KOSTYLE_TEXT("y"));
  EXPECT_EQ(style_.audioEffect(0), audio);
  EXPECT_EQ(style_.midiEffect(0), midi);
  EXPECT_EQ(style_.audioEffect(1), nullptr);
  EXPECT_EQ(style_.midiEffect(1), nullptr);
  EXPECT_EQ(style_.audioEffect(SIZE_MAX), nullptr);
}

TEST_F(MutableStyleTest, RefusesTheIdOfAStoredEffectInItsChain) {
  addEffect<AudioEffect>(style_, text("x"));
  EXPECT_EQ(style_.insertAudioEffect(0, KOSTYLE_TEXT("x")), nullptr);
  EXPECT_NE(style_.insertMidiEffect(0, KOSTYLE_TEXT("x")), nullptr);
}

TEST_F(MutableStyleTest, WithoutAManagerItIsNeitherDestroyedNorSaved) {
  style_.destroy();
  EXPECT_EQ(style_.parent(), nullptr);
  EXPECT_EQ(style_.type(), 2u);
  for (const bool pretty : {false, true}) {
    std::uint32_t error = 99;
    EXPECT_EQ(style_.save(pretty, &error), nullptr);
    EXPECT_EQ(error, 4u);
    error = 99;
    EXPECT_EQ(style_.overwrite(KOSTYLE_TEXT("id"), pretty, &error), nullptr);
    EXPECT_EQ(error, 4u);
  }
}

TEST_F(MutableStyleTest, IsNotSavedWithoutAPlaceForTheError) {
  StyleManager manager = detachedManager();
  IMutableStyle* const style = manager.createMutableStyle();
  style->setName(KOSTYLE_TEXT("n"));
  style->insertAudioEffect(0, KOSTYLE_TEXT("e"));
  EXPECT_EQ(MutableStyle_save(style, true, nullptr), nullptr);
  EXPECT_EQ(MutableStyle_overwrite(style, KOSTYLE_TEXT("id"), true, nullptr), nullptr);
  EXPECT_TRUE(manager.hasMutableStyle(style));
  EXPECT_EQ(manager.numUserStyle(), 0u);
}

TEST_F(MutableStyleTest, OutsideItsManagersListItIsNotDestroyed) {
  StyleManager manager = detachedManager();
  IMutableStyle* const listed = manager.createMutableStyle();
  MutableStyle unlisted(&manager);
  unlisted.destroy();
  EXPECT_EQ(unlisted.parent(), &manager);
  EXPECT_TRUE(manager.hasMutableStyle(listed));
  EXPECT_FALSE(manager.hasMutableStyle(&unlisted));
}

TEST_F(MutableStyleTest, DestroyedItLeavesItsManager) {
  StyleManager manager = detachedManager();
  IMutableStyle* const first = manager.createMutableStyle();
  IMutableStyle* const second = manager.createMutableStyle();
  EXPECT_NE(first, second);
  EXPECT_EQ(second->parent(), &manager);
  first->insertAudioEffect(0, KOSTYLE_TEXT("e"))->addParameter(KOSTYLE_TEXT("p"));
  first->destroy();
  EXPECT_EQ(manager.styles(StyleKind::editable).size(), 1u);
  EXPECT_TRUE(manager.hasMutableStyle(second));
}

TEST_F(MutableStyleTest, AHundredThousandAreCreatedAndDestroyed) {
  StyleManager manager = detachedManager();
  constexpr std::size_t count = 100000;
  for (std::size_t i = 0; i < count; ++i) manager.createMutableStyle();
  StyleSequence& styles = manager.styles(StyleKind::editable);
  ASSERT_EQ(styles.size(), count);
  while (!styles.empty()) dynamic_cast<IMutableStyle&>(*styles.at(styles.size() / 2)).destroy();
  EXPECT_EQ(manager.styles(StyleKind::editable).size(), 0u);
}

}  // namespace
}  // namespace Tesk::KoStyle
