#include "containers/frozen_array.h"

#include <gmock/gmock.h>

#include <stdexcept>
#include <utility>
#include <vector>

namespace Tesk::KoStyle {
namespace {

struct Interface {
  virtual int value() const = 0;

 protected:
  ~Interface() = default;
};

// The interface lies at another address than the element.
class Element : public virtual Interface {
 public:
  explicit Element(int value, std::vector<int>* deaths = nullptr) : value_(value), deaths_(deaths) {
    if (value < 0) throw std::invalid_argument("negative");
  }
  Element(const Element&) = delete;
  Element& operator=(const Element&) = delete;
  ~Element() {
    if (deaths_) deaths_->push_back(value_);
  }
  int value() const override { return value_; }

 private:
  int value_;
  std::vector<int>* deaths_;
};

using Elements = FrozenArray<Element>;

TEST(FrozenArray, IsEmptyAtFirst) {
  const Elements none;
  EXPECT_EQ(none.size(), 0u);
  EXPECT_EQ(none.at(0), nullptr);
  EXPECT_EQ(none.begin(), none.end());
  const Interface* const nothing = nullptr;
  EXPECT_FALSE(none.contains(nothing));
}

TEST(FrozenArray, KeepsElementsInTheOrderInWhichTheyWereMade) {
  Elements elements(3);
  for (const int value : {5, 3, 9}) EXPECT_EQ(elements.emplace(value).value(), value);
  std::vector<int> values;
  for (const Element& element : elements) values.push_back(element.value());
  EXPECT_THAT(values, testing::ElementsAre(5, 3, 9));
  EXPECT_EQ(elements.at(1)->value(), 3);
  EXPECT_EQ(elements.at(3), nullptr);
  EXPECT_EQ(elements.at(SIZE_MAX), nullptr);
}

TEST(FrozenArray, ContainsTheAddressesOfItsElementsAlone) {
  Elements elements(2);
  Elements others(2);
  for (Elements* each : {&elements, &others}) {
    each->emplace(1);
    each->emplace(2);
  }
  for (const Element& element : elements) {
    const Interface* const address = &element;
    EXPECT_TRUE(elements.contains(address));
    EXPECT_FALSE(others.contains(address));
  }
  const auto* const between =
      reinterpret_cast<const Interface*>(reinterpret_cast<const char*>(elements.begin()) + 1);
  EXPECT_FALSE(elements.contains(between));
  EXPECT_FALSE(elements.contains(reinterpret_cast<const Interface*>(elements.end())));
  EXPECT_FALSE(elements.contains(static_cast<const Interface*>(nullptr)));
}

TEST(FrozenArray, GivesTheNeighboursOfAnElement) {
  Elements elements(3);
  for (const int value : {1, 2, 3}) elements.emplace(value);
  const auto& range = elements.range();
  EXPECT_EQ(range.neighbour(*elements.at(1), 1), elements.at(2));
  EXPECT_EQ(range.neighbour(*elements.at(1), -1), elements.at(0));
  EXPECT_EQ(range.neighbour(*elements.at(0), -1), nullptr);
  EXPECT_EQ(range.neighbour(*elements.at(2), 1), nullptr);
}

TEST(FrozenArray, DestroysWhatItHoldsWhenMakingAnElementFails) {
  std::vector<int> deaths;
  {
    Elements elements(3);
    elements.emplace(1, &deaths);
    EXPECT_THROW(elements.emplace(-1, &deaths), std::invalid_argument);
    EXPECT_EQ(elements.size(), 1u);
  }
  EXPECT_THAT(deaths, testing::ElementsAre(1));
}

TEST(FrozenArray, MovesWithoutMovingItsElements) {
  std::vector<int> deaths;
  Elements elements(1);
  const Element* const element = &elements.emplace(7, &deaths);
  Elements moved(std::move(elements));
  EXPECT_EQ(moved.at(0), element);
  Elements assigned(1);
  assigned.emplace(8, &deaths);
  assigned = std::move(moved);
  EXPECT_EQ(assigned.at(0), element);
  EXPECT_THAT(deaths, testing::ElementsAre(8));
}

}  // namespace
}  // namespace Tesk::KoStyle
