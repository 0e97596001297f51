/*
 * KoStyle for C++: saving and overwriting with care.
 *
 * A plain save gives no error for a full disk, nor for what a file cannot hold. The functions here look at
 * the style first, write it into a folder of their own in the user style directory and read it again, and
 * only then save; what was saved is read again too. So what they report as saved is in its file, and what
 * was there before stays when anything goes wrong. Files are written through to the system, not to the
 * device: what the system loses when it crashes is not watched, nor what other processes do with the same
 * file meanwhile. Each call creates and destroys a manager, so HasStyleManager() must not run meanwhile.
 */
#ifndef KOSTYLE_CPP_SAFE_SAVE_HPP
#define KOSTYLE_CPP_SAFE_SAVE_HPP

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "copy.hpp"
#include "find_problems.hpp"
#include "manager.hpp"
#include "mutable_style.hpp"
#include "problem.hpp"
#include "rehearsal.hpp"
#include "safe_files.hpp"
#include "style.hpp"

namespace kostyle {

/** How to save. */
struct SafeSaveOptions {
  /** How the file is laid out: compact unless said otherwise. */
  Layout layout = Layout::compact;

  /**
   * Whether losses, as Problem::isLoss() tells them, are no reason to refuse. The style is then saved as it
   * will be read: without effects that have no parameters, "Tarn" as "Tarn630", the first of equal names.
   */
  bool acceptLosses = false;
};

/** What became of a safe save: tested like a pointer, as a Result is. */
struct [[nodiscard]] SafeSaveResult {
  /** The style that was saved; empty when it was not. */
  UserStyle style = {};

  /** Why it was not; or else the losses that were accepted. */
  Problems problems = {};

  /** Whether the style was saved. */
  explicit operator bool() const noexcept { return static_cast<bool>(style); }
};

namespace detail {

inline bool stops(const Problems& problems, const SafeSaveOptions& options) noexcept {
  return std::any_of(problems.begin(), problems.end(), [&](const Problem& problem) {
    return !options.acceptLosses || !problem.isLoss();
  });
}

inline SafeSaveResult notSaved(Problem problem) {
  SafeSaveResult result;
  result.problems.push_back(std::move(problem));
  return result;
}

// Whether a style's file can be replaced, as far as that shows without touching it.
inline std::error_code whyNotReplaceable(const std::filesystem::path& file) {
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(file, error);
  if (error) return error;
  if (status.type() != std::filesystem::file_type::regular)
    return std::make_error_code(std::errc::no_such_file_or_directory);
#if defined(_WIN32)
  // What is read-only or held open cannot be deleted there. Renaming a file to itself asks about the second.
  if ((status.permissions() & std::filesystem::perms::owner_write) == std::filesystem::perms::none)
    return std::make_error_code(std::errc::permission_denied);
  std::filesystem::rename(file, file, error);
#endif
  return error;
}

// Whether a new file can be moved to where a style's file is; it is tried beside that.
inline std::error_code tryReplacing(const std::filesystem::path& written,
                                    const std::filesystem::path& file) {
  std::error_code error = whyNotReplaceable(file);
  if (error) return error;
  const std::filesystem::path beside = file.parent_path() / freshName("kostyle-safe-");
  std::filesystem::rename(written, beside, error);
  if (!error) removeQuietly(beside);
  return error;
}

inline SafeSaveResult refusedSave(int code) { return notSaved({ProblemKind::refused, {}, code}); }

// Saves what was rehearsed, and takes it back when it is not in its file.
inline SafeSaveResult saveRehearsed(Rehearsal& rehearsal, ManagerView manager, Layout layout) {
  OwnedMutableStyle copy(manager);
  StyleCopier(copy.get(), StyleCopier::Form::asRead).copy(rehearsal.expected());
  const Result<UserStyle> saved = copy.get().save(layout);
  if (!saved) return refusedSave(saved.code());
  copy.release();
  const std::filesystem::path file = saved->path();
  if (rehearsal.gives(file, saved->id())) return {*saved};
  SafeSaveResult result{{}, rehearsal.takeProblems()};
  if (!saved->remove()) result.problems.push_back({ProblemKind::notRestored, shownPath(file)});
  return result;
}

// Overwrites with what was rehearsed; when it is not in its file then, the style gets its content back, and
// after that its file.
inline SafeSaveResult overwriteRehearsed(Rehearsal& rehearsal, UserStyle target, Layout layout) {
  const std::filesystem::path file = target.path();
  Backup backup(file);
  if (backup.error())
    return notSaved({ProblemKind::backupFailed, shownPath(file), KOSTYLE_OK, backup.error()});
  OwnedMutableStyle before(target.manager());
  StyleCopier(before.get(), StyleCopier::Form::asItIs).copy(target);
  OwnedMutableStyle copy(target.manager());
  StyleCopier(copy.get(), StyleCopier::Form::asRead).copy(rehearsal.expected());

  const Result<UserStyle> saved = copy.get().overwrite(target, layout);
  if (!saved) {
    backup.giveUp();
    return refusedSave(saved.code());
  }
  copy.release();
  if (rehearsal.gives(file, target.id())) {
    backup.discard();
    return {*saved};
  }
  SafeSaveResult result{{}, rehearsal.takeProblems()};
  backup.standIn();
  if (before.get().overwrite(target, layout)) before.release();
  if (const std::error_code error = backup.restore())
    result.problems.push_back({ProblemKind::notRestored, shownPath(backup.path()), KOSTYLE_OK, error});
  return result;
}

}  // namespace detail

/**
 * Saves a mutable style as MutableStyle::save() does, or says why not and leaves everything as it was: no
 * file, and the mutable style with its effects and parameters; only the user directory may exist now. On
 * success the mutable style is destroyed.
 *
 * Problems are those of findProblems(); `folderFailed`; `refused` with what MutableStyle::save() gives, such as
 * KOSTYLE_ERROR_INVALID_HANDLE for an empty view, or Manager::create() for the folder that is tried;
 * `notReadBack` and `readBackDiffers` when the file that was tried or saved is not what it should be, as on
 * a full disk; `notRestored` after these two when the new file could not be deleted.
 *
 * In the user style directory stands meanwhile a folder "kostyle-safe-..." with a file in it, which reading
 * passes over; a process that is killed or has no memory may leave it. Where paths are limited its file has the
 * longest, about forty units longer than the style's. When memory runs out after the style was saved, it stays
 * saved, and so does the mutable style.
 *
 * @param style the style; an empty view is refused.
 * @param options the layout, and whether losses are accepted.
 * @return the new user style and the losses that were accepted, or why there is none.
 */
inline SafeSaveResult safeSave(MutableStyle style, const SafeSaveOptions& options = {}) {
  if (!style) return detail::refusedSave(KOSTYLE_ERROR_INVALID_HANDLE);
  Problems problems = findProblems(style);
  if (detail::stops(problems, options)) return {{}, std::move(problems)};

  detail::Rehearsal rehearsal(style);
  if (!rehearsal.write(options.layout)) return {{}, rehearsal.takeProblems()};
  detail::removeQuietly(rehearsal.written());
  SafeSaveResult result = detail::saveRehearsed(rehearsal, style.manager(), options.layout);
  if (!result) return result;
  style.destroy();
  result.problems = std::move(problems);
  return result;
}

/**
 * Overwrites a user style as MutableStyle::overwrite() does, or says why not and leaves the old file as it
 * was. On success the mutable style is destroyed, and what stays and ends of the user style is as there.
 *
 * Problems are those of findProblems() and safeSave(); `refused` with KOSTYLE_ERROR_USER_STYLE_NOT_FOUND when
 * `target` is no user style of the manager; `vendorLost` when the user style has a vendor text,
 * which it keeps in memory until its set is read again, even if the file has lost it; `notReplaceable` when
 * its file is missing, on Windows also when it is read-only or held open, or when a new one cannot be moved
 * to its place, as where that is on another file system than the user style directory; `backupFailed`;
 * `refused` with what MutableStyle::overwrite() gives. In all these cases nothing has changed, but that the
 * user directory may exist now.
 *
 * Only when the file is spoiled after it could be written and read a moment before, `notReadBack` and
 * `readBackDiffers` mean that the style was overwritten and put back: what an overwrite ends has ended then,
 * and the style in memory is as it was as far as createMutableCopy() copies it; reading the set again makes
 * it so altogether. When even the file cannot be put back, `notRestored` says where the old one is kept. When
 * memory runs out after the style was overwritten, the old file is put back and the mutable style stays, but
 * the user style in memory is the new one until its set is read again.
 *
 * A symbolic link in the file's place is replaced as the file would be; what it leads to stays as it is.
 *
 * Beside the file stands meanwhile another one, "kostyle-backup-...", which a process that is killed leaves,
 * or a system that refuses to delete it: it is the old file. When it is a renaming that failed, the new file
 * stays in the user style directory as after MutableStyle::overwrite(), under a UUID without extension.
 *
 * @param style the mutable style with the new content; an empty view is refused.
 * @param target the user style to overwrite, of the same manager.
 * @param options the layout, and whether losses are accepted.
 * @return the overwritten user style and the losses that were accepted, or why it was not overwritten.
 */
inline SafeSaveResult safeOverwrite(MutableStyle style, UserStyle target,
                                    const SafeSaveOptions& options = {}) {
  if (!style) return detail::refusedSave(KOSTYLE_ERROR_INVALID_HANDLE);
  if (!style.manager().has(target)) return detail::refusedSave(KOSTYLE_ERROR_USER_STYLE_NOT_FOUND);
  Problems problems = findProblems(style);
  if (!target.vendor().empty()) problems.push_back({ProblemKind::vendorLost, "vendor"});
  if (detail::stops(problems, options)) return {{}, std::move(problems)};

  detail::Rehearsal rehearsal(style);
  if (!rehearsal.write(options.layout)) return {{}, rehearsal.takeProblems()};
  const std::filesystem::path file = target.path();
  if (const std::error_code error = detail::tryReplacing(rehearsal.written(), file))
    return detail::notSaved({ProblemKind::notReplaceable, detail::shownPath(file), KOSTYLE_OK, error});
  SafeSaveResult result = detail::overwriteRehearsed(rehearsal, target, options.layout);
  if (!result) return result;
  style.destroy();
  result.problems = std::move(problems);
  return result;
}

}  // namespace kostyle

#endif
