#include "model/parameter_list.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "model/mutable_parameter.h"
#include "model/parameter.h"
#include "support/text.h"

namespace Tesk::KoStyle {
namespace {

using test::text;
using testing::ElementsAre;

std::unique_ptr<Parameter> named(Text name) {
  auto parameter = std::make_unique<Parameter>(nullptr);
  parameter->assignName(std::move(name));
  return parameter;
}

ParameterBase* append(ParameterList& list, const std::string& name) {
  return list.append(named(text(name)));
}

std::vector<std::string> namesOf(const ParameterList& list) {
  std::vector<std::string> names;
  for (const ParameterBase& parameter : list) names.push_back(test::utf8(parameter.wholeName()));
  return names;
}

TEST(ParameterList, SortsAtEveryAppend) {
  ParameterList list;
  for (const char* name : {"b", "c", "a"}) append(list, name);
  EXPECT_THAT(namesOf(list), ElementsAre("a", "b", "c"));
}

TEST(ParameterList, SortsByUnitWithPrefixesFirst) {
  ParameterList list;
  const Text surrogate(1, Char(0xD800));
  const Text privateUse(1, Char(0xE000));
  const Text withNul(KOSTYLE_TEXT("a\0"), 2);
  const std::vector<Text> expected = {text("A"), text("a"), withNul, text("ab"), surrogate, privateUse};
  for (auto name = expected.rbegin(); name != expected.rend(); ++name) list.append(named(*name));
  std::vector<Text> names;
  for (const ParameterBase& parameter : list) names.push_back(parameter.wholeName());
  EXPECT_EQ(names, expected);
}

TEST(ParameterList, ReturnsTheAppendedParameter) {
  ParameterList list;
  append(list, "b");
  auto parameter = named(text("a"));
  ParameterBase* const address = parameter.get();
  EXPECT_EQ(list.append(std::move(parameter)), address);
  EXPECT_EQ(list.at(0), address);
}

TEST(ParameterList, RefusesNullAndANameThatIsHere) {
  ParameterList list;
  EXPECT_EQ(list.append(nullptr), nullptr);
  append(list, "a");
  EXPECT_EQ(append(list, "a"), nullptr);
  EXPECT_NE(append(list, "A"), nullptr);
  EXPECT_EQ(list.size(), 2u);
}

TEST(ParameterList, TellsNamesWithEmbeddedNulsApart) {
  ParameterList list;
  const Text one(KOSTYLE_TEXT("a\0x"), 3);
  const Text other(KOSTYLE_TEXT("a\0y"), 3);
  EXPECT_NE(list.append(named(one)), nullptr);
  EXPECT_NE(list.append(named(other)), nullptr);
  EXPECT_NE(append(list, "a"), nullptr);
  EXPECT_EQ(list.append(named(other)), nullptr);
  EXPECT_TRUE(list.containsName(one));
  EXPECT_FALSE(list.containsName(Text(KOSTYLE_TEXT("a\0z"), 3)));
}

TEST(ParameterList, TakesAnyNumberWithoutAName) {
  ParameterList list;
  append(list, "a");
  EXPECT_NE(append(list, ""), nullptr);
  EXPECT_NE(append(list, ""), nullptr);
  EXPECT_THAT(namesOf(list), ElementsAre("", "", "a"));
}

TEST(ParameterList, ARenamedParameterStaysUntilTheNextAppend) {
  ParameterList list;
  for (const char* name : {"a", "b", "c"}) append(list, name);
  list.rename(*list.at(0), text("z"));
  EXPECT_THAT(namesOf(list), ElementsAre("z", "b", "c"));
  EXPECT_FALSE(list.containsName(text("a")));
  EXPECT_TRUE(list.containsName(text("z")));
  append(list, "d");
  EXPECT_THAT(namesOf(list), ElementsAre("b", "c", "d", "z"));
}

TEST(ParameterList, ARefusedAppendDoesNotSort) {
  ParameterList list;
  for (const char* name : {"a", "b"}) append(list, name);
  list.rename(*list.at(0), text("z"));
  EXPECT_EQ(append(list, "b"), nullptr);
  EXPECT_EQ(list.append(nullptr), nullptr);
  EXPECT_THAT(namesOf(list), ElementsAre("z", "b"));
}

TEST(ParameterList, DestroyingDoesNotSort) {
  ParameterList list;
  for (const char* name : {"a", "b", "c"}) append(list, name);
  list.rename(*list.at(0), text("z"));
  list.destroy(*list.at(1));
  EXPECT_THAT(namesOf(list), ElementsAre("z", "c"));
}

TEST(ParameterList, ParametersOfEqualNameKeepTheirOrder) {
  ParameterList list;
  for (const char* name : {"a", "b", "c", "d"}) append(list, name);
  ParameterBase* const first = list.at(0);
  ParameterBase* const second = list.at(1);
  ParameterBase* const last = list.at(3);
  list.rename(*last, text("b"));
  list.rename(*first, text("b"));
  append(list, "e");
  EXPECT_THAT(namesOf(list), ElementsAre("b", "b", "b", "c", "e"));
  EXPECT_EQ(list.at(0), first);
  EXPECT_EQ(list.at(1), second);
  EXPECT_EQ(list.at(2), last);
}

TEST(ParameterList, RenamingSomeParameterOfAnotherListOnlyNamesIt) {
  ParameterList list;
  append(list, "a");
  const auto stranger = named(text("b"));
  list.rename(*stranger, text("c"));
  EXPECT_EQ(stranger->wholeName(), text("c"));
  EXPECT_THAT(namesOf(list), ElementsAre("a"));
  EXPECT_FALSE(list.containsName(text("c")));
}

TEST(ParameterList, DestroysOnlyItsOwnParameters) {
  ParameterList list;
  append(list, "a");
  const auto stranger = named(text("a"));
  list.destroy(*stranger);
  EXPECT_EQ(list.size(), 1u);
  list.destroy(*list.at(0));
  EXPECT_EQ(list.size(), 0u);
  EXPECT_FALSE(list.containsName(text("a")));
}

TEST(ParameterList, ForgetsARenamedParameterThatIsDestroyed) {
  ParameterList list;
  for (const char* name : {"a", "b"}) append(list, name);
  list.rename(*list.at(0), text("z"));
  list.destroy(*list.at(0));
  append(list, "a");
  EXPECT_THAT(namesOf(list), ElementsAre("a", "b"));
}

// What the list does, done the plain way.
class Model {
 public:
  bool append(const Text& name, const ParameterBase* parameter) {
    if (!name.empty() && std::any_of(items_.begin(), items_.end(),
                                     [&](const auto& item) { return item.first == name; })) {
      return false;
    }
    items_.emplace_back(name, parameter);
    std::stable_sort(items_.begin(), items_.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    return true;
  }
  void rename(std::size_t position, const Text& name) { items_[position].first = name; }
  void destroy(std::size_t position) {
    items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(position));
  }
  std::size_t size() const { return items_.size(); }

  void expectSame(const ParameterList& list) const {
    ASSERT_EQ(list.size(), items_.size());
    std::size_t position = 0;
    for (const ParameterBase& parameter : list) {
      ASSERT_EQ(&parameter, items_[position].second);
      ASSERT_EQ(parameter.wholeName(), items_[position].first);
      ++position;
    }
  }

 private:
  std::vector<std::pair<Text, const ParameterBase*>> items_;
};

// Short lists with few names bring about every pattern of equal and displaced names; long ones, deep
// trees.
void compareWithModel(std::mt19937& random, std::size_t length, std::size_t names, int steps) {
  const auto below = [&](std::size_t n) {
    return std::uniform_int_distribution<std::size_t>(0, n - 1)(random);
  };
  const auto anyName = [&] {
    const std::size_t number = below(names);
    return number == 0 ? Text() : text(std::to_string(number));
  };
  ParameterList list;
  Model model;
  for (int step = 0; step < steps; ++step) {
    const std::size_t action = below(6);
    if (model.size() == 0 || (action < 2 && model.size() < length)) {
      auto parameter = named(anyName());
      const ParameterBase* const address = parameter.get();
      const bool taken = model.append(parameter->wholeName(), address);
      ASSERT_EQ(list.append(std::move(parameter)), taken ? address : nullptr);
    } else if (action < 5) {
      const std::size_t position = below(model.size());
      const Text name = anyName();
      model.rename(position, name);
      list.rename(*list.at(position), name);
    } else {
      const std::size_t position = below(model.size());
      model.destroy(position);
      list.destroy(*list.at(position));
    }
    ASSERT_NO_FATAL_FAILURE(model.expectSame(list));
  }
}

TEST(ParameterList, AgreesWithAStableSortThroughThousandsOfShortSequences) {
  std::mt19937 random(17);
  for (int sequence = 0; sequence < 4000; ++sequence) {
    const std::size_t length = 2 + static_cast<std::size_t>(sequence % 9);
    const std::size_t names = 2 + static_cast<std::size_t>(sequence % 7);
    ASSERT_NO_FATAL_FAILURE(compareWithModel(random, length, names, 40));
  }
}

TEST(ParameterList, AgreesWithAStableSortThroughLongSequences) {
  std::mt19937 random(23);
  for (const std::size_t names : {5u, 60u, 2000u}) {
    ASSERT_NO_FATAL_FAILURE(compareWithModel(random, 300, names, 3000));
  }
}

TEST(ParameterList, TakesAHundredThousandInAnyOrder) {
  constexpr std::size_t count = 100000;
  std::vector<std::size_t> order(count);
  for (std::size_t i = 0; i < count; ++i) order[i] = i;
  std::shuffle(order.begin(), order.end(), std::mt19937(5));
  ParameterList list;
  for (const std::size_t number : order) ASSERT_NE(append(list, std::to_string(number)), nullptr);
  for (const std::size_t number : order) ASSERT_EQ(append(list, std::to_string(number)), nullptr);
  EXPECT_EQ(list.size(), count);
  std::size_t walked = 1;
  for (const ParameterBase* parameter = list.at(0); ParameterBase* next = list.next(parameter);) {
    ASSERT_LT(parameter->wholeName(), next->wholeName());
    parameter = next;
    ++walked;
  }
  EXPECT_EQ(walked, count);
}

TEST(ParameterList, RenamesAHundredThousandWithAnAppendAfterEach) {
  constexpr std::size_t count = 100000;
  ParameterList list;
  for (std::size_t i = 0; i < count; ++i) append(list, std::to_string(i));
  for (std::size_t i = 0; i < count; ++i) {
    const Text name = text("z" + std::to_string(count + i));
    list.rename(*list.at(0), name);
    ParameterBase* const added = append(list, "y");
    ASSERT_NE(added, nullptr);
    ASSERT_EQ(list.at(count)->wholeName(), name);
    list.destroy(*added);
  }
  EXPECT_EQ(list.size(), count);
  EXPECT_EQ(list.at(0)->wholeName(), text("z100000"));
}

TEST(ParameterList, SortsAHundredThousandRenamedAtOnce) {
  constexpr std::size_t count = 100000;
  ParameterList list;
  for (std::size_t i = 0; i < count; ++i) append(list, std::to_string(count + i));
  for (std::size_t i = 0; i < count; ++i) {
    list.rename(*list.at(i), text(std::to_string(4 * count - i)));
  }
  append(list, "0");
  ASSERT_EQ(list.size(), count + 1);
  for (std::size_t i = 0; i < count; ++i)
    ASSERT_LT(list.at(i)->wholeName(), list.at(i + 1)->wholeName());
}

}  // namespace
}  // namespace Tesk::KoStyle
