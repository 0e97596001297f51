// Reading a directory that changes meanwhile.
#include "faults/editing_host.h"
#include "faults/faulty_platform.h"

namespace {

TEST(ReadFaults, FileThatVanishesBeforeItIsOpenedLeavesNoTrace) {
  test::EditingHost host;
  for (const char* id : {"a", "b", "c"}) host.writeStyle(id);
  test::Faults faults;
  faults.vanishingFile = 2;
  EXPECT_EQ(StyleManager_readUserStyles(host.manager), KOSTYLE_OK);
  EXPECT_EQ(faults.readings, 3);
  EXPECT_EQ(StyleManager_numUserStyle(host.manager), 2U);
  EXPECT_EQ(StyleManager_numUserStyleCreationResult(host.manager), 2U);
  EXPECT_EQ(test::entryNames(host.user).size(), 2U);
}

}  // namespace
