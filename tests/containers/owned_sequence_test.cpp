#include "containers/owned_sequence.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <random>
#include <stdexcept>
#include <utility>
#include <vector>

#include "platform/text.h"

namespace Tesk::KoStyle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Named {
 public:
  virtual ~Named() = default;
};

// The interface lies at another address than the element, as it does in the library.
class Item : public virtual Named {
 public:
  explicit Item(Text name = {}, std::vector<Text>* deaths = nullptr)
      : name_(std::move(name)), deaths_(deaths) {}
  ~Item() override {
    if (deaths_) deaths_->push_back(name_);
  }

  const Text& name() const { return name_; }
  void setName(Text name) noexcept { name_.swap(name); }

 private:
  Text name_;
  std::vector<Text>* deaths_;
};

struct NameOf {
  TextView operator()(const Item& item) const noexcept { return item.name(); }
};

using Items = OwnedSequence<Item, Named>;
using KeyedItems = OwnedSequence<Item, Named, NameOf>;

template <class Sequence>
Item& append(Sequence& items, TextView name, std::vector<Text>* deaths = nullptr) {
  return items.append(items.makeNode(Text(name), deaths));
}

template <class Sequence>
Item& insert(Sequence& items, std::size_t position, TextView name) {
  return items.insert(position, items.makeNode(Text(name)));
}

template <class Sequence>
std::vector<Text> namesOf(const Sequence& items) {
  std::vector<Text> names;
  for (const Item& item : items) names.push_back(item.name());
  return names;
}

const Text a = KOSTYLE_TEXT("a");
const Text b = KOSTYLE_TEXT("b");
const Text c = KOSTYLE_TEXT("c");
const Text d = KOSTYLE_TEXT("d");

TEST(OwnedSequence, IsEmptyAtFirst) {
  const KeyedItems items;
  const Item stranger;
  EXPECT_TRUE(items.empty());
  EXPECT_EQ(items.at(0), nullptr);
  EXPECT_EQ(items.position(&stranger), 0u);
  EXPECT_EQ(items.findKey(TextView()), nullptr);
  EXPECT_EQ(items.begin(), items.end());
}

TEST(OwnedSequence, InsertsAtAPositionAndPastTheEndAppends) {
  Items items;
  insert(items, 7, b);
  insert(items, 0, a);
  insert(items, SIZE_MAX, d);
  insert(items, 2, c);
  EXPECT_THAT(namesOf(items), ElementsAre(a, b, c, d));
  EXPECT_EQ(items.at(4), nullptr);
  EXPECT_EQ(items.at(SIZE_MAX), nullptr);
}

TEST(OwnedSequence, FindsElementsByIdentity) {
  Items items;
  const Item& first = append(items, a);
  const Item& second = append(items, a);
  EXPECT_TRUE(items.contains(&first));
  EXPECT_EQ(items.position(&first), 0u);
  EXPECT_EQ(items.position(&second), 1u);
  EXPECT_EQ(items.next(&first), &second);
  EXPECT_EQ(items.previous(&second), &first);
  EXPECT_EQ(items.next(&second), nullptr);
  EXPECT_EQ(items.previous(&first), nullptr);
}

TEST(OwnedSequence, DoesNotFindNullAndStrangers) {
  Items items;
  append(items, a);
  Items others;
  const Item& other = append(others, a);
  const Item loose;
  for (const Item* stranger : {static_cast<const Item*>(nullptr), &other, &loose}) {
    EXPECT_FALSE(items.contains(stranger));
    EXPECT_EQ(items.position(stranger), items.size());
    EXPECT_EQ(items.next(stranger), nullptr);
    EXPECT_EQ(items.previous(stranger), nullptr);
    EXPECT_FALSE(items.destroy(stranger));
  }
  EXPECT_EQ(items.size(), 1u);
}

TEST(OwnedSequence, DoesNotFindADeadElementsAddress) {
  Items items;
  append(items, a);
  const Named* const dead = &append(items, b);
  append(items, c);
  EXPECT_TRUE(items.destroy(dead));
  EXPECT_FALSE(items.contains(dead));
  EXPECT_EQ(items.next(dead), nullptr);
  EXPECT_FALSE(items.destroy(dead));
  EXPECT_THAT(namesOf(items), ElementsAre(a, c));
}

TEST(OwnedSequence, FindsElementsByTheirWholeKey) {
  KeyedItems items;
  const Text withNul(KOSTYLE_TEXT("a\0x"), 3);
  const Text surrogate(1, Char(0xDC00));
  const Item& plain = append(items, a);
  const Item& lengthened = append(items, withNul);
  const Item& lone = append(items, surrogate);
  const Item& unnamed = append(items, Text());
  EXPECT_EQ(items.findKey(a), &plain);
  EXPECT_EQ(items.findKey(withNul), &lengthened);
  EXPECT_EQ(items.findKey(surrogate), &lone);
  EXPECT_EQ(items.findKey(TextView()), &unnamed);
  EXPECT_EQ(items.findKey(b), nullptr);
  EXPECT_EQ(items.findKey(KOSTYLE_TEXT("A")), nullptr);
}

TEST(OwnedSequence, FindsOneOfSeveralWithTheSameKeyUntilAllAreGone) {
  KeyedItems items;
  std::vector<Item*> same = {&append(items, b), &append(items, b), &append(items, b)};
  append(items, a);
  append(items, c);
  for (Item* item : same) {
    Item* const found = items.findKey(b);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->name(), b);
    EXPECT_TRUE(items.destroy(item));
  }
  EXPECT_EQ(items.findKey(b), nullptr);
}

TEST(OwnedSequence, FollowsAKeyThatChanges) {
  KeyedItems items;
  Item& item = append(items, a);
  append(items, c);
  items.modifyKey(&item, [&] { item.setName(d); });
  EXPECT_EQ(items.findKey(a), nullptr);
  EXPECT_EQ(items.findKey(d), &item);
  EXPECT_EQ(items.position(&item), 0u) << "a new key does not move the element";
}

TEST(OwnedSequence, TakesAnElementOutAndInsertsItElsewhere) {
  KeyedItems items;
  Item& first = append(items, a);
  append(items, b);
  append(items, c);
  auto extracted = items.extract(&first);
  EXPECT_FALSE(items.contains(&first));
  EXPECT_EQ(items.findKey(a), nullptr);
  EXPECT_THAT(namesOf(items), ElementsAre(b, c));
  EXPECT_EQ(&items.insert(1, std::move(extracted)), &first);
  EXPECT_THAT(namesOf(items), ElementsAre(b, a, c));
  EXPECT_EQ(items.findKey(a), &first);
}

TEST(OwnedSequence, ATakenElementDiesWithItsHolder) {
  std::vector<Text> deaths;
  Items items;
  const Item& item = append(items, a, &deaths);
  { const auto extracted = items.extract(&item); }
  EXPECT_THAT(deaths, ElementsAre(a));
  EXPECT_TRUE(items.empty());
}

TEST(OwnedSequence, AnElementThatIsNotInsertedDies) {
  std::vector<Text> deaths;
  Items items;
  { const auto node = items.makeNode(a, &deaths); }
  EXPECT_THAT(deaths, ElementsAre(a));
}

TEST(OwnedSequence, AnElementThatIsNotInsertedIsNotFound) {
  KeyedItems items;
  append(items, a);
  const auto node = items.makeNode(b);
  ASSERT_TRUE(node);
  EXPECT_EQ(node->name(), b);
  EXPECT_FALSE(items.contains(&*node));
  EXPECT_EQ(items.next(&*node), nullptr);
  EXPECT_EQ(items.findKey(b), nullptr);
  EXPECT_FALSE(items.destroy(&*node));
  EXPECT_THAT(namesOf(items), ElementsAre(a));
}

TEST(OwnedSequence, HoldsElementsOfSeveralClasses) {
  struct Large : Item {
    explicit Large(Text name) : Item(std::move(name)) {}
    char more[1000] = {};
  };
  OwnedSequence<Item, Named, NameOf, Item, Large> items;
  std::vector<const Item*> made;
  for (int i = 0; i < 20; ++i) {
    made.push_back(&items.append(items.makeNode<Large>(a)));
    made.push_back(&items.append(items.makeNode<Item>(b)));
  }
  for (std::size_t i = 0; i < made.size(); ++i) EXPECT_EQ(items.position(made[i]), i);
}

TEST(OwnedSequence, StaysAsItWasWhenAnElementCannotBeMade) {
  struct Unmakable : Item {
    explicit Unmakable(bool makable) {
      if (!makable) throw std::runtime_error("unmakable");
    }
  };
  OwnedSequence<Unmakable, Named> items;
  const Item& first = items.append(items.makeNode(true));
  for (int i = 0; i < 20; ++i) EXPECT_THROW(items.makeNode(false), std::runtime_error);
  const Item& second = items.append(items.makeNode(true));
  EXPECT_EQ(items.size(), 2u);
  EXPECT_EQ(items.next(&first), &second);
}

TEST(OwnedSequence, InsertsBehindSmallerAndEqualKeys) {
  KeyedItems items;
  const auto insertByKey = [&](const Text& name) { return &items.insertByKey(items.makeNode(name)); };
  const Item* const second = insertByKey(b);
  insertByKey(d);
  insertByKey(a);
  const Item* const third = insertByKey(b);
  insertByKey(c);
  EXPECT_THAT(namesOf(items), ElementsAre(a, b, b, c, d));
  EXPECT_EQ(items.at(1), second);
  EXPECT_EQ(items.at(2), third);
}

TEST(OwnedSequence, ClearsFromTheFirstToTheLast) {
  std::vector<Text> deaths;
  Items items;
  for (const Text& name : {c, a, d, b}) append(items, name, &deaths);
  items.clear();
  EXPECT_THAT(deaths, ElementsAre(c, a, d, b));
  EXPECT_TRUE(items.empty());
  append(items, a, &deaths);
  EXPECT_EQ(items.size(), 1u);
}

TEST(OwnedSequence, DestroysItsElementsFromTheFirstToTheLast) {
  std::vector<Text> deaths;
  {
    KeyedItems items;
    for (const Text& name : {b, a, c}) append(items, name, &deaths);
    EXPECT_THAT(deaths, IsEmpty());
  }
  EXPECT_THAT(deaths, ElementsAre(b, a, c));
}

TEST(OwnedSequence, FindsThePartitionPointByElement) {
  Items items;
  for (const Text& name : {a, b, b, d}) append(items, name);
  EXPECT_EQ(items.partitionPoint([](const Item& item) { return item.name() < b; }), 1u);
  EXPECT_EQ(items.partitionPoint([](const Item& item) { return item.name() <= b; }), 3u);
  EXPECT_EQ(items.partitionPoint([](const Item&) { return true; }), 4u);
}

TEST(OwnedSequence, AgreesWithAVectorThroughRandomChanges) {
  std::mt19937 random(3);
  const auto below = [&](std::size_t n) {
    return std::uniform_int_distribution<std::size_t>(0, n - 1)(random);
  };
  const auto anyName = [&] { return Text(1, static_cast<Char>('a' + below(20))); };
  KeyedItems items;
  std::vector<Item*> reference;
  const auto at = [&](std::size_t i) { return reference.begin() + static_cast<std::ptrdiff_t>(i); };
  for (int step = 0; step < 20000; ++step) {
    const std::size_t action = reference.empty() ? 0 : below(6);
    if (action <= 1 && reference.size() < 300) {
      const std::size_t position = below(reference.size() + 3);
      Item& item = insert(items, position, anyName());
      reference.insert(at(std::min(position, reference.size())), &item);
    } else if (action == 2) {
      const std::size_t position = below(reference.size());
      EXPECT_TRUE(items.destroy(reference[position]));
      reference.erase(at(position));
    } else if (action == 3) {
      Item& item = *reference[below(reference.size())];
      items.modifyKey(&item, [&, name = anyName()]() mutable { item.setName(std::move(name)); });
    } else if (action == 4) {
      const std::size_t from = below(reference.size());
      const std::size_t to = below(reference.size() + 3);  // its own place and past the end too
      Item* const item = reference[from];
      items.move(item, to);
      reference.erase(at(from));
      reference.insert(at(std::min(to, reference.size())), item);
    } else if (!reference.empty()) {
      const std::size_t from = below(reference.size());
      Item* const item = reference[from];
      reference.erase(at(from));
      auto extracted = items.extract(item);
      const std::size_t to = below(reference.size() + 1);
      items.insert(to, std::move(extracted));
      reference.insert(at(to), item);
    }
    ASSERT_EQ(items.size(), reference.size());
    if (step % 200 != 0) continue;
    for (std::size_t i = 0; i < reference.size(); ++i) {
      ASSERT_EQ(items.at(i), reference[i]);
      ASSERT_EQ(items.position(reference[i]), i);
      ASSERT_EQ(items.next(reference[i]), i + 1 < reference.size() ? reference[i + 1] : nullptr);
      ASSERT_EQ(items.previous(reference[i]), i > 0 ? reference[i - 1] : nullptr);
    }
    for (Char unit = 'a'; unit < 'a' + 20; ++unit) {
      const TextView name(&unit, 1);
      const Item* const found = items.findKey(name);
      const auto named = [&](const Item* item) { return item->name() == name; };
      ASSERT_EQ(found != nullptr, std::any_of(reference.begin(), reference.end(), named));
      ASSERT_EQ(found ? found->name() : name, name);
    }
  }
}

TEST(OwnedSequence, WalksAHundredThousandElementsByNeighbour) {
  Items items;
  constexpr std::size_t count = 100000;
  for (std::size_t i = 0; i < count; ++i) append(items, a);
  std::size_t walked = 0;
  for (const Item* item = items.at(0); item; item = items.next(item)) ++walked;
  for (const Item* item = items.at(count - 1); item; item = items.previous(item)) ++walked;
  EXPECT_EQ(walked, 2 * count);
  while (!items.empty()) items.destroy(items.at(items.size() / 2));
  EXPECT_EQ(items.begin(), items.end());
}

struct Counted {
  explicit Counted(int& deaths) : deaths_(deaths) {}
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;
  ~Counted() { ++deaths_; }

  int& deaths_;
};

struct CountedInPool : Counted {
  using Counted::Counted;
};

}  // namespace

template <>
inline constexpr bool goesWithPool<CountedInPool> = true;

namespace {

template <class Element>
int deathsOfThree(bool isAbandoned) {
  int deaths = 0;
  MemoryPool pool;
  OwnedSequence<Element, Element> sequence(&pool);
  for (int i = 0; i < 3; ++i) sequence.append(sequence.makeNode(deaths));
  if (isAbandoned) pool.abandon();
  sequence.clear();
  EXPECT_TRUE(sequence.empty());
  return deaths;
}

TEST(OwnedSequence, LeavesElementsThatGoWithThePoolToIt) {
  EXPECT_EQ(deathsOfThree<Counted>(false), 3);
  EXPECT_EQ(deathsOfThree<Counted>(true), 3);
  EXPECT_EQ(deathsOfThree<CountedInPool>(false), 3);
  EXPECT_EQ(deathsOfThree<CountedInPool>(true), 0);
}

}  // namespace
}  // namespace Tesk::KoStyle
