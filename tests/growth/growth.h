// How the cost of one operation grows with the number of elements.
#pragma once

#include <gmock/gmock.h>

#include <string>

#include "growth/instructions.h"

namespace test {

constexpr int times = 16;
constexpr int few = 500;

/// The cost of one of `count` operations.
template <class Work>
double each(int count, Work work) {
  return static_cast<double>(instructions(work)) / count;
}

/// The cost of one operation among `n` elements.
using Cost = double (*)(int n);

inline double growth(Cost cost, int n = few) {
  const double among = cost(n);
  return cost(times * n) / among;
}

/// Sixteen times as many elements make log n 1.4 times as large: below the bound is n log n in all,
/// with room for what a tree or an allocator does now and then. With n times its square root in all the
/// growth is 4.
constexpr double bound = 2;

struct Operation {
  const char* name;
  Cost cost;
};

inline std::ostream& operator<<(std::ostream& out, const Operation& operation) {
  return out << operation.name;
}

inline std::string nameOf(const testing::TestParamInfo<Operation>& info) { return info.param.name; }

class Growth : public testing::TestWithParam<Operation> {
 protected:
  static void expectBelowBound(int n = few) {
    const double measured = growth(GetParam().cost, n);
    RecordProperty("growth", std::to_string(measured));
    EXPECT_LT(measured, bound);
  }
};

}  // namespace test
