// Random sequences of everything that a host can do, against a reference that is compared after each
// step.
#include <gmock/gmock.h>

#include <cstdint>
#include <vector>

#include "support/stored_style_steps.h"

namespace {

constexpr int stepLimit = 200;
#if defined(_WIN32)
constexpr std::uint64_t sequenceCount = 100;
#else
constexpr std::uint64_t sequenceCount = 1000;
#endif
constexpr std::uint64_t batchCount = 20;

class Sequence : public test::StoredStyleSteps {
 public:
  explicit Sequence(std::uint64_t seed) : StoredStyleSteps(seed) {}

  /// Stops at the first step that fails.
  void run() {
    while (stepCount() < stepLimit) {
      // A step that finds nothing to work on leaves the count as it is.
      const int before = stepCount();
      while (stepCount() == before) tryStep();
      expectAgreement();
      if (testing::Test::HasFailure()) return;
    }
    expectFilesToBeReadAgain();
  }

 private:
  void tryStep() {
    using Step = void (Sequence::*)();
    struct Choice {
      Step step;
      int weight;
    };
    static const std::vector<Choice> choices{
        {&Sequence::createMutable, 2}, {&Sequence::destroyMutable, 1},
        {&Sequence::setName, 3},       {&Sequence::editLanguage, 3},
        {&Sequence::editTextList, 8},  {&Sequence::insertEffect, 7},
        {&Sequence::moveEffect, 4},    {&Sequence::destroyEffect, 2},
        {&Sequence::addParameter, 14}, {&Sequence::renameParameter, 12},
        {&Sequence::setValue, 6},      {&Sequence::destroyParameter, 3},
        {&Sequence::save, 2},          {&Sequence::overwrite, 3},
        {&Sequence::createEditor, 3},  {&Sequence::destroyEditor, 2},
        {&Sequence::setEditorName, 4}, {&Sequence::addToEditor, 5},
        {&Sequence::saveEditor, 8},    {&Sequence::removeUser, 1},
        {&Sequence::readUser, 2},      {&Sequence::readSystem, 2},
        {&Sequence::putFile, 2},       {&Sequence::deleteFile, 2},
        {&Sequence::putBadFile, 2}};
    static const std::vector<Step> weighted = [] {
      std::vector<Step> steps;
      for (const Choice& each : choices)
        steps.insert(steps.end(), static_cast<std::size_t>(each.weight), each.step);
      return steps;
    }();
    (this->*random_.of(weighted))();
  }
};

class Reference : public testing::TestWithParam<std::uint64_t> {};

INSTANTIATE_TEST_SUITE_P(Batch, Reference, testing::Range<std::uint64_t>(0, batchCount));

TEST_P(Reference, AgreesAfterEachStepOfManySequences) {
  for (std::uint64_t seed = GetParam(); seed < sequenceCount; seed += batchCount) {
    Sequence sequence(seed);
    sequence.run();
    ASSERT_FALSE(HasFailure()) << "seed " << seed << ", steps:" << sequence.steps();
  }
}

}  // namespace
