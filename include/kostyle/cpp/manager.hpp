/*
 * KoStyle for C++: managers. A manager belongs to one application identifier and owns everything that the
 * host reaches through it.
 */
#ifndef KOSTYLE_CPP_MANAGER_HPP
#define KOSTYLE_CPP_MANAGER_HPP

#include <cstddef>
#include <filesystem>
#include <iterator>
#include <utility>
#include <vector>

#include "../manager.h"
#include "creation_result.hpp"
#include "mutable_style.hpp"
#include "path.hpp"
#include "range.hpp"
#include "result.hpp"
#include "style.hpp"
#include "text.hpp"
#include "view.hpp"

namespace kostyle {

namespace detail {

struct SystemStyleList {
  using Owner = KoStyleManager;
  using Value = SystemStyle;
  static std::size_t count(Owner* manager) noexcept { return StyleManager_numSystemStyle(manager); }
  static Value at(Owner* manager, std::size_t index) noexcept {
    return Value(StyleManager_systemStyle(manager, index));
  }
};

struct UserStyleList {
  using Owner = KoStyleManager;
  using Value = UserStyle;
  static std::size_t count(Owner* manager) noexcept { return StyleManager_numUserStyle(manager); }
  static Value at(Owner* manager, std::size_t index) noexcept {
    return Value(StyleManager_userStyle(manager, index));
  }
};

struct SystemCreationResultList {
  using Owner = KoStyleManager;
  using Value = CreationResult;
  static std::size_t count(Owner* manager) noexcept {
    return StyleManager_numSystemStyleCreationResult(manager);
  }
  static Value at(Owner* manager, std::size_t index) noexcept {
    return Value(StyleManager_systemStyleCreationResult(manager, index));
  }
};

struct UserCreationResultList {
  using Owner = KoStyleManager;
  using Value = CreationResult;
  static std::size_t count(Owner* manager) noexcept {
    return StyleManager_numUserStyleCreationResult(manager);
  }
  static Value at(Owner* manager, std::size_t index) noexcept {
    return Value(StyleManager_userStyleCreationResult(manager, index));
  }
};

}  // namespace detail

/** The system styles of a manager, in reading order. */
using SystemStyles = LinkedRange<detail::SystemStyleList>;

/** The user styles of a manager: in reading order, then in the order in which styles were saved. */
using UserStyles = LinkedRange<detail::UserStyleList>;

/** The creation results of the last read of the system styles, in reading order. */
using SystemCreationResults =
    IndexRange<detail::SystemCreationResultList, std::random_access_iterator_tag>;

/** The creation results of the last read of the user styles, in reading order. */
using UserCreationResults = IndexRange<detail::UserCreationResultList, std::random_access_iterator_tag>;

/**
 * A manager that another owns: what Manager can do, but to destroy it. A manager and all that it owns are
 * used by one thread at a time; different managers may be used by different threads at the same time.
 */
class ManagerView : public View<KoStyleManager> {
 public:
  /** Those of View: empty, or of a handle of the C interface, which must be of this kind, or NULL. */
  using View::View;

  /** The application identifier; lives as long as the manager. */
  Text applicationId() const noexcept { return Text(StyleManager_appID(handle())); }

  /** The system style directory, as Manager::create() passed it to the library: on Windows absolute. */
  std::filesystem::path systemDirectory() const {
    return toPath(Text(StyleManager_systemStyleDirPath(handle())));
  }

  /** The user style directory, as Manager::create() passed it to the library: on Windows absolute. */
  std::filesystem::path userDirectory() const {
    return toPath(Text(StyleManager_userStyleDirPath(handle())));
  }

  /**
   * Reads the system styles anew: every file directly inside the system style directory and the further
   * system directories whose extension is exactly ".kostyle". The system styles and their creation results
   * end first, whatever the outcome. Bad files do not fail the read: each opened file leaves a creation
   * result. A file whose identifier a style of either set has is refused. Files that cannot be opened, further
   * directories that do not exist and directories that cannot be listed are passed over without one.
   *
   * @return success; KOSTYLE_ERROR_DIRECTORY_MISSING when the system style directory does not exist or is
   *         not a directory (the set is then empty); KOSTYLE_ERROR_INVALID_HANDLE for an empty view.
   */
  Result<void> readSystemStyles() const { return Error(StyleManager_readSystemStyles(handle())); }

  /**
   * Reads the user styles anew, from the user style directory and the further user directories, as
   * readSystemStyles() does; the property editors end with the styles.
   *
   * @return success; KOSTYLE_ERROR_DIRECTORY_MISSING when the user style directory does not exist or is not a
   *         directory (the set is then empty); KOSTYLE_ERROR_INVALID_HANDLE for an empty view.
   */
  Result<void> readUserStyles() const { return Error(StyleManager_readUserStyles(handle())); }

  /** The system styles, live: none before they are read, and others when they are read again. */
  SystemStyles systemStyles() const noexcept { return SystemStyles(handle()); }
  /** The user styles, live: saving adds one at the end, removing takes one out. */
  UserStyles userStyles() const noexcept { return UserStyles(handle()); }
  /** What the last read of the system styles left behind, live: a read ends those of the one before. */
  SystemCreationResults systemCreationResults() const noexcept {
    return SystemCreationResults(handle());
  }
  /** What the last read of the user styles left behind, live: a read ends those of the one before. */
  UserCreationResults userCreationResults() const noexcept { return UserCreationResults(handle()); }

  /** Whether a style is one of the manager's system styles. It is only compared, so it may have ended. */
  bool has(SystemStyle style) const noexcept {
    return StyleManager_hasSystemStyle(handle(), style.handle());
  }
  /** Whether a style is one of the manager's user styles. It is only compared, so it may have ended. */
  bool has(UserStyle style) const noexcept {
    return StyleManager_hasUserStyle(handle(), style.handle());
  }
  /**
   * Whether a style is one of the manager's mutable styles. It is only compared, so it may have ended.
   */
  bool has(MutableStyle style) const noexcept {
    return StyleManager_hasMutableStyle(handle(), style.handle());
  }

  /**
   * Creates an empty mutable style, to become a new user style or the new content of one.
   *
   * @return the style, owned by the manager until MutableStyle::destroy(), a successful save or overwrite, or
   *         the manager's end; empty for an empty view.
   */
  MutableStyle createMutableStyle() const {
    return MutableStyle(StyleManager_createMutableStyle(handle()));
  }
};

/** Directories that are read as well, in their order. Those that do not exist are passed over. */
struct FurtherDirectories {
  /** As system styles, after the system directory. */
  std::vector<std::filesystem::path> system;
  /** As user styles, after the user directory. */
  std::vector<std::filesystem::path> user;
};

/**
 * A manager that ends with its object. It is moved, not copied; what does not own it has a ManagerView, to
 * which it converts. Managers are created and destroyed from any thread, all else of one is for one thread at a
 * time.
 */
class Manager : public ManagerView {
 public:
  /**
   * Creates a manager. It starts empty: call readSystemStyles() and readUserStyles(). May be called from
   * any thread at any time.
   *
   * When a manager with the identifier exists, the library gives that one. So two objects of one identifier
   * would both destroy it: only one of them may be; other parts of the host use a ManagerView of it, and
   * parts that share it through C use release().
   *
   * @param applicationId not empty; compared exactly.
   * @param systemDirectory directory of the styles shipped with the host; must exist.
   * @param userDirectory directory of the user's styles; created with all missing parents. A plain file in its
   *        place is taken for it: readUserStyles() then gives KOSTYLE_ERROR_DIRECTORY_MISSING, and saving
   *        KOSTYLE_ERROR_OPEN_FAILED.
   * @param further directories read as system and as user styles besides.
   * @return the manager, or the first that applies of KOSTYLE_ERROR_APP_ID_MISSING,
   *         KOSTYLE_ERROR_SYSTEM_DIRECTORY_MISSING and KOSTYLE_ERROR_USER_DIRECTORY_NOT_CREATABLE.
   */
  static Result<Manager> create(const TextArgument& applicationId,
                                const std::filesystem::path& systemDirectory,
                                const std::filesystem::path& userDirectory,
                                const FurtherDirectories& further = {}) {
    const Paths system(further.system);
    const Paths user(further.user);
    int code = KOSTYLE_OK;
    KoStyleManager* const manager = CreateStyleManager(
        applicationId.c_str(), fromPath(systemDirectory).c_str(), fromPath(userDirectory).c_str(),
        system.data(), system.size(), user.data(), user.size(), &code);
    if (!manager) return Error(code);
    return Manager(manager);
  }

  /**
   * Takes over a manager that CreateStyleManager() gave, and destroys it at its end; of NULL it is empty.
   */
  explicit Manager(KoStyleManager* manager) noexcept : ManagerView(manager) {}

  /** Takes over what another object has, which is empty then. */
  Manager(Manager&& other) noexcept : ManagerView(other.release()) {}
  /** Destroys what the object has, and takes over what another one has. */
  Manager& operator=(Manager&& other) noexcept {
    if (this != &other) {
      StyleManager_destroy(handle());
      setHandle(other.release());
    }
    return *this;
  }
  /** Not copied: one object owns the manager. */
  Manager(const Manager&) = delete;
  /** Not copied: one object owns the manager. */
  Manager& operator=(const Manager&) = delete;

  /** Destroys the manager with everything that it owns; all views and texts reached through it end. */
  ~Manager() { StyleManager_destroy(handle()); }

  /**
   * Gives the manager up: the object is empty, and who calls destroys what it had by
   * StyleManager_destroy().
   */
  KoStyleManager* release() noexcept {
    KoStyleManager* const manager = handle();
    setHandle(nullptr);
    return manager;
  }

 private:
  // Texts as CreateStyleManager() takes them.
  class Paths {
   public:
    explicit Paths(const std::vector<std::filesystem::path>& paths) {
      for (const auto& path : paths) texts_.push_back(fromPath(path));
      for (const auto& text : texts_) pointers_.push_back(text.c_str());
    }
    const KoStyleChar* const* data() const noexcept { return pointers_.data(); }
    int size() const noexcept { return static_cast<int>(pointers_.size()); }

   private:
    std::vector<NativeString> texts_;
    std::vector<const KoStyleChar*> pointers_;
  };

  void setHandle(KoStyleManager* manager) noexcept {
    static_cast<View<KoStyleManager>&>(*this) = View<KoStyleManager>(manager);
  }
};

inline ManagerView Style::manager() const noexcept { return ManagerView(Style_parent(handle())); }

}  // namespace kostyle

#endif
