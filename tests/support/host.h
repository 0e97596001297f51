// A host of the library: managers that end with their objects, in temporary folders.
#pragma once

#include <atomic>
#include <string>
#include <string_view>
#include <vector>

#include "support/document.h"
#include "support/kostyle.h"
#include "support/temporary_directory.h"
#include "support/text.h"

namespace test {

/// An application identifier that no other manager of the process has.
inline Text freshAppID() {
  static std::atomic<int> count{0};
  return text("app-" + std::to_string(++count));
}

/// A manager that is destroyed with the object.
class Manager {
 public:
  Manager(const fs::path& system, const fs::path& user, const std::vector<fs::path>& furtherSystem = {},
          const std::vector<fs::path>& furtherUser = {})
      : appID_(freshAppID()) {
    const Texts systemDirs(furtherSystem);
    const Texts userDirs(furtherUser);
    manager_ = CreateStyleManager(appID_.c_str(), pathText(system).c_str(), pathText(user).c_str(),
                                  systemDirs.pointers.data(), systemDirs.count(),
                                  userDirs.pointers.data(), userDirs.count(), &error_);
  }
  Manager(const Manager&) = delete;
  Manager& operator=(const Manager&) = delete;
  ~Manager() { destroy(); }

  operator KoStyleManager*() const { return manager_; }
  const Text& appID() const { return appID_; }
  int error() const { return error_; }

  void destroy() {
    if (manager_) StyleManager_destroy(manager_);
    manager_ = nullptr;
  }

 private:
  struct Texts {
    explicit Texts(const std::vector<fs::path>& paths) {
      for (const fs::path& path : paths) texts.push_back(pathText(path));
      for (const Text& each : texts) pointers.push_back(each.c_str());
    }
    int count() const { return static_cast<int>(pointers.size()); }
    std::vector<Text> texts;
    std::vector<const KoStyleChar*> pointers;
  };

  Text appID_;
  KoStyleManager* manager_ = nullptr;
  int error_ = -1;
};

/// A manager with a system and a user folder of its own.
struct Host {
  TemporaryDirectory directory;
  fs::path system = directory.folder("system");
  fs::path user = directory.folder("user");
  Manager manager{system, user};

  /// Puts a document() into the system folder and reads the set again.
  KoStyleStyle* addSystemStyle(const std::string& id) const {
    writeFile(system / (id + ".kostyle"), document(id, id));
    StyleManager_readSystemStyles(manager);
    return find(StyleManager_systemStyle, id);
  }

  /// Puts a document into the user folder and reads the set again; handles to user styles end.
  KoStyleStyle* addUserStyle(const std::string& id) const { return addUserStyle(id, document(id, id)); }
  KoStyleStyle* addUserStyle(const std::string& id, std::string_view content) const {
    writeFile(user / (id + ".kostyle"), content);
    StyleManager_readUserStyles(manager);
    return find(StyleManager_userStyle, id);
  }

  KoStyleStyle* userStyle(const std::string& id) const { return find(StyleManager_userStyle, id); }

  /// A mutable style that can be saved: a name and the effect of document().
  KoStyleStyle* createMutableStyle(std::string_view name) const {
    KoStyleStyle* style = StyleManager_createMutableStyle(manager);
    MutableStyle_setName(style, text(name).c_str());
    KoStyleEffect* effect = MutableStyle_insertAudioEffect(style, 0, KOSTYLE_TEXT("E"));
    MutableParameter_setValueInt(MutableEffect_addParameter(effect, KOSTYLE_TEXT("p")), 1);
    return style;
  }

  /// Saves a mutable style, which must succeed.
  static KoStyleStyle* save(KoStyleStyle* style, bool pretty = false) {
    int error = -1;
    KoStyleStyle* const saved = MutableStyle_save(style, pretty, &error);
    if (!saved || error != KOSTYLE_OK) throw std::runtime_error("not saved: " + std::to_string(error));
    return saved;
  }

  /// The path of a user style's file.
  static fs::path fileOf(KoStyleStyle* style) {
#if defined(_WIN32)
    return Style_path(style);
#else
    return utf8(Style_path(style));
#endif
  }

 private:
  template <class At>
  KoStyleStyle* find(At at, const std::string& id) const {
    for (std::size_t i = 0; KoStyleStyle* style = at(manager, i); ++i) {
      if (utf8(Style_id(style)) == id) return style;
    }
    return nullptr;
  }
};

}  // namespace test
