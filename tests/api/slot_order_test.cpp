// Each operation of the interfaces that handles point to, called by its position and by its name.
#include <gmock/gmock.h>

#include <cstddef>
#include <cstdint>
#include <string>

#include "api/manager_of_styles.h"
#include "api/shared_entry.h"
#include "interfaces/interfaces.h"
#include "manager/manager_registry.h"

namespace Tesk::KoStyle {
namespace {

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

TEST(SharedEntry, ANullHandleGivesTheDefault) {
  EXPECT_EQ(codeAt<IStyleBase>(1, nullptr), noCode);
  EXPECT_EQ(countAt<IStyleBase>(5, nullptr), SIZE_MAX);
  EXPECT_EQ(textAt<IStyleBase>(2, nullptr), nullptr);
}

class SlotOrder : public ManagerOfStyles {};

void expectParameterOrder(IParameterBase* parameter) {
  EXPECT_EQ(codeAt(0, parameter), parameter->type());
  EXPECT_EQ(textAt(1, parameter), parameter->name());
  EXPECT_EQ(callAt(Position{2}, parameter, std::int32_t{-99}), parameter->valueInt());
  EXPECT_EQ(callAt(Position{3}, parameter, -99.0F), parameter->valueFloat());
  EXPECT_EQ(textAt(4, parameter), parameter->valueString());
}

TEST_F(SlotOrder, OfParameters) {
  IEffect* const effect = user()->audioEffect(0);
  ASSERT_EQ(effect->numParameter(), 3u);
  for (std::size_t i = 0; i < 3; ++i) expectParameterOrder(effect->parameter(i));
  IMutableParameter* const parameter = mutableStyle()->audioEffect(0)->parameter(0);
  parameter->setValueInt(-3);
  expectParameterOrder(parameter);
  parameter->setValueFloat(0.25F);
  expectParameterOrder(parameter);
  parameter->setValueString(KOSTYLE_TEXT("value"));
  expectParameterOrder(parameter);
}

void expectEffectOrder(IEffectBase* effect, IParameterBase* own, IParameterBase* stranger) {
  EXPECT_EQ(codeAt(0, effect), effect->type());
  EXPECT_EQ(textAt(1, effect), effect->id());
  EXPECT_EQ(countAt(2, effect), effect->numParameter());
  EXPECT_TRUE(hasAt(3, effect, own));
  EXPECT_FALSE(hasAt(3, effect, stranger));
}

TEST_F(SlotOrder, OfEffects) {
  IEffect* const audio = user()->audioEffect(0);
  IEffect* const midi = user()->midiEffect(0);
  IMutableEffect* const mutableAudio = mutableStyle()->audioEffect(0);
  IMutableEffect* const mutableMidi = mutableStyle()->midiEffect(0);
  expectEffectOrder(audio, audio->parameter(0), midi->parameter(0));
  expectEffectOrder(midi, midi->parameter(0), audio->parameter(0));
  expectEffectOrder(mutableAudio, mutableAudio->parameter(0), mutableMidi->parameter(0));
  expectEffectOrder(mutableMidi, mutableMidi->parameter(0), mutableAudio->parameter(0));
}

// Every list of the style has another length.
void expectStyleOrder(IStyleBase* style, IEffectBase* audio, IEffectBase* midi) {
  EXPECT_EQ(objectAt<IStyleManager>(0, style), style->parent());
  EXPECT_EQ(codeAt(1, style), style->type());
  EXPECT_EQ(textAt(2, style), style->id());
  EXPECT_EQ(textAt(3, style), style->path());
  EXPECT_EQ(textAt(4, style), style->name());
  EXPECT_EQ(countAt(5, style), 1u);
  const std::size_t first = 0;
  EXPECT_EQ((callAt<std::int32_t, const std::size_t*>(Position{6}, style, -99, &first)),
            style->language(0));
  EXPECT_EQ(callAt(Position{7}, style, -99), style->minLangID());
  EXPECT_EQ(callAt(Position{8}, style, -99), style->maxLangID());
  EXPECT_EQ(countAt(9, style), 2u);
  EXPECT_EQ(textAt(10, style, 1), style->singerGroup(1));
  EXPECT_EQ(countAt(11, style), 3u);
  EXPECT_EQ(textAt(12, style, 2), style->singerID(2));
  EXPECT_EQ(callAt(Position{13}, style, -99), style->singerIDLength());
  EXPECT_EQ(countAt(14, style), 4u);
  EXPECT_EQ(textAt(15, style, 3), style->genre(3));
  EXPECT_EQ(countAt(16, style), 5u);
  EXPECT_EQ(textAt(17, style, 4), style->subGenre(4));
  EXPECT_EQ(countAt(18, style), 6u);
  EXPECT_EQ(textAt(19, style, 5), style->color(5));
  EXPECT_EQ(countAt(20, style), 7u);
  EXPECT_EQ(countAt(21, style), 8u);
  EXPECT_TRUE(hasAt(22, style, audio));
  EXPECT_FALSE(hasAt(22, style, midi));
  EXPECT_TRUE(hasAt(23, style, midi));
  EXPECT_FALSE(hasAt(23, style, audio));
}

TEST_F(SlotOrder, OfStyles) {
  expectStyleOrder(system(), system()->audioEffect(6), system()->midiEffect(7));
  expectStyleOrder(user(), user()->audioEffect(0), user()->midiEffect(0));
  expectStyleOrder(mutableStyle(), mutableStyle()->audioEffect(0), mutableStyle()->midiEffect(0));
}

TEST_F(SlotOrder, OfCreationResults) {
  ASSERT_EQ(manager_->numUserStyleCreationResult(), 3u);
  IStyleCreationResult* const result = manager_->userStyleCreationResult(1);
  EXPECT_EQ(objectAt<IStyleCreationResult>(0, result), manager_->userStyleCreationResult(2));
  EXPECT_EQ(objectAt<IStyleCreationResult>(1, result), manager_->userStyleCreationResult(0));
  for (std::size_t i = 0; i < 3; ++i) {
    IStyleCreationResult* const each = manager_->userStyleCreationResult(i);
    EXPECT_EQ(codeAt(2, each), each->error());
    EXPECT_EQ(textAt(3, each), each->filePath());
    EXPECT_EQ(textAt(4, each), each->id());
    EXPECT_EQ(codeAt(5, each), each->type());
    EXPECT_EQ(textAt(6, each), each->jsonPath());
    EXPECT_EQ(codeAt(7, each), each->parseError());
    EXPECT_EQ(callAt(Position{8}, each, std::uint64_t{99}), each->parseErrorOffset());
  }
}

TEST_F(SlotOrder, OfManagers) {
  EXPECT_EQ(callAt(Position{15}, manager_, -1), KOSTYLE_OK);
  EXPECT_EQ(callAt(Position{16}, manager_, -1), KOSTYLE_OK);
  IMutableStyle* const created = objectAt<IMutableStyle>(17, manager_);
  ASSERT_NE(created, nullptr);
  EXPECT_EQ(textAt(1, manager_), manager_->appID());
  EXPECT_EQ(textAt(2, manager_), manager_->systemStyleDirPath());
  EXPECT_EQ(countAt(3, manager_), 2u);
  EXPECT_EQ(objectAt<IStyleCreationResult>(4, manager_, 1), manager_->systemStyleCreationResult(1));
  EXPECT_EQ(countAt(5, manager_), 2u);
  EXPECT_EQ(objectAt<ISystemStyle>(6, manager_, 1), manager_->systemStyle(1));
  EXPECT_TRUE(hasAt(7, manager_, system()));
  EXPECT_EQ(textAt(8, manager_), manager_->userStyleDirPath());
  EXPECT_EQ(countAt(9, manager_), 3u);
  EXPECT_EQ(objectAt<IStyleCreationResult>(10, manager_, 2), manager_->userStyleCreationResult(2));
  EXPECT_EQ(countAt(11, manager_), 1u);
  EXPECT_EQ(objectAt<IUserStyle>(12, manager_, 0), user());
  EXPECT_TRUE(hasAt(13, manager_, user()));
  EXPECT_TRUE(hasAt(14, manager_, created));
}

TEST_F(SlotOrder, OfManagersStartsWithDestroy) {
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

TEST(PropertyEditorSlotOrder, IsThatOfTheOperations) {
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
