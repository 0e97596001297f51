// The list of rules beside its table in the documentation.
#include "checking/rules.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

#include "support/temporary_directory.h"

namespace {

using tool::allRules;
using tool::Rule;

TEST(Rules, HaveNamesOfTheirOwn) {
  std::set<std::string> names;
  for (const Rule* rule : allRules()) {
    const std::string name = rule->id;
    EXPECT_TRUE(names.insert(name).second) << name;
    EXPECT_TRUE(std::all_of(name.begin(), name.end(), [](char letter) {
      return letter == '-' || (letter >= 'a' && letter <= 'z');
    })) << name;
  }
}

TEST(Rules, StandInTheDocumentationInOrder) {
  std::string table;
  for (const Rule* rule : allRules()) {
    table += std::string("| `") + rule->id + "` | " + severityName(rule->severity) + " | " +
             stageName(rule->stage) + " | " + rule->sentence + " |\n";
  }
  std::string documentation = test::readFile(test::fs::u8path(KOSTYLE_TOOL_DOCUMENTATION));
  documentation.erase(std::remove(documentation.begin(), documentation.end(), '\r'),
                      documentation.end());
  EXPECT_THAT(documentation, testing::HasSubstr("|---|---|---|---|\n" + table + "\n"));
}

}  // namespace
