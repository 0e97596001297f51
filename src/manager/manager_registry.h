// The managers of the process.
#pragma once

#include <mutex>
#include <vector>

#include "containers/owned_sequence.h"
#include "manager/style_manager.h"

namespace Tesk::KoStyle {

/// Creating and destroying take the lock; contains() deliberately does not, and must not run beside
/// them.
class StyleManagerRegistry {
 public:
  /// There from when the library is loaded until it is unloaded, which destroys the managers that are
  /// left.
  static StyleManagerRegistry& instance() noexcept;

  /// The manager of `appID`, made when there is none. Null with a code in `error` on failure.
  IStyleManager* findOrCreate(const Char* appID, const Char* systemStyleDirPath,
                              const Char* userStyleDirPath, std::vector<Text> systemStyleDirs,
                              std::vector<Text> userStyleDirs, int& error);

  bool contains(const IStyleManager* manager) const noexcept { return managers_.contains(manager); }

  /// Destroys a manager; ignores one that is not registered.
  void destroy(const IStyleManager* manager);

 private:
  struct AppIdOf {
    TextView operator()(const StyleManager& manager) const noexcept { return manager.appID(); }
  };

  OwnedSequence<StyleManager, IStyleManager, AppIdOf> managers_;
  std::mutex lock_;
};

}  // namespace Tesk::KoStyle
