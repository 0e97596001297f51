// The serializer's builders, as only the code sees them. What a host sees of documents is tested
// through the exports.
#include "writer/style_serializer.h"

#include <gmock/gmock.h>

#include <cstdio>
#include <limits>
#include <memory>
#include <string>

#include "model/effect.h"
#include "model/mutable_effect.h"
#include "model/mutable_parameter.h"
#include "model/parameter.h"
#include "model/user_style.h"
#include "platform/platform.h"
#include "support/temporary_directory.h"
#include "support/text.h"

namespace {

using namespace Tesk::KoStyle;
using test::text;

struct Serializer : testing::Test {
  IMutableEffect* addEffect(const char* id) { return style.insertAudioEffect(99, text(id).c_str()); }

  // The bytes of the file that writing leaves, and the code in `code`.
  std::string write(const StyleDocument& built, bool pretty = false) {
    const auto path = directory / "written";
    {
      const platform::File file = platform::openForWriting(platform::nativePath(test::pathText(path)));
      code = writeStyleFile(built, pretty, file.get());
    }
    return test::readFile(path);
  }
  std::string write(bool pretty = false) {
    return write(StyleDocument(style, KOSTYLE_TEXT("X")), pretty);
  }

  test::TemporaryDirectory directory;
  MutableStyle style{nullptr};
  json::Document holder;  // of the memory of `object`
  json::Value object{rapidjson::kObjectType};
  json::Value notAnObject{5};
  std::uint32_t code = 99;
};

TEST_F(Serializer, BuildersRefuseTargetsThatAreNotObjects) {
  auto& pool = holder.GetAllocator();
  const MutableAudioEffect effect(nullptr);
  EXPECT_EQ(writeFilter(style.attributes(), notAnObject, pool),
            std::uint32_t{KOSTYLE_ERROR_WRITE_FILTER_TARGET});
  EXPECT_EQ(writeEffectChain<IMutableAudioEffect>(style.chain(EffectKind::audio), notAnObject, pool),
            std::uint32_t{KOSTYLE_ERROR_WRITE_CHAIN_TARGET});
  EXPECT_EQ(writeParameters(&effect, notAnObject, pool),
            std::uint32_t{KOSTYLE_ERROR_WRITE_PARAMETER_TARGET});
  EXPECT_EQ(writeParameters(nullptr, object, pool),
            std::uint32_t{KOSTYLE_ERROR_WRITE_NO_EFFECT_OBJECT});
}

TEST_F(Serializer, MissingEffectIsReportedBeforeTheTarget) {
  EXPECT_EQ(writeParameters(nullptr, notAnObject, holder.GetAllocator()),
            std::uint32_t{KOSTYLE_ERROR_WRITE_NO_EFFECT_OBJECT});
}

TEST_F(Serializer, ChainPassesOverEffectsOfOtherInterfacesAndWithoutId) {
  EffectChain chain;
  const auto append = [&](std::unique_ptr<EffectBase> effect, const char* id) {
    effect->assignId(text(id));
    chain.append(EffectChain::prepare(std::move(effect)));
  };
  append(std::make_unique<MutableAudioEffect>(&style), "taken");
  append(std::make_unique<AudioEffect>(&style), "stored");
  append(std::make_unique<MutableMidiEffect>(&style), "midi");
  append(std::make_unique<MutableAudioEffect>(&style), "");
  EXPECT_EQ(writeEffectChain<IMutableAudioEffect>(chain, object, holder.GetAllocator()),
            std::uint32_t{KOSTYLE_OK});
  ASSERT_EQ(object.MemberCount(), 1U);
  EXPECT_EQ(json::view(object.MemberBegin()->name), text("taken"));
}

TEST_F(Serializer, EmptyIdentifierIsReportedBeforeTheEmptyName) {
  EXPECT_EQ(StyleDocument(style, TextView()).code(), std::uint32_t{KOSTYLE_ERROR_WRITE_EMPTY_ID});
  EXPECT_EQ(StyleDocument(style, KOSTYLE_TEXT("X")).code(),
            std::uint32_t{KOSTYLE_ERROR_WRITE_EMPTY_NAME});
  style.setName(KOSTYLE_TEXT("N"));
  EXPECT_EQ(StyleDocument(style, KOSTYLE_TEXT("X")).code(), std::uint32_t{KOSTYLE_ERROR_NO_EFFECT});
}

TEST_F(Serializer, DocumentWithACodeIsNotWritten) {
  EXPECT_EQ(write(), "");
  EXPECT_EQ(code, std::uint32_t{KOSTYLE_ERROR_WRITE_EMPTY_NAME});
  style.setName(KOSTYLE_TEXT("N"));
  EXPECT_EQ(write(), "");
  EXPECT_EQ(code, std::uint32_t{KOSTYLE_ERROR_NO_EFFECT});
}

TEST_F(Serializer, LanguagesOutsideTheRangeAreDropped) {
  style.setName(KOSTYLE_TEXT("N"));
  addEffect("E");
  for (const int language : {2, 7, -1}) style.attributes().languages.insert(language);
  EXPECT_EQ(write(), R"({"id":"X","name":"N","filter":{"languages":[2]},"audioEffect":{"E":{}}})");
  style.attributes().languages.erase(2);
  EXPECT_EQ(write(), R"({"id":"X","name":"N","audioEffect":{"E":{}}})");
}

TEST_F(Serializer, EmptyTextsAndNamesAreDropped) {
  style.setName(KOSTYLE_TEXT("N"));
  style.attributes().colors.insert(TextView());
  auto* effect = dynamic_cast<EffectBase*>(addEffect("E"));
  effect->parameters().append(std::make_unique<MutableParameter>(effect));
  EXPECT_EQ(write(), R"({"id":"X","name":"N","audioEffect":{"E":{}}})");
}

TEST_F(Serializer, LongNameIsWrittenWhole) {
  style.assignName(Text(1000, Char('n')));
  addEffect("E");
  EXPECT_EQ(write(), R"({"id":"X","name":")" + std::string(1000, 'n') + R"(","audioEffect":{"E":{}}})");
}

TEST_F(Serializer, EmbeddedNulIsWrittenAsAnEscape) {
  style.assignName(Text(KOSTYLE_TEXT("a\0b"), 3));
  addEffect("E");
  EXPECT_EQ(write(), R"({"id":"X","name":"a\u0000b","audioEffect":{"E":{}}})");
}

TEST_F(Serializer, StoredAndMutableStylesGiveTheSameBytes) {
  style.setName(KOSTYLE_TEXT("N"));
  style.addGenre(KOSTYLE_TEXT("g"));
  addEffect("E")->addParameter(KOSTYLE_TEXT("p"))->setValueFloat(0.1F);
  style.insertMidiEffect(0, KOSTYLE_TEXT("M"))
      ->addParameter(KOSTYLE_TEXT("s"))
      ->setValueString(KOSTYLE_TEXT(""));

  UserStyle stored(nullptr);
  stored.assignId(text("X"));
  stored.assignName(text("N"));
  stored.attributes().addGenre(text("g"));
  auto audio = std::make_unique<AudioEffect>(&stored);
  audio->assignId(text("E"));
  auto number = std::make_unique<Parameter>(audio.get());
  number->assignName(text("p"));
  number->assignFloat(0.1F);
  audio->parameters().append(std::move(number));
  stored.appendEffect(std::move(audio));
  auto midi = std::make_unique<MidiEffect>(&stored);
  midi->assignId(text("M"));
  auto empty = std::make_unique<Parameter>(midi.get());
  empty->assignName(text("s"));
  empty->assignString(Text());
  midi->parameters().append(std::move(empty));
  stored.appendEffect(std::move(midi));

  for (const bool pretty : {false, true}) {
    const std::string bytes = write(pretty);
    EXPECT_THAT(bytes, testing::HasSubstr("0.10000000149011612"));
    EXPECT_EQ(write(StyleDocument(stored), pretty), bytes);
  }
}

// Everything that the writer can stop at leaves what came before, in whole blocks of its buffer.
TEST_F(Serializer, WriterThatStopsStillGivesSuccess) {
  style.setName(KOSTYLE_TEXT("N"));
  IMutableParameter* parameter = addEffect("E")->addParameter(KOSTYLE_TEXT("p"));
  const auto expectStop = [&] {
    EXPECT_EQ(write(), "");
    EXPECT_EQ(code, std::uint32_t{KOSTYLE_OK});
  };
  parameter->setValueFloat(std::numeric_limits<float>::infinity());
  expectStop();
  parameter->setValueFloat(std::numeric_limits<float>::quiet_NaN());
  expectStop();
  const Char loneLow[] = {0xDC00, 0};
  parameter->setValueString(loneLow);
  expectStop();
  const Char reversed[] = {0xDC00, 0xD800, 0};
  parameter->setValueString(reversed);
  expectStop();
  const Char loneHigh[] = {0xD800, 'x', 0};
  parameter->setValueString(loneHigh);
  expectStop();

  style.assignName(Text(300, Char('n')));
  EXPECT_EQ(write(), R"({"id":"X","name":")" + std::string(256 - 18, 'n'));
  EXPECT_EQ(code, std::uint32_t{KOSTYLE_OK});
}

}  // namespace
