// Managers that many threads create, use and destroy at once. HasStyleManager() takes no lock and
// stays out of it.
#include <gmock/gmock.h>
#include <kostyle/kostyle.h>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "support/host.h"
#include "support/random.h"

namespace {

using test::pathText;
using test::Text;
using test::text;
using test::fs::path;

constexpr int threadCount = 8;

/// Holds threads until all of them have come.
class Gate {
 public:
  void pass() {
    std::unique_lock<std::mutex> guard(lock_);
    if (++come_ == threadCount) all_.notify_all();
    all_.wait(guard, [&] { return come_ >= threadCount; });
  }

 private:
  std::mutex lock_;
  std::condition_variable all_;
  int come_ = 0;
};

class Registry : public testing::Test {
 protected:
  void SetUp() override {
    for (int i = 0; i < 3; ++i) {
      const std::string id = "s" + std::to_string(i);
      test::writeFile(system / (id + ".kostyle"), test::document(id, id));
    }
  }

  KoStyleManager* create(const Text& appID, const path& user) const {
    int error = -1;
    KoStyleManager* const manager =
        CreateStyleManager(appID.c_str(), pathText(system).c_str(), pathText(user).c_str(), nullptr, 0,
                           nullptr, 0, &error);
    EXPECT_EQ(error, KOSTYLE_OK);
    return manager;
  }

  /// Runs `work` with the numbers from 0 in threads that start together.
  template <class Work>
  void runTogether(Work work) {
    Gate gate;
    std::vector<std::thread> threads;
    for (int i = 0; i < threadCount; ++i) {
      threads.emplace_back([&gate, &work, i] {
        gate.pass();
        work(i);
      });
    }
    for (std::thread& thread : threads) thread.join();
  }

  test::TemporaryDirectory directory;
  path system = directory.folder("system");
};

TEST_F(Registry, GivesThreadsWithIdentifiersOfTheirOwnManagersOfTheirOwn) {
  runTogether([&](int thread) {
    const Text appID = text("own " + std::to_string(thread));
    const path user = directory / ("user" + std::to_string(thread));
    for (int round = 0; round < 50; ++round) {
      KoStyleManager* const manager = create(appID, user);
      ASSERT_NE(manager, nullptr);
      EXPECT_EQ(StyleManager_appID(manager), appID);
      EXPECT_TRUE(StyleManager_destroy(manager));
    }
  });
}

TEST_F(Registry, GivesThreadsWithTheSameIdentifierOneManager) {
  const path user = directory.folder("user");
  for (int round = 0; round < 50; ++round) {
    const Text appID = text("shared " + std::to_string(round));
    std::vector<KoStyleManager*> managers(threadCount);
    runTogether([&](int thread) { managers[static_cast<std::size_t>(thread)] = create(appID, user); });
    const std::set<KoStyleManager*> distinct(managers.begin(), managers.end());
    ASSERT_EQ(distinct.size(), 1u);
    ASSERT_NE(managers[0], nullptr);
    EXPECT_TRUE(StyleManager_destroy(managers[0]));
  }
}

TEST_F(Registry, LetsThreadsUseTheirOwnManagersWhileOthersComeAndGo) {
  std::atomic<int> failures{0};
  runTogether([&](int thread) {
    const path user = directory / ("user" + std::to_string(thread));
    const auto expect = [&](bool holds) { failures += holds ? 0 : 1; };
    for (int round = 0; round < 10; ++round) {
      KoStyleManager* const manager = create(text("used " + std::to_string(thread)), user);
      expect(StyleManager_readSystemStyles(manager) == KOSTYLE_OK);
      expect(StyleManager_numSystemStyle(manager) == 3);
      KoStyleStyle* const style = StyleManager_createMutableStyle(manager);
      expect(MutableStyle_setName(style, KOSTYLE_TEXT("name")));
      KoStyleEffect* const effect = MutableStyle_insertAudioEffect(style, 0, KOSTYLE_TEXT("E"));
      expect(MutableEffect_addParameter(effect, KOSTYLE_TEXT("p")) != nullptr);
      int error = -1;
      KoStyleStyle* const saved = MutableStyle_save(style, true, &error);
      expect(error == KOSTYLE_OK && StyleManager_hasUserStyle(manager, saved));
      expect(StyleManager_readUserStyles(manager) == KOSTYLE_OK);
      expect(StyleManager_numUserStyle(manager) == 1);
      KoStylePropertyEditor* const editor =
          UserStyle_createPropertyEditor(StyleManager_userStyle(manager, 0));
      expect(PropertyEditor_setStyleName(editor, KOSTYLE_TEXT("other")));
      expect(PropertyEditor_save(editor, true));
      expect(UserStyle_remove(StyleManager_userStyle(manager, 0)) == KOSTYLE_OK);
      expect(StyleManager_destroy(manager));
    }
  });
  EXPECT_EQ(failures, 0);
}

TEST_F(Registry, StaysWholeWhenCreationsFailBesideOthers) {
  const path user = directory.folder("user");
  runTogether([&](int thread) {
    for (int round = 0; round < 50; ++round) {
      int error = -1;
      EXPECT_EQ(CreateStyleManager(text("failing").c_str(), pathText(directory / "missing").c_str(),
                                   pathText(user).c_str(), nullptr, 0, nullptr, 0, &error),
                nullptr);
      EXPECT_EQ(error, KOSTYLE_ERROR_SYSTEM_DIRECTORY_MISSING);
      KoStyleManager* const manager = create(text("beside " + std::to_string(thread)), user);
      EXPECT_NE(manager, nullptr);
      EXPECT_TRUE(StyleManager_destroy(manager));
    }
  });
}

TEST_F(Registry, KeepsTheManagersThatAreNotDestroyedBesideThoseThatAre) {
  const path user = directory.folder("user");
  std::vector<std::vector<KoStyleManager*>> kept(threadCount);
  runTogether([&](int thread) {
    test::Random random(static_cast<std::uint64_t>(thread));
    for (int round = 0; round < 40; ++round) {
      KoStyleManager* const manager =
          create(text("kept " + std::to_string(thread) + " " + std::to_string(round)), user);
      if (random.oneIn(2)) {
        EXPECT_TRUE(StyleManager_destroy(manager));
      } else {
        kept[static_cast<std::size_t>(thread)].push_back(manager);
      }
    }
  });
  // The threads are gone: the registry may be asked now.
  for (const auto& ofThread : kept) {
    for (KoStyleManager* manager : ofThread) {
      EXPECT_TRUE(HasStyleManager(manager));
      EXPECT_TRUE(StyleManager_destroy(manager));
      EXPECT_FALSE(HasStyleManager(manager));
    }
  }
}

TEST_F(Registry, DestroysInOneThreadWhatAnotherCreated) {
  const path user = directory.folder("user");
  std::vector<KoStyleManager*> managers(threadCount);
  runTogether([&](int thread) {
    managers[static_cast<std::size_t>(thread)] = create(text("given " + std::to_string(thread)), user);
  });
  runTogether([&](int thread) {
    EXPECT_TRUE(StyleManager_destroy(managers[static_cast<std::size_t>(threadCount - 1 - thread)]));
  });
  for (KoStyleManager* manager : managers) EXPECT_FALSE(HasStyleManager(manager));
}

}  // namespace
