#include "containers/sorted_set.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdint>
#include <new>
#include <random>
#include <set>
#include <utility>
#include <vector>

#include "platform/text.h"

namespace Tesk::KoStyle {
namespace {

template <class Value>
std::vector<Value> valuesOf(const SortedSet<Value>& set) {
  std::vector<Value> values;
  for (const Value& value : set) values.push_back(value);
  return values;
}

TEST(SortedSet, IsEmptyAtFirst) {
  const SortedSet<int> set;
  EXPECT_TRUE(set.empty());
  EXPECT_EQ(set.size(), 0u);
  EXPECT_EQ(set.at(0), nullptr);
  EXPECT_FALSE(set.begin() != set.end());
}

TEST(SortedSet, KeepsValuesInAscendingOrder) {
  SortedSet<int> set;
  for (const int value : {3, -1, 2, 0}) EXPECT_TRUE(set.insert(value));
  EXPECT_EQ(valuesOf(set), (std::vector<int>{-1, 0, 2, 3}));
  ASSERT_NE(set.at(3), nullptr);
  EXPECT_EQ(*set.at(3), 3);
  EXPECT_EQ(set.at(4), nullptr);
  EXPECT_EQ(set.at(SIZE_MAX), nullptr);
}

TEST(SortedSet, RefusesASecondEqualValue) {
  SortedSet<int> set;
  EXPECT_TRUE(set.insert(1));
  EXPECT_FALSE(set.insert(1));
  EXPECT_EQ(set.size(), 1u);
}

TEST(SortedSet, ErasesOnlyWhatIsHere) {
  SortedSet<int> set;
  for (const int value : {1, 2, 3}) set.insert(value);
  EXPECT_FALSE(set.erase(4));
  EXPECT_TRUE(set.erase(2));
  EXPECT_FALSE(set.erase(2));
  EXPECT_EQ(valuesOf(set), (std::vector<int>{1, 3}));
}

TEST(SortedSet, OrdersTextsByUnitWithPrefixesFirst) {
  const Text surrogate(1, Char(0xD800));
  const Text privateUse(1, Char(0xE000));
  const Text withNul(KOSTYLE_TEXT("a\0b"), 3);
  SortedSet<Text> set;
  for (const Text& value : {Text(KOSTYLE_TEXT("b")), Text(KOSTYLE_TEXT("ab")), privateUse, surrogate,
                            Text(KOSTYLE_TEXT("B")), withNul, Text(KOSTYLE_TEXT("a"))}) {
    EXPECT_TRUE(set.insert(value));
  }
  EXPECT_EQ(valuesOf(set),
            (std::vector<Text>{KOSTYLE_TEXT("B"), KOSTYLE_TEXT("a"), withNul, KOSTYLE_TEXT("ab"),
                               KOSTYLE_TEXT("b"), surrogate, privateUse}));
}

TEST(SortedSet, AValueKeepsItsAddressUntilItIsErased) {
  SortedSet<Text> set;
  set.insert(TextView(KOSTYLE_TEXT("m")));
  const Text* const kept = set.at(0);
  for (Char unit = 'a'; unit <= 'z'; ++unit) set.insert(TextView(&unit, 1));
  for (Char unit = 'a'; unit < 'm'; ++unit) EXPECT_TRUE(set.erase(TextView(&unit, 1)));
  EXPECT_EQ(set.at(0), kept);
  EXPECT_EQ(*kept, KOSTYLE_TEXT("m"));
}

TEST(SortedSet, ErasesAValueThatIsGivenByItsOwnStorage) {
  SortedSet<Text> set;
  const Text lengthy(100, Char('x'));
  set.insert(lengthy);
  set.insert(TextView(KOSTYLE_TEXT("a")));
  EXPECT_FALSE(set.insert(TextView(*set.at(1))));
  EXPECT_TRUE(set.erase(TextView(*set.at(1))));
  EXPECT_TRUE(set.erase(*set.at(0)));
  EXPECT_TRUE(set.empty());
}

TEST(SortedSet, ClearsAndFillsAgain) {
  SortedSet<int> set;
  for (int i = 0; i < 10; ++i) set.insert(i);
  set.clear();
  EXPECT_TRUE(set.empty());
  EXPECT_TRUE(set.insert(3));
  EXPECT_EQ(valuesOf(set), std::vector<int>{3});
}

struct Uncopyable {
  int key;
  explicit Uncopyable(int from) : key(from) {
    if (from == 13) throw std::bad_alloc();
  }
  friend bool operator<(const Uncopyable& a, int b) { return a.key < b; }
  friend bool operator==(const Uncopyable& a, int b) { return a.key == b; }
};

TEST(SortedSet, StaysAsItWasWhenAValueCannotBeMade) {
  SortedSet<Uncopyable> set;
  EXPECT_TRUE(set.insert(1));
  EXPECT_THROW(set.insert(13), std::bad_alloc);
  EXPECT_EQ(set.size(), 1u);
  EXPECT_FALSE(set.erase(13));
  EXPECT_TRUE(set.insert(14));
}

TEST(SortedSet, AgreesWithTheStandardSetThroughRandomChanges) {
  std::mt19937 random(7);
  std::uniform_int_distribution<int> value(0, 299);
  SortedSet<int> set;
  std::set<int> reference;
  for (int step = 0; step < 20000; ++step) {
    const int candidate = value(random);
    if (random() % 2 == 0) {
      EXPECT_EQ(set.insert(candidate), reference.insert(candidate).second);
    } else {
      EXPECT_EQ(set.erase(candidate), reference.erase(candidate) == 1);
    }
    ASSERT_EQ(set.size(), reference.size());
    if (step % 500 == 0) {
      EXPECT_EQ(valuesOf(set), std::vector<int>(reference.begin(), reference.end()));
    }
  }
}

TEST(SortedSet, TakesAHundredThousandValues) {
  SortedSet<int> set;
  constexpr int count = 100000;
  for (int i = count; i-- > 0;) ASSERT_TRUE(set.insert(i));
  for (int i = 0; i < count; ++i) {
    ASSERT_EQ(*set.at(static_cast<std::size_t>(i)), i);
    ASSERT_FALSE(set.insert(i));
  }
  for (int i = 0; i < count; i += 2) ASSERT_TRUE(set.erase(i));
  EXPECT_EQ(set.size(), static_cast<std::size_t>(count / 2));
  EXPECT_EQ(*set.at(0), 1);
}

}  // namespace
}  // namespace Tesk::KoStyle
