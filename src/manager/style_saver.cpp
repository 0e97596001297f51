#include "manager/style_saver.h"

#include <utility>

#include "format/style_keys.h"
#include "format/style_serializer.h"
#include "manager/file_system.h"
#include "manager/style_manager.h"
#include "model/style_copy.h"
#include "model/user_style.h"
#include "platform/platform.h"

namespace Tesk::KoStyle {
namespace {

using platform::NativePath;

// A file that a save writes or replaces. Its paths are made ahead, so that nothing here throws.
class TargetFile {
 public:
  explicit TargetFile(const Text& path)
      : path_(platform::nativePath(path)), longPath_(platform::nativePath(toLongPath(path.c_str()))) {}

  // Opening and renaming take the path as it is, testing and deleting the long-path form.
  platform::File open() const noexcept { return platform::openForWriting(path_); }
  void renameTo(const TargetFile& target) const noexcept { platform::renameFile(path_, target.path_); }
  bool remove() const noexcept { return platform::removeEntry(longPath_); }

 private:
  NativePath path_;
  NativePath longPath_;
};

// A UUID whose file in the user directory does not exist, and which no style has when it is to be one's
// identifier.
struct FreshName {
  Text uuid;
  Text path;
};

FreshName chooseStyleName(const StyleManager& manager) {
  for (;;) {
    Text uuid = platform::makeUuid();
    if (manager.isStyleIdInUse(uuid.c_str())) continue;
    Text path = joinPath(manager.userStyleDirPath(), Text(uuid).append(styleFileExtension));
    if (!pathExists(path)) return {std::move(uuid), std::move(path)};
  }
}

Text chooseTemporaryPath(const StyleManager& manager) {
  for (;;) {
    Text path = joinPath(manager.userStyleDirPath(), platform::makeUuid());
    if (!pathExists(path)) return path;
  }
}

// Opens and writes a file that did not exist; on any other code than KOSTYLE_OK it does not exist
// again.
std::uint32_t writeNewFile(const TargetFile& target, const StyleDocument& document,
                           bool pretty) noexcept {
  platform::FileBuffer buffer;
  platform::File file = target.open();
  if (!file) return KOSTYLE_ERROR_OPEN_FAILED;
  platform::setBuffer(file, buffer);
  const std::uint32_t code = writeStyleFile(document, pretty, file.get());
  file.reset();
  if (code != KOSTYLE_OK) target.remove();
  return code;
}

}  // namespace

IUserStyle* saveNewStyle(StyleManager& manager, MutableStyle& style, bool pretty,
                         std::uint32_t& error) {
  const auto fail = [&](std::uint32_t code) {
    error = code;
    return nullptr;
  };
  if (*style.name() == 0) return fail(KOSTYLE_ERROR_ARGUMENT_MISSING);
  if (!manager.listsMutableStyle(&style)) return fail(KOSTYLE_ERROR_FOREIGN_MUTABLE_STYLE);
  style.pool().prefetch();
  if (!ensureDirectory(manager.userStyleDirPath()))
    return fail(KOSTYLE_ERROR_USER_DIRECTORY_NOT_CREATABLE);

  const FreshName name = chooseStyleName(manager);
  const TargetFile target(name.path);
  auto saved = manager.makeUserStyle();
  saved->assign(copyFromMutableStyle(style, *saved, name.uuid, name.path));
  const StyleDocument document(style, saved->wholeId());

  error = writeNewFile(target, document, pretty);
  if (error != KOSTYLE_OK) return nullptr;
  manager.destroy(style);
  return &manager.append(std::move(saved));
}

IUserStyle* overwriteStyle(StyleManager& manager, const Char* targetID, MutableStyle& style,
                           bool pretty, std::uint32_t& error) {
  const auto fail = [&](std::uint32_t code) {
    error = code;
    return nullptr;
  };
  if (!targetID) return fail(KOSTYLE_ERROR_ARGUMENT_MISSING);
  UserStyle* const user = manager.findUserStyle(targetID);
  if (!user) return fail(KOSTYLE_ERROR_USER_STYLE_NOT_FOUND);
  if (!manager.listsMutableStyle(&style)) return fail(KOSTYLE_ERROR_FOREIGN_MUTABLE_STYLE);
  style.pool().prefetch();
  if (!ensureDirectory(manager.userStyleDirPath()))
    return fail(KOSTYLE_ERROR_USER_DIRECTORY_NOT_CREATABLE);

  const TargetFile target(user->path());
  const TargetFile temporary(chooseTemporaryPath(manager));
  const StyleDocument document(style, targetID);
  StoredContent content = copyFromMutableStyle(style, *user);

  error = writeNewFile(temporary, document, pretty);
  if (error != KOSTYLE_OK) return nullptr;
  if (*user->path() == 0 || !target.remove()) {
    temporary.remove();
    return fail(KOSTYLE_ERROR_TARGET_NOT_REPLACEABLE);
  }
  temporary.renameTo(target);
  user->exchangeContent(content);
  manager.destroy(style);
  return user;
}

}  // namespace Tesk::KoStyle
