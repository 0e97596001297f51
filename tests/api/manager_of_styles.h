// A manager with styles of every kind, seen through the interfaces.
#pragma once

#include <gmock/gmock.h>

#include <cstddef>
#include <string>

#include "interfaces/interfaces.h"
#include "manager/manager_registry.h"
#include "support/temporary_directory.h"

namespace Tesk::KoStyle {

/// Two system styles, one user style besides two files that give none, and a mutable style. Every list
/// of a style has another length, and every effect parameters of each type.
class ManagerOfStyles : public testing::Test {
 protected:
  void SetUp() override {
    test::writeFile(system_ / "a.kostyle", document("a"));
    test::writeFile(system_ / "b.kostyle", document("b"));
    test::writeFile(user_ / "c.kostyle", document("c"));
    test::writeFile(user_ / "broken.kostyle", "{");
    test::writeFile(user_ / "empty.kostyle", "{}");
    int error = -1;
    manager_ = StyleManagerRegistry::instance().findOrCreate(
        KOSTYLE_TEXT("styles"), test::pathText(system_).c_str(), test::pathText(user_).c_str(), {}, {},
        error);
    ASSERT_NE(manager_, nullptr);
    ASSERT_EQ(manager_->readSystemStyles(), KOSTYLE_OK);
    ASSERT_EQ(manager_->readUserStyles(), KOSTYLE_OK);
    ASSERT_NE(user(), nullptr);
    mutableStyle_ = manager_->createMutableStyle();
    fill(*mutableStyle_);
  }
  void TearDown() override { StyleManagerRegistry::instance().destroy(manager_); }

  ISystemStyle* system() const { return manager_->systemStyle(0); }
  IUserStyle* user() const { return manager_->userStyle(0); }
  IMutableStyle* mutableStyle() const { return mutableStyle_; }

  IStyleManager* manager_ = nullptr;

 private:
  static std::string numbered(const char* form, std::size_t count) {
    std::string members;
    for (std::size_t i = 0; i < count; ++i) {
      std::string member = form;
      member.replace(member.find('#'), 1, std::to_string(i));
      members += (i ? "," : "") + member;
    }
    return members;
  }

  static std::string document(const std::string& id) {
    const char* const effect = R"("effect #":{"parameter":{"i":1,"f":0.5,"s":"t"}})";
    return R"({"id":")" + id + R"(","name":"n","filter":{"languages":[3],"singerGroups":[)" +
           numbered(R"("group #")", 2) + R"(],"singerIDs":[)" + numbered(R"("singer-id-1234-#")", 3) +
           R"(],"genres":[)" + numbered(R"("genre #")", 4) + R"(],"subGenres":[)" +
           numbered(R"("sub-genre #")", 5) + R"(],"colors":[)" + numbered(R"("color #")", 6) +
           R"(]},"audioEffect":{)" + numbered(effect, 7) + R"(},"midiEffect":{)" + numbered(effect, 8) +
           "}}";
  }

  static void fill(IMutableStyle& style) {
    const auto numbers = [](std::size_t count, auto add) {
      for (std::size_t i = 0; i < count; ++i) add(test::text("sixteen-units--" + std::to_string(i)));
    };
    style.addLanguage(3);
    numbers(2, [&](const Text& text) { style.addSingerGroup(text.c_str()); });
    numbers(3, [&](const Text& text) { style.addSingerID(text.c_str()); });
    numbers(4, [&](const Text& text) { style.addGenre(text.c_str()); });
    numbers(5, [&](const Text& text) { style.addSubGenre(text.c_str()); });
    numbers(6, [&](const Text& text) { style.addColor(text.c_str()); });
    numbers(7, [&](const Text& text) {
      style.insertAudioEffect(0, text.c_str())->addParameter(KOSTYLE_TEXT("p"));
    });
    numbers(8, [&](const Text& text) {
      style.insertMidiEffect(0, text.c_str())->addParameter(KOSTYLE_TEXT("p"));
    });
  }

  const test::TemporaryDirectory directory_;
  const test::fs::path system_ = directory_.folder("system");
  const test::fs::path user_ = directory_.folder("user");
  IMutableStyle* mutableStyle_ = nullptr;
};

}  // namespace Tesk::KoStyle
