// Saving with care while the file system refuses, at every step.
#include "faults/editing_host.h"
#include "faults/faulty_platform.h"
#include "support/style_value.h"

// After the library's own view of the interface.
#include <kostyle/kostyle.hpp>

namespace {

using kostyle::MutableStyle;
using kostyle::ProblemKind;
using kostyle::safeOverwrite;
using kostyle::SafeSaveResult;
using kostyle::UserStyle;
using test::entryNames;
using test::Faults;
using test::storedValueOf;
using testing::ElementsAre;
using testing::IsEmpty;
namespace fs = test::fs;

// The steps that open a file to write it.
constexpr int rehearsal = 1;
constexpr int realSave = 2;
constexpr int restoring = 3;

std::vector<ProblemKind> kindsOf(const SafeSaveResult& result) {
  std::vector<ProblemKind> kinds;
  for (const auto& problem : result.problems) kinds.push_back(problem.kind);
  return kinds;
}

struct SafeSaveFaults : testing::Test {
  SafeSaveFaults() {
    host.writeStyle("a");
    host.read();
    target = UserStyle(host.userStyle("a"));
    before = storedValueOf(target.handle());
    bytes = host.bytes("a");
  }

  // Expects a save or an overwrite to have changed neither style nor file.
  void expectNothingChanged(const SafeSaveResult& result, const std::vector<ProblemKind>& kinds) {
    EXPECT_FALSE(result);
    EXPECT_EQ(kindsOf(result), kinds);
    EXPECT_TRUE(style.manager().has(style));
    EXPECT_EQ(style.name(), "New");
    EXPECT_EQ(style.audioEffects().size(), 1U);
    EXPECT_EQ(storedValueOf(target.handle()), before);
    EXPECT_EQ(host.bytes("a"), bytes);
    EXPECT_EQ(style.manager().userStyles().size(), 1U);
  }
  void expectNoOtherFile() { EXPECT_THAT(entryNames(host.user), ElementsAre("a.kostyle")); }

  test::EditingHost host;
  MutableStyle style{host.createMutableStyle()};
  UserStyle target;
  test::StoredValue before;
  std::string bytes;
};

TEST_F(SafeSaveFaults, AFullDiskIsFoundBeforeAnythingIsTouched) {
  Faults faults;
  faults.firstUnwritable = rehearsal;
  expectNothingChanged(kostyle::safeSave(style), {ProblemKind::notReadBack});
  expectNothingChanged(safeOverwrite(style, target), {ProblemKind::notReadBack});
  EXPECT_EQ(faults.writings, 2);
  expectNoOtherFile();
}

TEST_F(SafeSaveFaults, ADiskThatBecomesFullMeanwhileLeavesEverythingAsItWas) {
  Faults faults;
  faults.firstUnwritable = realSave;
  expectNothingChanged(kostyle::safeSave(style), {ProblemKind::notReadBack});
  EXPECT_EQ(faults.writings, realSave);
  faults.writings = 0;
  expectNothingChanged(safeOverwrite(style, target), {ProblemKind::notReadBack});
  EXPECT_EQ(faults.writings, restoring);
  expectNoOtherFile();
}

TEST_F(SafeSaveFaults, SucceedWhenTheyAreOver) {
  {
    Faults faults;
    faults.firstUnwritable = realSave;
    EXPECT_FALSE(safeOverwrite(style, target));
  }
  EXPECT_TRUE(safeOverwrite(style, target));
  EXPECT_EQ(target.name(), "New");
  expectNoOtherFile();
}

TEST_F(SafeSaveFaults, ANewStyleThatCannotBeDeletedIsNamed) {
  Faults faults;
  faults.firstUnwritable = realSave;
  faults.refusedDeletion = 1;
  const SafeSaveResult saved = kostyle::safeSave(style);
  EXPECT_EQ(kindsOf(saved), (std::vector{ProblemKind::notReadBack, ProblemKind::notRestored}));
  EXPECT_EQ(saved.problems[1].where, saved.problems[0].where);
  EXPECT_TRUE(style.manager().has(style));
  EXPECT_EQ(entryNames(host.user).size(), 2U);
}

TEST_F(SafeSaveFaults, ARenamingThatIsRefusedLeavesTheOldStyle) {
  Faults faults;
  faults.refuseRenaming = true;
  expectNothingChanged(safeOverwrite(style, target), {ProblemKind::notReadBack});
  // The library leaves what it could not rename.
  EXPECT_EQ(entryNames(host.user).size(), 3U);
}

TEST_F(SafeSaveFaults, WhatTheLibraryRefusesIsSaidWithItsCode) {
  {
    Faults faults;
    faults.refuseOpening = true;
    const SafeSaveResult saved = kostyle::safeSave(style);
    expectNothingChanged(saved, {ProblemKind::refused});
    EXPECT_EQ(saved.problems[0].code, KOSTYLE_ERROR_OPEN_FAILED);
    EXPECT_STREQ(saved.problems[0].sentence(), KoStyle_codeText(KOSTYLE_ERROR_OPEN_FAILED));
    expectNothingChanged(safeOverwrite(style, target), {ProblemKind::refused});
  }
  Faults faults;
  faults.refusedDeletion = 1;
  const SafeSaveResult saved = safeOverwrite(style, target);
  expectNothingChanged(saved, {ProblemKind::refused});
  EXPECT_EQ(saved.problems[0].code, KOSTYLE_ERROR_TARGET_NOT_REPLACEABLE);
  expectNoOtherFile();
}

TEST_F(SafeSaveFaults, AFileThatIsReadAsSomethingElseIsNotSaved) {
  for (const int read : {rehearsal, realSave}) {
    Faults faults;
    faults.rewrittenFile = read;
    faults.rewrittenContent = test::document("other", "Other");
    expectNothingChanged(kostyle::safeSave(style), {ProblemKind::readBackDiffers});
  }
  for (const int read : {rehearsal, realSave}) {
    Faults faults;
    faults.rewrittenFile = read;
    faults.rewrittenContent = test::document("a", "New", R"("p":2)", "");
    expectNothingChanged(safeOverwrite(style, target), {ProblemKind::readBackDiffers});
  }
  expectNoOtherFile();
}

TEST_F(SafeSaveFaults, AnOldFileThatCannotBePutBackIsKeptAndNamed) {
  const fs::path file = host.user / "a.kostyle";
  Faults faults;
  faults.firstUnwritable = realSave;
  faults.beforeWriting = [&](int number) {
    if (number != restoring) return;
    fs::remove(file);
    fs::create_directories(file / "full");
  };
  const SafeSaveResult saved = safeOverwrite(style, target);
  EXPECT_FALSE(saved);
  EXPECT_EQ(kindsOf(saved), (std::vector{ProblemKind::notReadBack, ProblemKind::notRestored}));
  EXPECT_TRUE(saved.problems[1].cause);
  EXPECT_EQ(test::readFile(fs::u8path(saved.problems[1].where)), bytes);
  EXPECT_TRUE(style.manager().has(style));
}

TEST_F(SafeSaveFaults, AFileThatVanishesBeforeItIsReadIsNotSaved) {
  Faults faults;
  faults.vanishingFile = 1;
  expectNothingChanged(kostyle::safeSave(style), {ProblemKind::notReadBack});
  expectNoOtherFile();
}

}  // namespace
