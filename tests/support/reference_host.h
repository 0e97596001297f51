// A host that drives a manager and a reference of it side by side, and compares them.
#pragma once

#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/host.h"
#include "support/kostyle.h"
#include "support/random.h"
#include "support/stored_sets.h"
#include "support/style_reference.h"
#include "support/style_walk.h"

namespace test {

class ReferenceHost {
 public:
  /// Expects the manager to be what the reference says.
  void expectAgreement() {
    for (const MutableReference& reference : mutables) {
      ASSERT_TRUE(StyleManager_hasMutableStyle(manager(), reference.handle));
      ASSERT_EQ(valueOf(reference.handle), reference.value());
      expectHandles(reference);
      expectStyleWalks(reference.handle);
    }
    for (std::size_t kind : {KOSTYLE_KIND_SYSTEM, KOSTYLE_KIND_USER}) expectSetAgreement(kind);
    expectManagerWalks(manager());
    if (filesChanged_) expectFiles();
    filesChanged_ = false;
  }

  /// Expects a second manager to read from the files what the reference says of them.
  void expectFilesToBeReadAgain() {
    ReferenceHost second(host_.system, host_.user);
    second.sets[0].files = sets[0].files;
    second.sets[1].files = sets[1].files;
    second.read(KOSTYLE_KIND_USER);
    second.read(KOSTYLE_KIND_SYSTEM);
    second.expectAgreement();
  }

  ReferenceHost() : manager_(host_.system, host_.user) {}

 protected:
  KoStyleManager* manager() const { return manager_; }
  const fs::path& folder(std::size_t kind) const {
    return kind == KOSTYLE_KIND_SYSTEM ? systemFolder_ : userFolder_;
  }

  /// Reads a set in both; the order of the files is the library's.
  void read(std::size_t kind) {
    EXPECT_EQ(storedSets()[kind].read(manager()), KOSTYLE_OK);
    std::vector<std::string> order;
    for (std::size_t i = 0; KoStyleCreationResult* record = storedSets()[kind].recordAt(manager(), i);
         ++i)
      order.push_back(fileName(StyleCreationResult_filePath(record)));
    std::vector<std::string> sorted = order;
    std::sort(sorted.begin(), sorted.end());
    std::vector<std::string> expected;
    for (const auto& [name, file] : sets[kind].files) expected.push_back(name);
    ASSERT_EQ(sorted, expected);
    sets[kind].read(order, sets[1 - kind]);
    for (std::size_t i = 0; i < sets[kind].styles.size(); ++i)
      sets[kind].styles[i].handle = storedSets()[kind].at(manager(), i);
  }

  static std::string fileName(const KoStyleChar* path) {
    const std::string whole = utf8(path);
    return whole.substr(whole.find_last_of("/\\") + 1);
  }

  void noteFilesChanged() { filesChanged_ = true; }

  std::vector<MutableReference> mutables;
  std::array<SetReference, 2> sets;

 private:
  ReferenceHost(const fs::path& system, const fs::path& user)
      : systemFolder_(system), userFolder_(user), manager_(system, user) {}

  static void expectHandles(const MutableReference& reference) {
    for (const Chain& chain : chains()) {
      const auto& effects = reference.chains[chain.type == KOSTYLE_EFFECT_AUDIO ? 0 : 1];
      for (std::size_t i = 0; i < effects.size(); ++i) {
        ASSERT_EQ(chain.mutableAt(reference.handle, i), effects[i].handle);
        for (std::size_t j = 0; j < effects[i].parameters.size(); ++j)
          ASSERT_EQ(MutableEffect_parameter(effects[i].handle, j), effects[i].parameters[j].handle);
      }
    }
  }

  void expectSetAgreement(std::size_t kind) {
    const SetReference& reference = sets[kind];
    const StoredSet& set = storedSets()[kind];
    ASSERT_EQ(set.count(manager()), reference.styles.size());
    for (std::size_t i = 0; i < reference.styles.size(); ++i) {
      const StoredReference& style = reference.styles[i];
      ASSERT_EQ(set.at(manager(), i), style.handle);
      ASSERT_EQ(Style_id(style.handle), style.id);
      ASSERT_EQ(Style_vendor(style.handle), style.vendor);
      ASSERT_EQ(Style_path(style.handle), pathText(folder(kind) / style.fileName));
      ASSERT_EQ(valueOf(style.handle), style.value);
      expectStyleWalks(style.handle);
    }
    ASSERT_EQ(set.recordCount(manager()), reference.records.size());
    for (std::size_t i = 0; i < reference.records.size(); ++i) {
      KoStyleCreationResult* const record = set.recordAt(manager(), i);
      ASSERT_EQ(StyleCreationResult_error(record), reference.records[i].code);
      ASSERT_EQ(StyleCreationResult_id(record), reference.records[i].id);
      ASSERT_EQ(fileName(StyleCreationResult_filePath(record)), reference.records[i].fileName);
    }
  }

  void expectFiles() const {
    for (std::size_t kind : {KOSTYLE_KIND_SYSTEM, KOSTYLE_KIND_USER}) {
      std::vector<std::string> expected;
      for (const auto& [name, file] : sets[kind].files) expected.push_back(name);
      ASSERT_EQ(entryNames(folder(kind)), expected);
    }
  }

  Host host_;
  fs::path systemFolder_ = host_.system;
  fs::path userFolder_ = host_.user;
  Manager manager_;
  bool filesChanged_ = false;
};

}  // namespace test
