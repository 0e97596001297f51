// The bound tells n log n from worse.
#include <algorithm>
#include <cmath>
#include <vector>

#include "growth/growth.h"

namespace {

using namespace test;

std::vector<int> scattered(int n) {
  std::vector<int> numbers;
  for (int i = 0; i < n; ++i)
    numbers.push_back(static_cast<int>(static_cast<unsigned>(i) * 2654435761U));
  return numbers;
}

/// Looks through the first `length` numbers, each time in vain.
double searching(int n, int length) {
  const std::vector<int> numbers(static_cast<std::size_t>(n), 1);
  int found = 0;
  const double cost = each(100, [&] {
    for (int i = 0; i < 100; ++i)
      found += std::find(numbers.begin(), numbers.begin() + length, -i) == numbers.begin() + length;
  });
  return found < 100 ? 0 : cost;
}

TEST(GrowthBound, IsKeptBySorting) {
  EXPECT_LT(growth([](int n) {
              std::vector<int> numbers = scattered(n);
              return each(n, [&] { std::sort(numbers.begin(), numbers.end()); });
            }),
            bound);
}
TEST(GrowthBound, IsBrokenBySearchingAllElementsEachTime) {
  EXPECT_GT(growth([](int n) { return searching(n, n); }), bound);
}
TEST(GrowthBound, IsBrokenBySearchingTheirSquareRootEachTime) {
  EXPECT_GT(growth([](int n) { return searching(n, static_cast<int>(std::sqrt(n))); }), bound);
}

TEST(GrowthBound, CountsTheSameEachTime) {
  const auto count = [] { return searching(few, few); };
  const double first = count();
  EXPECT_NEAR(count() / first, 1, 0.01);
}

}  // namespace
