#include "containers/slot_map.h"

#include <gmock/gmock.h>

#include <cstddef>
#include <stdexcept>
#include <vector>

namespace Tesk::KoStyle {
namespace {

struct Numbered {
  explicit Numbered(int value) : number(value) {
    if (value < 0) throw std::invalid_argument("negative");
  }
  int number;
};

class SlotMapTest : public testing::Test {
 protected:
  ~SlotMapTest() override {
    for (const SlotNumber slot : slots) map.erase(slot);
  }

  SlotNumber add(int number) {
    slots.push_back(map.emplace<Numbered>(number));
    return slots.back();
  }

  SlotMap<Numbered> map;
  std::vector<SlotNumber> slots;
};

TEST_F(SlotMapTest, HasNoSlotAtFirst) {
  EXPECT_EQ(map.capacity(), 0u);
  EXPECT_TRUE(map.empty());
  const Numbered loose(1);
  EXPECT_EQ(map.slotAt(&loose), noSlot);
  EXPECT_EQ(map.slotAt(nullptr), noSlot);
}

TEST_F(SlotMapTest, FindsTheSlotOfEachAddress) {
  for (int i = 0; i < 1000; ++i) {
    const SlotNumber slot = add(i);
    EXPECT_LT(slot, map.capacity());
  }
  std::vector<const Numbered*> places;
  for (const SlotNumber slot : slots) places.push_back(&map[slot]);
  for (int i = 1000; i < 3000; ++i) add(i);
  for (std::size_t i = 0; i < places.size(); ++i) {
    EXPECT_EQ(&map[slots[i]], places[i]) << "elements do not move";
    EXPECT_EQ(places[i]->number, static_cast<int>(i));
    EXPECT_EQ(map.slotAt(places[i]), slots[i]);
    EXPECT_EQ(map.slotAt(reinterpret_cast<const char*>(places[i]) + sizeof(Numbered) - 1), slots[i]);
  }
  const Numbered loose(1);
  EXPECT_EQ(map.slotAt(&loose), noSlot);
}

TEST_F(SlotMapTest, FillsAnEmptySlotBeforeItTakesMemory) {
  for (int i = 0; i < 100; ++i) add(i);
  const std::size_t capacity = map.capacity();
  while (slots.size() > 50) {
    map.erase(slots.back());
    slots.pop_back();
  }
  for (int i = 0; i < 50; ++i) add(i);
  EXPECT_EQ(map.capacity(), capacity);
}

TEST_F(SlotMapTest, AFailedConstructorLeavesTheSlotEmpty) {
  const SlotNumber first = add(1);
  const std::size_t capacity = map.capacity();
  for (int i = 0; i < 100; ++i) EXPECT_THROW(map.emplace<Numbered>(-1), std::invalid_argument);
  EXPECT_EQ(map.capacity(), capacity);
  EXPECT_NE(add(2), first);
  EXPECT_EQ(map[first].number, 1);
}

TEST_F(SlotMapTest, IsEmptyWhenTheLastElementIsGone) {
  add(1);
  add(2);
  EXPECT_FALSE(map.empty());
  for (const SlotNumber slot : slots) map.erase(slot);
  slots.clear();
  EXPECT_TRUE(map.empty());
}

#if defined(__SANITIZE_ADDRESS__)

using SlotMapDeathTest = SlotMapTest;

TEST_F(SlotMapDeathTest, AnEmptySlotMustNotBeTouched) {
  add(1);
  const volatile int* number = &map[add(2)].number;
  EXPECT_EQ(*number, 2);
  map.erase(slots.back());
  slots.pop_back();
  EXPECT_DEATH(static_cast<void>(*number), "use-after-poison");
  EXPECT_THROW(map.emplace<Numbered>(-1), std::invalid_argument);
  EXPECT_DEATH(static_cast<void>(*number), "use-after-poison");
  add(3);
  EXPECT_EQ(*number, 3);
}

#endif

}  // namespace
}  // namespace Tesk::KoStyle
