// Each operation of the interfaces that handles point to, called by its position and by its name.
#include <gmock/gmock.h>

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <utility>

#include "api/interfaces.h"
#include "api/manager_registry.h"
#include "api/shared_entry.h"
#include "manager/style_manager.h"
#include "model/effect.h"
#include "model/mutable_effect.h"
#include "model/mutable_parameter.h"
#include "model/parameter.h"
#include "model/user_style.h"
#include "support/temporary_directory.h"

namespace Tesk::KoStyle {
namespace {

using test::pathText;
using test::text;

constexpr std::uint32_t noCode = 0xDEAD;

template <class Interface>
std::uint32_t codeAt(std::size_t position, Interface* handle) {
  return callAt(Position{position}, handle, noCode);
}

template <class Interface>
std::size_t countAt(std::size_t position, Interface* handle) {
  return callAt(Position{position}, handle, SIZE_MAX);
}

/// A text as its address, for it must be the very same one.
template <class Interface>
const void* textAt(std::size_t position, Interface* handle) {
  return callAt<const void*>(Position{position}, handle, nullptr);
}

template <class Interface>
const void* textAt(std::size_t position, Interface* handle, std::size_t index) {
  return callAt<const void*, const std::size_t*>(Position{position}, handle, nullptr, &index);
}

template <class Result, class Interface>
Result* objectAt(std::size_t position, Interface* handle) {
  return callAt<Result*>(Position{position}, handle, nullptr);
}

template <class Result, class Interface>
Result* objectAt(std::size_t position, Interface* handle, std::size_t index) {
  return callAt<Result*, const std::size_t*>(Position{position}, handle, nullptr, &index);
}

template <class Interface, class Object>
bool hasAt(std::size_t position, Interface* handle, Object* object) {
  return callAt<bool, Object*>(Position{position}, handle, false, object);
}

TEST(SlotOrder, ANullHandleGivesTheDefault) {
  EXPECT_EQ(codeAt<IStyleBase>(1, nullptr), noCode);
  EXPECT_EQ(countAt<IStyleBase>(5, nullptr), SIZE_MAX);
  EXPECT_EQ(textAt<IStyleBase>(2, nullptr), nullptr);
}

void expectParameterOrder(IParameterBase* parameter) {
  EXPECT_EQ(codeAt(0, parameter), parameter->type());
  EXPECT_EQ(textAt(1, parameter), parameter->name());
  EXPECT_EQ(callAt(Position{2}, parameter, std::int32_t{-99}), parameter->valueInt());
  EXPECT_EQ(callAt(Position{3}, parameter, -99.0F), parameter->valueFloat());
  EXPECT_EQ(textAt(4, parameter), parameter->valueString());
}

TEST(SlotOrder, OfParameters) {
  Parameter stored(nullptr);
  MutableParameter editable(nullptr);
  for (ParameterBase* parameter : std::initializer_list<ParameterBase*>{&stored, &editable}) {
    parameter->assignName(text("name"));
    parameter->assignInt(-3);
    expectParameterOrder(parameter);
    parameter->assignFloat(0.25F);
    expectParameterOrder(parameter);
    parameter->assignString(text("value"));
    expectParameterOrder(parameter);
  }
}

TEST(SlotOrder, OfEffects) {
  AudioEffect audio(nullptr);
  MidiEffect midi(nullptr);
  MutableAudioEffect editableAudio(nullptr);
  MutableMidiEffect editableMidi(nullptr);
  for (EffectBase* object :
       std::initializer_list<EffectBase*>{&audio, &midi, &editableAudio, &editableMidi}) {
    object->assignId(text("id"));
    auto parameter = std::make_unique<Parameter>(object);
    parameter->assignName(text("p"));
    IParameterBase* const own = object->parameters().append(std::move(parameter));
    Parameter stranger(nullptr);
    IEffectBase* const effect = object;
    EXPECT_EQ(codeAt(0, effect), effect->type());
    EXPECT_EQ(textAt(1, effect), effect->id());
    EXPECT_EQ(countAt(2, effect), 1u);
    EXPECT_TRUE(hasAt<IEffectBase>(3, effect, own));
    EXPECT_FALSE(hasAt<IEffectBase>(3, effect, static_cast<IParameterBase*>(&stranger)));
  }
}

// Gives every list of a style another length.
void fill(StyleBase& style) {
  style.assignId(text("id"));
  style.assignPath(text("path"));
  style.assignName(text("name"));
  StyleAttributes& attributes = style.attributes();
  attributes.addLanguage(3);
  const auto fillTexts = [](std::size_t count, SortedSet<Text>& texts, const std::string& prefix) {
    for (std::size_t i = 0; i < count; ++i) texts.insert(text(prefix + std::to_string(i)));
  };
  fillTexts(2, attributes.singerGroups, "group");
  fillTexts(3, attributes.singerIDs, "singer");
  fillTexts(4, attributes.genres, "genre");
  fillTexts(5, attributes.subGenres, "sub-genre");
  fillTexts(6, attributes.colors, "color");
  const auto fillChain = [&](std::size_t count, auto make) {
    for (std::size_t i = 0; i < count; ++i) {
      auto effect = make();
      effect->assignId(text(std::to_string(i)));
      style.appendEffect(std::move(effect));
    }
  };
  fillChain(7, [&] { return std::make_unique<AudioEffect>(&style); });
  fillChain(8, [&] { return std::make_unique<MidiEffect>(&style); });
}

void expectStyleOrder(StyleBase& object) {
  fill(object);
  IStyleBase* const style = &object;
  EXPECT_EQ(objectAt<IStyleManager>(0, style), style->parent());
  EXPECT_EQ(codeAt(1, style), style->type());
  EXPECT_EQ(textAt(2, style), style->id());
  EXPECT_EQ(textAt(3, style), style->path());
  EXPECT_EQ(textAt(4, style), style->name());
  EXPECT_EQ(countAt(5, style), style->numLanguage());
  const std::size_t first = 0;
  EXPECT_EQ((callAt<std::int32_t, const std::size_t*>(Position{6}, style, -99, &first)),
            style->language(0));
  EXPECT_EQ(callAt(Position{7}, style, -99), style->minLangID());
  EXPECT_EQ(callAt(Position{8}, style, -99), style->maxLangID());
  EXPECT_EQ(countAt(9, style), style->numSingerGroup());
  EXPECT_EQ(textAt(10, style, 1), style->singerGroup(1));
  EXPECT_EQ(countAt(11, style), style->numSingerID());
  EXPECT_EQ(textAt(12, style, 2), style->singerID(2));
  EXPECT_EQ(callAt(Position{13}, style, -99), style->singerIDLength());
  EXPECT_EQ(countAt(14, style), style->numGenre());
  EXPECT_EQ(textAt(15, style, 3), style->genre(3));
  EXPECT_EQ(countAt(16, style), style->numSubGenre());
  EXPECT_EQ(textAt(17, style, 4), style->subGenre(4));
  EXPECT_EQ(countAt(18, style), style->numColor());
  EXPECT_EQ(textAt(19, style, 5), style->color(5));
  EXPECT_EQ(countAt(20, style), 7u);
  EXPECT_EQ(countAt(21, style), 8u);
  IEffectBase* const audio = object.chain(EffectKind::audio).at(0);
  IEffectBase* const midi = object.chain(EffectKind::midi).at(0);
  EXPECT_TRUE(hasAt(22, style, audio));
  EXPECT_FALSE(hasAt(22, style, midi));
  EXPECT_TRUE(hasAt(23, style, midi));
  EXPECT_FALSE(hasAt(23, style, audio));
}

TEST(SlotOrder, OfStyles) {
  StyleManager manager(text("slots"), Text(), Text(), {}, {});
  UserStyle stored(&manager);
  expectStyleOrder(stored);
  MutableStyle editable(&manager);
  expectStyleOrder(editable);
}

TEST(SlotOrder, OfCreationResults) {
  StyleManager manager(text("slots"), Text(), Text(), {}, {});
  CreationResultSequence& results = *manager.creationResults(StyleKind::user);
  for (const char* name : {"a", "b", "c"}) {
    StyleReadOutcome outcome;
    outcome.error = 17;
    outcome.jsonPath = text("/path");
    outcome.parseError = 5;
    outcome.parseErrorOffset = 0x123456789A;
    results.append(CreationResultSequence::prepare(std::make_unique<StyleCreationResult>(
        &manager, text("file"), text(name), StyleKind::user, std::move(outcome))));
  }
  IStyleCreationResult* const result = results.at(1);
  EXPECT_EQ(objectAt<IStyleCreationResult>(0, result), results.at(2));
  EXPECT_EQ(objectAt<IStyleCreationResult>(1, result), results.at(0));
  EXPECT_EQ(codeAt(2, result), 17u);
  EXPECT_EQ(textAt(3, result), result->filePath());
  EXPECT_EQ(textAt(4, result), result->id());
  EXPECT_EQ(codeAt(5, result), 1u);
  EXPECT_EQ(textAt(6, result), result->jsonPath());
  EXPECT_EQ(codeAt(7, result), 5u);
  EXPECT_EQ(callAt(Position{8}, result, std::uint64_t{0}), 0x123456789AU);
}

class ManagerSlotOrder : public testing::Test {
 protected:
  void SetUp() override {
    int error = -1;
    manager_ = StyleManagerRegistry::instance().findOrCreate(
        KOSTYLE_TEXT("slots"), pathText(system_).c_str(), pathText(user_).c_str(), {}, {}, error);
    ASSERT_NE(manager_, nullptr);
  }
  void TearDown() override { StyleManagerRegistry::instance().destroy(manager_); }

  static void write(const test::fs::path& folder, int styles, int broken) {
    for (int i = 0; i < styles; ++i) {
      const std::string id = folder.filename().string() + std::to_string(i);
      test::writeFile(folder / (id + ".kostyle"),
                      R"({"id":")" + id + R"(","name":"n","audioEffect":{"e":{"parameter":{}}}})");
    }
    for (int i = 0; i < broken; ++i)
      test::writeFile(folder / ("broken" + std::to_string(i) + ".kostyle"), "{");
  }

  const test::TemporaryDirectory directory_;
  const test::fs::path system_ = directory_.folder("system");
  const test::fs::path user_ = directory_.folder("user");
  IStyleManager* manager_ = nullptr;
};

TEST_F(ManagerSlotOrder, OfManagers) {
  write(system_, 2, 3);
  write(user_, 3, 4);
  EXPECT_EQ(callAt(Position{15}, manager_, -1), 0);
  EXPECT_EQ(manager_->numSystemStyle(), 2u);
  EXPECT_EQ(manager_->numUserStyle(), 0u);
  EXPECT_EQ(callAt(Position{16}, manager_, -1), 0);
  EXPECT_EQ(manager_->numUserStyle(), 3u);
  IMutableStyle* const editable = objectAt<IMutableStyle>(17, manager_);
  ASSERT_NE(editable, nullptr);
  EXPECT_EQ(textAt(1, manager_), manager_->appID());
  EXPECT_EQ(textAt(2, manager_), manager_->systemStyleDirPath());
  EXPECT_EQ(countAt(3, manager_), 5u);
  EXPECT_EQ(objectAt<IStyleCreationResult>(4, manager_, 1), manager_->systemStyleCreationResult(1));
  EXPECT_EQ(countAt(5, manager_), 2u);
  ISystemStyle* const system = objectAt<ISystemStyle>(6, manager_, 1);
  EXPECT_EQ(system, manager_->systemStyle(1));
  EXPECT_TRUE(hasAt(7, manager_, system));
  EXPECT_EQ(textAt(8, manager_), manager_->userStyleDirPath());
  EXPECT_EQ(countAt(9, manager_), 7u);
  EXPECT_EQ(objectAt<IStyleCreationResult>(10, manager_, 6), manager_->userStyleCreationResult(6));
  EXPECT_EQ(countAt(11, manager_), 3u);
  IUserStyle* const user = objectAt<IUserStyle>(12, manager_, 2);
  EXPECT_EQ(user, manager_->userStyle(2));
  EXPECT_TRUE(hasAt(13, manager_, user));
  EXPECT_TRUE(hasAt(14, manager_, editable));
}

TEST_F(ManagerSlotOrder, StartsWithDestroy) {
  callAt<std::uintptr_t>(Position{0}, manager_, 0);  // it has no result; what comes back means nothing
  EXPECT_FALSE(StyleManagerRegistry::instance().contains(manager_));
}

class RecordingEditor final : public IPropertyEditor {
 public:
  bool setStyleName(const Char*) override { return record("setStyleName"); }
  bool addSubGenre(const Char*) override { return record("addSubGenre"); }
  bool addColor(const Char*) override { return record("addColor"); }
  bool save(const bool& pretty) override { return record(pretty ? "save pretty" : "save"); }

  std::string called;

 private:
  bool record(const char* operation) {
    called = operation;
    return true;
  }
};

TEST(SlotOrder, OfPropertyEditors) {
  RecordingEditor recorder;
  IPropertyEditor* const editor = &recorder;
  const char* const operations[] = {"setStyleName", "addSubGenre", "addColor"};
  for (std::size_t position = 0; position < 3; ++position) {
    EXPECT_TRUE((callAt<bool, const Char*>(Position{position}, editor, false, KOSTYLE_TEXT("x"))));
    EXPECT_EQ(recorder.called, operations[position]);
  }
  const bool pretty = true;
  EXPECT_TRUE((callAt<bool, const bool*>(Position{3}, editor, false, &pretty)));
  EXPECT_EQ(recorder.called, "save pretty");
}

}  // namespace
}  // namespace Tesk::KoStyle
