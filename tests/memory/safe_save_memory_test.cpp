// Running out of memory while a style is saved with care: what was on disk is there still, and so is
// the mutable style.
#include <gmock/gmock.h>

#include "memory/disk.h"
#include "memory/failing_allocations.h"
#include "support/host.h"
#include "support/style_value.h"

// After the library's own view of the interface.
#include <kostyle/kostyle.hpp>

namespace {

using kostyle::MutableStyle;
using kostyle::SafeSaveResult;
using kostyle::UserStyle;

struct SafeSavingWithoutMemory : testing::Test {
  // Saves until there is memory enough. Memory that fails in the cleaning up alone does no harm; the
  // next save takes another style then.
  template <class Save>
  void failEachAllocationOf(Save save) {
    SafeSaveResult saved;
    long failures = 0;
    const auto trial = [&] {
      saved = {};
      saved = save();
    };
    test::failEachAllocation(trial, [&](long n, bool thrown) {
      // On Windows the standard library makes an error code of some.
      ASSERT_TRUE(thrown || saved || !saved.problems.empty()) << n;
      if (saved) {
        ASSERT_FALSE(kostyle::ManagerView(host.manager).has(style)) << n;
        style = createStyle();
      } else {
        ++failures;
        ASSERT_TRUE(kostyle::ManagerView(host.manager).has(style)) << n;
        ASSERT_EQ(test::valueOf(style.handle()), expected) << n;
      }
      check(n, static_cast<bool>(saved));
    });
    EXPECT_GT(failures, 2);
    EXPECT_TRUE(saved);
    EXPECT_EQ(test::valueOf(saved.style.handle()), expected);
  }

  MutableStyle createStyle() const {
    const MutableStyle made(host.createMutableStyle("a new name that is long enough to be allocated"));
    made.addGenre("a text of considerable length");
    made.appendMidiEffect("M").addParameter("p", "a value of considerable length");
    return made;
  }

  virtual void check(long n, bool saved) = 0;

  const test::Host host{};
  UserStyle target{host.addUserStyle("a")};
  const std::string oldFile = test::readFile(host.user / "a.kostyle");
  MutableStyle style = createStyle();
  const test::StyleValue expected = test::valueOf(style.handle());
};

struct SafeSaveWithoutMemory : SafeSavingWithoutMemory {
  void check(long n, bool saved) override {
    ASSERT_EQ(test::readFile(host.user / "a.kostyle"), oldFile) << n;
    // A style that was saved before memory ran out stays.
    const std::size_t count = test::entryNames(host.user).size();
    ASSERT_LE(count, saved ? 3U : 2U) << n;
    StyleManager_readUserStyles(host.manager);
    for (std::size_t i = StyleManager_numUserStyle(host.manager); i-- > 0;) {
      const UserStyle each(StyleManager_userStyle(host.manager, i));
      if (each.id() == "a") continue;
      ASSERT_EQ(test::valueOf(each.handle()), expected) << n;
      ASSERT_TRUE(each.remove()) << n;
    }
  }
};

TEST_F(SafeSaveWithoutMemory, KeepsTheMutableStyle) {
  failEachAllocationOf([&] { return safeSave(style); });
}

struct SafeOverwriteWithoutMemory : SafeSavingWithoutMemory {
  void check(long n, bool saved) override {
    ASSERT_EQ(test::readFile(host.user / "a.kostyle") == oldFile, !saved) << n;
    if (!saved) {
      ASSERT_EQ(test::filesOf(host.user).size(), 1U) << n;
    } else {
      target = UserStyle(host.addUserStyle("a"));
    }
  }
};

TEST_F(SafeOverwriteWithoutMemory, PutsTheOldFileBack) {
  failEachAllocationOf([&] { return safeOverwrite(style, target); });
}

}  // namespace
