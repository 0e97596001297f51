// The version of the headers, in the three forms in which they tell it.
#include <gmock/gmock.h>
#include <kostyle/kostyle.h>

#include <cstdio>

namespace {

#if KOSTYLE_VERSION_NUMBER < 10000 || KOSTYLE_VERSION_NUMBER >= 20000
#error "the preprocessor compares the version"
#endif

TEST(Version, NumberIsMadeOfTheString) {
  int major = 0, minor = 0, patch = 0;
  ASSERT_EQ(std::sscanf(KOSTYLE_VERSION_STRING, "%d.%d.%d", &major, &minor, &patch), 3);
  EXPECT_EQ(KOSTYLE_VERSION_NUMBER, major * 10000 + minor * 100 + patch);
}

TEST(Version, IsThatOfTheBuild) { EXPECT_STREQ(KOSTYLE_VERSION_STRING, KOSTYLE_BUILT_VERSION); }

}  // namespace
