// The serializer's builders, as only the code sees them.
#include "writer/style_serializer.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <memory>
#include <string>

#include "model/effect.h"
#include "model/mutable_effect.h"
#include "model/mutable_parameter.h"
#include "platform/platform.h"
#include "support/temporary_directory.h"
#include "support/text.h"

namespace {

using namespace Tesk::KoStyle;
using test::text;

struct Serializer : testing::Test {
  IMutableEffect* addEffect(const char* id) { return style.insertAudioEffect(99, text(id).c_str()); }

  // The bytes of the file that writing leaves.
  std::string write() {
    const auto path = directory / "written";
    {
      const platform::File file = platform::openForWriting(platform::nativePath(test::pathText(path)));
      EXPECT_EQ(writeStyleFile(StyleDocument(style, KOSTYLE_TEXT("X")), false, file.get()),
                std::uint32_t{KOSTYLE_OK});
    }
    return test::readFile(path);
  }

  test::TemporaryDirectory directory;
  MutableStyle style{nullptr};
  json::Document holder;  // of the memory of `object`
  json::Value object{rapidjson::kObjectType};
  json::Value notAnObject{5};
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

}  // namespace
