#include <gmock/gmock.h>

#include <cstddef>
#include <set>

#include "platform/platform.h"
#include "support/text.h"

namespace Tesk::KoStyle::platform {
namespace {

bool isLowerHexadecimal(Char unit) {
  return (unit >= '0' && unit <= '9') || (unit >= 'a' && unit <= 'f');
}

TEST(Uuid, HasItsUsualForm) {
  for (int i = 0; i < 1000; ++i) {
    const Text uuid = makeUuid();
    ASSERT_EQ(uuid.size(), 36u);
    for (std::size_t unit = 0; unit < uuid.size(); ++unit) {
      const bool dash = unit == 8 || unit == 13 || unit == 18 || unit == 23;
      ASSERT_TRUE(dash ? uuid[unit] == Char('-') : isLowerHexadecimal(uuid[unit])) << test::utf8(uuid);
    }
  }
}

TEST(Uuid, IsNeverTheSame) {
  std::set<Text> uuids;
  for (int i = 0; i < 10000; ++i) EXPECT_TRUE(uuids.insert(makeUuid()).second);
}

}  // namespace
}  // namespace Tesk::KoStyle::platform
