// The serializer's builders, as only the code sees them.
#include "format/style_serializer.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <string>

#include "model/style_builder.h"
#include "model/user_style.h"
#include "platform/platform.h"
#include "support/temporary_directory.h"
#include "support/text.h"

namespace {

using namespace Tesk::KoStyle;
using test::text;

struct Serializer : testing::Test {
  Serializer() { style.insertAudioEffect(0, KOSTYLE_TEXT("E")); }

  // The bytes of the file that writing leaves.
  std::string write(const StyleDocument& document) {
    const auto path = directory / "written";
    {
      const platform::File file = platform::openForWriting(platform::nativePath(test::pathText(path)));
      EXPECT_EQ(writeStyleFile(document, false, file.get()), std::uint32_t{KOSTYLE_OK});
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
  const MutableEffect& effect = *style.chain(EffectKind::audio).begin();
  EXPECT_EQ(writeFilter(style.attributes(), notAnObject, pool),
            std::uint32_t{KOSTYLE_ERROR_WRITE_FILTER_TARGET});
  EXPECT_EQ(writeEffectChain(style.audioEffects(), notAnObject, pool),
            std::uint32_t{KOSTYLE_ERROR_WRITE_CHAIN_TARGET});
  EXPECT_EQ(writeParameters(&effect, notAnObject, pool),
            std::uint32_t{KOSTYLE_ERROR_WRITE_PARAMETER_TARGET});
  EXPECT_EQ(writeParameters<MutableEffect>(nullptr, object, pool),
            std::uint32_t{KOSTYLE_ERROR_WRITE_NO_EFFECT_OBJECT});
}

TEST_F(Serializer, MissingEffectIsReportedBeforeTheTarget) {
  EXPECT_EQ(writeParameters<Effect>(nullptr, notAnObject, holder.GetAllocator()),
            std::uint32_t{KOSTYLE_ERROR_WRITE_NO_EFFECT_OBJECT});
}

TEST_F(Serializer, ChainPassesOverEffectsWithoutId) {
  const UserStyle owner(nullptr);
  FrozenBlock block(2 * sizeof(AudioEffect));
  FrozenArray<AudioEffect> chain(block.take<AudioEffect>(2));
  chain.emplace(owner, KOSTYLE_TEXT("taken"), FrozenRange<Parameter>());
  chain.emplace(owner, KOSTYLE_TEXT(""), FrozenRange<Parameter>());
  EXPECT_EQ(writeEffectChain(chain.range(), object, holder.GetAllocator()), std::uint32_t{KOSTYLE_OK});
  ASSERT_EQ(object.MemberCount(), 1U);
  EXPECT_EQ(json::view(object.MemberBegin()->name), text("taken"));
}

TEST_F(Serializer, ParametersWithoutNameAndEmptyTextsAreDropped) {
  auto& pool = holder.GetAllocator();
  MutableEffect& effect = *style.chain(EffectKind::audio).begin();
  effect.parameters().append(effect, Text());
  EXPECT_EQ(writeParameters(&*style.audioEffects().begin(), object, pool), std::uint32_t{KOSTYLE_OK});
  Attributes<SortedTexts> attributes;
  attributes[Attribute::color].insert(TextView());
  EXPECT_EQ(writeFilter(attributes, object, pool), std::uint32_t{KOSTYLE_OK});
  EXPECT_TRUE(object.ObjectEmpty());
}

TEST_F(Serializer, EmptyIdentifierIsReportedBeforeTheEmptyName) {
  MutableStyle empty(nullptr);
  EXPECT_EQ(StyleDocument(empty, TextView()).code(), std::uint32_t{KOSTYLE_ERROR_WRITE_EMPTY_ID});
  EXPECT_EQ(StyleDocument(empty, KOSTYLE_TEXT("X")).code(),
            std::uint32_t{KOSTYLE_ERROR_WRITE_EMPTY_NAME});
  empty.setName(KOSTYLE_TEXT("N"));
  EXPECT_EQ(StyleDocument(empty, KOSTYLE_TEXT("X")).code(), std::uint32_t{KOSTYLE_ERROR_NO_EFFECT});
}

TEST_F(Serializer, LongNameIsWrittenWhole) {
  UserStyle stored(nullptr);
  StyleBuilder builder;
  builder.addEffect(EffectKind::midi, KOSTYLE_TEXT("E"));
  builder.setId(KOSTYLE_TEXT("X"));
  StoredContent content = builder.freeze(stored);
  content.name = FrozenText(Text(1000, Char('n')));
  stored.assign(std::move(content));
  EXPECT_EQ(write(StyleDocument(stored)),
            R"({"id":"X","name":")" + std::string(1000, 'n') + R"(","midiEffect":{"E":{}}})");
}

}  // namespace
