// What the library exports: 124 names at 111 addresses, and nothing else.
#include <gmock/gmock.h>
#include <kostyle/kostyle.h>

#include <map>
#include <set>
#include <string>

#include "support/export_list.h"
#include "support/shared_library.h"

namespace {

using Names = std::set<std::string>;

/// The names of each address that has more than one.
std::set<Names> sharedAddresses(const test::SharedLibrary& library) {
  std::map<const void*, Names> namesOf;
  for (const std::string& name : test::exportedNames()) namesOf[library.address(name)].insert(name);
  std::set<Names> groups;
  for (const auto& [address, names] : namesOf) {
    if (names.size() > 1) groups.insert(names);
  }
  return groups;
}

class ExportNames : public testing::Test {
 protected:
  test::SharedLibrary library{KOSTYLE_LIBRARY};
};

TEST_F(ExportNames, AreTheListed124AndNothingElse) {
  const Names listed = test::exportedNames();
  EXPECT_EQ(listed.size(), 124u);
  EXPECT_EQ(library.names(), listed);
}

TEST_F(ExportNames, HaveAnAddressEach) {
  for (const std::string& name : test::exportedNames())
    EXPECT_NE(library.address(name), nullptr) << name;
}

TEST_F(ExportNames, LeadTo111EntryPoints) {
  std::set<const void*> addresses;
  for (const std::string& name : test::exportedNames()) addresses.insert(library.address(name));
  EXPECT_EQ(addresses.size(), 111u);
}

TEST_F(ExportNames, ShareAnAddressExactlyWithinTheirGroup) {
  const std::set<Names> expected{
      {"Effect_id", "Parameter_name", "StyleCreationResult_prev", "StyleManager_appID"},
      {"StyleManager_systemStyleDirPath", "Style_id"},
      {"StyleCreationResult_filePath", "Style_path"},
      {"Parameter_valueString", "StyleCreationResult_id", "Style_name"},
      {"StyleCreationResult_next", "Style_parent"},
      {"StyleManager_numSystemStyle", "Style_numLanguage"},
      {"StyleManager_numUserStyleCreationResult", "Style_numSingerGroup"},
      {"StyleManager_userStyleCreationResult", "Style_singerGroup"},
      {"StyleManager_numUserStyle", "Style_numSingerID"},
      {"HasStyleManager", "Module_hasStyleManager"}};
  EXPECT_EQ(sharedAddresses(library), expected);
}

TEST_F(ExportNames, AreBoundAsTheListSays) {
  std::map<std::string, Names> namesOf;
  for (const auto& [name, entry] : test::readExportList()) namesOf[entry].insert(name);
  std::set<Names> groups;
  for (const auto& [entry, names] : namesOf) {
    if (names.size() > 1) groups.insert(names);
  }
  EXPECT_EQ(sharedAddresses(library), groups);
}

TEST_F(ExportNames, OfTheTwoFactoriesHaveEntryPointsOfTheirOwn) {
  EXPECT_NE(library.address("CreateStyleManager"), library.address("Module_createStyleManager"));
}

}  // namespace
