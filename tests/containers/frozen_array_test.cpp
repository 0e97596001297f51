#include "containers/frozen_array.h"

#include <gmock/gmock.h>

#include <utility>
#include <vector>

#include "platform/text.h"

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
  explicit Element(int value) noexcept : value_(value) {}
  int value() const override { return value_; }

 private:
  int value_;
};

// An array of its own block.
class FrozenArrayTest : public testing::Test {
 protected:
  static constexpr std::size_t room = 3;

  FrozenBlock block{room * sizeof(Element)};
  FrozenArray<Element> elements{block.take<Element>(room)};
};

TEST(FrozenRange, IsEmptyAtFirst) {
  const FrozenRange<Element> none;
  EXPECT_EQ(none.size(), 0u);
  EXPECT_EQ(none.at(0), nullptr);
  EXPECT_EQ(none.begin(), none.end());
  const Interface* const nothing = nullptr;
  EXPECT_FALSE(none.contains(nothing));
}

TEST_F(FrozenArrayTest, KeepsElementsInTheOrderInWhichTheyWereMade) {
  EXPECT_EQ(elements.range().size(), 0u);
  for (const int value : {5, 3, 9}) EXPECT_EQ(elements.emplace(value).value(), value);
  const FrozenRange<Element> range = elements.range();
  std::vector<int> values;
  for (const Element& element : range) values.push_back(element.value());
  EXPECT_THAT(values, testing::ElementsAre(5, 3, 9));
  EXPECT_EQ(range.at(1)->value(), 3);
  EXPECT_EQ(range.at(3), nullptr);
  EXPECT_EQ(range.at(SIZE_MAX), nullptr);
}

TEST_F(FrozenArrayTest, ContainsTheAddressesOfItsElementsAlone) {
  FrozenBlock otherBlock(2 * sizeof(Element));
  FrozenArray<Element> others(otherBlock.take<Element>(2));
  for (const int value : {1, 2}) {
    elements.emplace(value);
    others.emplace(value);
  }
  const FrozenRange<Element> range = elements.range();
  for (const Element& element : range) {
    const Interface* const address = &element;
    EXPECT_TRUE(range.contains(address));
    EXPECT_FALSE(others.range().contains(address));
  }
  const auto* const between =
      reinterpret_cast<const Interface*>(reinterpret_cast<const char*>(range.begin()) + 1);
  EXPECT_FALSE(range.contains(between));
  EXPECT_FALSE(range.contains(reinterpret_cast<const Interface*>(range.end())));
  EXPECT_FALSE(range.contains(static_cast<const Interface*>(nullptr)));
}

TEST_F(FrozenArrayTest, GivesTheNeighboursOfAnElement) {
  for (const int value : {1, 2, 3}) elements.emplace(value);
  const FrozenRange<Element> range = elements.range();
  EXPECT_EQ(range.neighbour(*range.at(1), 1), range.at(2));
  EXPECT_EQ(range.neighbour(*range.at(1), -1), range.at(0));
  EXPECT_EQ(range.neighbour(*range.at(0), -1), nullptr);
  EXPECT_EQ(range.neighbour(*range.at(2), 1), nullptr);
}

TEST(FrozenBlock, GivesItsMemoryPieceByPiece) {
  FrozenBlock block(2 * sizeof(Element) + 5 * sizeof(Char));
  FrozenArray<Element> elements(block.take<Element>(2));
  Char* const units = block.take<Char>(5);
  EXPECT_EQ(static_cast<void*>(units), static_cast<void*>(elements.end() + 2));
  {
    FrozenBlock other;
    other.swap(block);
    block.swap(other);
  }
  EXPECT_EQ(elements.emplace(7).value(), 7)
      << "what lies in a block does not move when it is exchanged";
}

}  // namespace
}  // namespace Tesk::KoStyle
