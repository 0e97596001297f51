// The tests' own tool: allocations fail where a trial says so, and only there.
#include "memory/failing_allocations.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using test::failEachAllocation;
using test::runsOutOfMemory;

void allocateThrice() {
  const auto first = std::make_unique<int>(1);
  const std::string second(100, 'x');
  const std::vector<int> third(50);
}

TEST(FailingAllocations, FailWhereTheTrialSays) {
  bool failed = false;
  for (long n = 0; n < 3; ++n) {
    EXPECT_TRUE(runsOutOfMemory(n, failed, allocateThrice)) << n;
    EXPECT_TRUE(failed);
  }
  EXPECT_FALSE(runsOutOfMemory(3, failed, allocateThrice));
  EXPECT_FALSE(failed);
}

TEST(FailingAllocations, AreCounted) {
  std::vector<long> failures;
  failures.reserve(10);
  EXPECT_EQ(failEachAllocation(allocateThrice,
                               [&](long n, bool thrown) {
                                 EXPECT_TRUE(thrown);
                                 failures.push_back(n);
                               }),
            3);
  EXPECT_THAT(failures, testing::ElementsAre(0, 1, 2));
}

TEST(FailingAllocations, TellAFailureThatWasCaught) {
  bool failed = false;
  const auto forgiving = [] {
    try {
      allocateThrice();
    } catch (const std::bad_alloc&) {
    }
  };
  EXPECT_FALSE(runsOutOfMemory(1, failed, forgiving));
  EXPECT_TRUE(failed);
}

TEST(FailingAllocations, EndWithTheTrial) {
  bool failed = false;
  runsOutOfMemory(0, failed, allocateThrice);
  EXPECT_NO_THROW(allocateThrice());
  runsOutOfMemory(100, failed, allocateThrice);
  for (int i = 0; i < 200; ++i) EXPECT_NO_THROW(allocateThrice());
}

}  // namespace
