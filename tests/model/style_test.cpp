#include "model/style.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <string>
#include <vector>

#include "api/exports.h"
#include "chains.h"
#include "model/effect.h"
#include "model/mutable_effect.h"
#include "model/mutable_style.h"
#include "model/system_style.h"
#include "model/user_style.h"

namespace Tesk::KoStyle {
namespace {

using test::text;
using test::utf8;
using testing::ElementsAre;

void expectEmpty(const IStyleBase& style) {
  EXPECT_EQ(utf8(style.id()), "");
  EXPECT_EQ(utf8(style.name()), "");
  EXPECT_EQ(utf8(style.path()), "");
  EXPECT_EQ(style.numLanguage(), 0u);
  EXPECT_EQ(style.numSingerGroup(), 0u);
  EXPECT_EQ(style.numSingerID(), 0u);
  EXPECT_EQ(style.numGenre(), 0u);
  EXPECT_EQ(style.numSubGenre(), 0u);
  EXPECT_EQ(style.numColor(), 0u);
  EXPECT_EQ(style.numAudioEffect(), 0u);
  EXPECT_EQ(style.numMidiEffect(), 0u);
}

TEST(Style, StartsEmptyWithItsKindAndManager) {
  StyleManager manager = detachedManager();
  const SystemStyle system(&manager);
  const UserStyle user(&manager);
  const MutableStyle editable(&manager);
  expectEmpty(system);
  expectEmpty(user);
  expectEmpty(editable);
  EXPECT_EQ(utf8(system.vendor()), "");
  EXPECT_EQ(system.type(), 0u);
  EXPECT_EQ(user.type(), 1u);
  EXPECT_EQ(editable.type(), 2u);
  EXPECT_EQ(system.parent(), &manager);
  EXPECT_EQ(SystemStyle(nullptr).parent(), nullptr);
}

TEST(Style, TellsTheLimits) {
  const UserStyle style(nullptr);
  EXPECT_EQ(style.minLangID(), 0);
  EXPECT_EQ(style.maxLangID(), 4);
  EXPECT_EQ(style.singerIDLength(), 16);
}

TEST(Style, ShowsItsTextsUpToTheFirstNulAndKeepsThemWhole) {
  UserStyle style(nullptr);
  const Text whole(KOSTYLE_TEXT("a\0b"), 3);
  style.assignId(whole);
  style.assignName(whole);
  style.assignVendor(whole);
  EXPECT_EQ(utf8(style.id()), "a");
  EXPECT_EQ(utf8(style.name()), "a");
  EXPECT_EQ(utf8(style.vendor()), "a");
  EXPECT_EQ(style.wholeId(), whole);
  EXPECT_EQ(style.wholeName(), whole);
}

TEST(Style, TakesLanguagesOfTheRangeOnce) {
  UserStyle style(nullptr);
  StyleAttributes& attributes = style.attributes();
  EXPECT_TRUE(attributes.addLanguage(4));
  EXPECT_FALSE(attributes.addLanguage(5));
  EXPECT_FALSE(attributes.addLanguage(4));
  EXPECT_FALSE(attributes.addLanguage(-1));
  EXPECT_FALSE(attributes.addLanguage(INT32_MIN));
  EXPECT_FALSE(attributes.addLanguage(INT32_MAX));
  EXPECT_TRUE(attributes.addLanguage(3));
  EXPECT_TRUE(attributes.addLanguage(0));
  EXPECT_EQ(style.numLanguage(), 3u);
  EXPECT_EQ(style.language(0), 0);
  EXPECT_EQ(style.language(1), 3);
  EXPECT_EQ(style.language(2), 4);
  EXPECT_EQ(style.language(3), -1);
  EXPECT_EQ(style.language(SIZE_MAX), -1);
}

TEST(Style, TakesSingerIdsOfSixteenUnitsOnly) {
  UserStyle style(nullptr);
  StyleAttributes& attributes = style.attributes();
  EXPECT_FALSE(attributes.addSingerID(Text()));
  EXPECT_FALSE(attributes.addSingerID(text("0123456789abcde")));
  EXPECT_FALSE(attributes.addSingerID(text("0123456789abcdefg")));
  EXPECT_TRUE(attributes.addSingerID(text("0123456789abcdef")));
  EXPECT_FALSE(attributes.addSingerID(text("0123456789abcdef")));
  EXPECT_TRUE(attributes.addSingerID(Text(16, Char(0xDC80))));
  // Eight characters outside the basic plane are sixteen units.
  EXPECT_TRUE(attributes.addSingerID(text("😀😀😀😀😀😀😀😀")));
  EXPECT_EQ(style.numSingerID(), 3u);
}

struct TextList {
  const char* name;
  bool (StyleAttributes::*add)(TextView);
  std::size_t (IStyleBase::*count)() const;
  const Char* (IStyleBase::*at)(const std::size_t&) const;
};

class StyleTextList : public testing::TestWithParam<TextList> {
 protected:
  bool add(const Text& value) { return (style_.attributes().*GetParam().add)(value); }
  std::size_t count() const { return (style_.*GetParam().count)(); }
  const Char* at(std::size_t index) const { return (style_.*GetParam().at)(index); }

  UserStyle style_{nullptr};
};

INSTANTIATE_TEST_SUITE_P(All, StyleTextList,
                         testing::Values(TextList{"singerGroups", &StyleAttributes::addSingerGroup,
                                                  &IStyleBase::numSingerGroup,
                                                  &IStyleBase::singerGroup},
                                         TextList{"genres", &StyleAttributes::addGenre,
                                                  &IStyleBase::numGenre, &IStyleBase::genre},
                                         TextList{"subGenres", &StyleAttributes::addSubGenre,
                                                  &IStyleBase::numSubGenre, &IStyleBase::subGenre},
                                         TextList{"colors", &StyleAttributes::addColor,
                                                  &IStyleBase::numColor, &IStyleBase::color}),
                         [](const auto& list) { return list.param.name; });

TEST_P(StyleTextList, IsSortedWhateverTheOrderOfInsertion) {
  for (const char* value : {"b", "a", "c"}) EXPECT_TRUE(add(text(value)));
  ASSERT_EQ(count(), 3u);
  EXPECT_EQ(utf8(at(0)), "a");
  EXPECT_EQ(utf8(at(1)), "b");
  EXPECT_EQ(utf8(at(2)), "c");
  EXPECT_EQ(at(3), nullptr);
  EXPECT_EQ(at(SIZE_MAX), nullptr);
}

TEST_P(StyleTextList, RefusesEmptyAndEqualTexts) {
  EXPECT_FALSE(add(Text()));
  EXPECT_TRUE(add(text("x")));
  EXPECT_FALSE(add(text("x")));
  EXPECT_TRUE(add(text("X")));
  EXPECT_TRUE(add(Text(KOSTYLE_TEXT("x\0"), 2)));
  EXPECT_TRUE(add(Text(1, Char(0xD800))));
  EXPECT_EQ(count(), 4u);
}

TEST_P(StyleTextList, IsAListOfItsOwn) {
  add(text("x"));
  EXPECT_EQ(style_.numSingerGroup() + style_.numSingerID() + style_.numGenre() + style_.numSubGenre() +
                style_.numColor(),
            1u);
}

TEST_P(StyleTextList, TakesAHundredThousandValues) {
  constexpr std::size_t total = 100000;
  for (std::size_t i = total; i-- > 0;) ASSERT_TRUE(add(text(std::to_string(total + i))));
  for (std::size_t i = 0; i < total; ++i) ASSERT_FALSE(add(text(std::to_string(total + i))));
  for (std::size_t i = 0; i < total; ++i) ASSERT_EQ(at(i), text(std::to_string(total + i)));
}

TEST(Style, AppendsEffectsToTheChainOfTheirKind) {
  UserStyle style(nullptr);
  EXPECT_TRUE(style.appendEffect(makeEffect<AudioEffect>(&style, text("b"))));
  EXPECT_TRUE(style.appendEffect(makeEffect<MidiEffect>(&style, text("b"))));
  EXPECT_TRUE(style.appendEffect(makeEffect<AudioEffect>(&style, text("a"))));
  EXPECT_THAT(effectIds(style.chain(EffectKind::audio)), ElementsAre("b", "a"));
  EXPECT_THAT(effectIds(style.chain(EffectKind::midi)), ElementsAre("b"));
  EXPECT_EQ(style.numAudioEffect(), 2u);
  EXPECT_EQ(style.numMidiEffect(), 1u);
}

TEST(Style, RefusesNoEffectAndATakenId) {
  UserStyle style(nullptr);
  EXPECT_FALSE(style.appendEffect(nullptr));
  EXPECT_TRUE(style.appendEffect(makeEffect<AudioEffect>(&style, text("a"))));
  EXPECT_FALSE(style.appendEffect(makeEffect<AudioEffect>(&style, text("a"))));
  EXPECT_TRUE(style.appendEffect(makeEffect<AudioEffect>(&style, Text(KOSTYLE_TEXT("a\0"), 2))));
  EXPECT_FALSE(style.appendEffect(makeEffect<AudioEffect>(&style, Text(KOSTYLE_TEXT("a\0"), 2))));
  EXPECT_TRUE(style.appendEffect(makeEffect<AudioEffect>(&style, Text())));
  EXPECT_FALSE(style.appendEffect(makeEffect<AudioEffect>(&style, Text())));
  EXPECT_EQ(style.numAudioEffect(), 3u);
}

TEST(Style, GivesItsEffectsByIndex) {
  SystemStyle style(nullptr);
  AudioEffect& audio = addEffect<AudioEffect>(style, text("a"));
  MidiEffect& midi = addEffect<MidiEffect>(style, text("m"));
  EXPECT_EQ(style.audioEffect(0), &audio);
  EXPECT_EQ(style.midiEffect(0), &midi);
  EXPECT_EQ(style.audioEffect(1), nullptr);
  EXPECT_EQ(style.midiEffect(SIZE_MAX), nullptr);
}

TEST(Style, HasItsOwnEffectsInTheChainOfTheirKind) {
  UserStyle style(nullptr);
  UserStyle other(nullptr);
  AudioEffect& audio = addEffect<AudioEffect>(style, text("a"));
  MidiEffect& midi = addEffect<MidiEffect>(style, text("a"));
  AudioEffect& foreign = addEffect<AudioEffect>(other, text("a"));
  EXPECT_TRUE(style.hasAudioEffect(&audio));
  EXPECT_FALSE(style.hasMidiEffect(&audio));
  EXPECT_TRUE(style.hasMidiEffect(&midi));
  EXPECT_FALSE(style.hasAudioEffect(&midi));
  EXPECT_FALSE(style.hasAudioEffect(&foreign));
  EXPECT_FALSE(style.hasAudioEffect(nullptr));
  EXPECT_FALSE(style.hasMidiEffect(nullptr));
}

TEST(Style, ExchangesItsContentButNotItsVendorAndKind) {
  UserStyle style(nullptr);
  style.assignId(text("id"));
  style.assignName(text("name"));
  style.assignPath(text("path"));
  style.assignVendor(text("vendor"));
  style.attributes().addGenre(text("g"));
  style.attributes().addLanguage(2);
  const AudioEffect& effect = addEffect<AudioEffect>(style, text("a"));
  StyleContent content;
  style.exchangeContent(content);
  expectEmpty(style);
  EXPECT_EQ(utf8(style.vendor()), "vendor");
  EXPECT_EQ(style.type(), 1u);
  EXPECT_EQ(content.id, text("id"));
  EXPECT_TRUE(content.audioEffects.contains(&effect));
  style.exchangeContent(content);
  EXPECT_EQ(utf8(style.name()), "name");
  EXPECT_EQ(utf8(style.path()), "path");
  EXPECT_EQ(utf8(style.genre(0)), "g");
  EXPECT_EQ(style.language(0), 2);
  EXPECT_EQ(style.numAudioEffect(), 1u);
}

TEST(Style, IsNotEditedThroughItsHandle) {
  UserStyle style(nullptr);
  EXPECT_FALSE(MutableStyle_setName(&style, KOSTYLE_TEXT("n")));
  EXPECT_FALSE(MutableStyle_addGenre(&style, KOSTYLE_TEXT("g")));
  EXPECT_EQ(MutableStyle_insertAudioEffect(&style, 0, KOSTYLE_TEXT("e")), nullptr);
  expectEmpty(style);
}

TEST(Style, OnlyAStoredOneHasAVendor) {
  MutableStyle editable(nullptr);
  editable.setName(KOSTYLE_TEXT("n"));
  EXPECT_EQ(Style_vendor(&editable), nullptr);
  UserStyle stored(nullptr);
  stored.assignVendor(text("v"));
  EXPECT_EQ(utf8(Style_vendor(&stored)), "v");
}

}  // namespace
}  // namespace Tesk::KoStyle
