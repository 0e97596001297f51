/*
 * KoStyle for C++: writing a style where nothing is at stake, and reading what was written. For
 * safe_save.hpp alone.
 */
#ifndef KOSTYLE_CPP_REHEARSAL_HPP
#define KOSTYLE_CPP_REHEARSAL_HPP

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <system_error>
#include <utility>
#include <variant>

#include "copy.hpp"
#include "manager.hpp"
#include "mutable_style.hpp"
#include "problem.hpp"
#include "safe_files.hpp"
#include "style.hpp"

namespace kostyle::detail {

// Of floats the sign of a zero counts.
inline bool sameValue(const ParameterValue& a, const ParameterValue& b) {
  const float* const left = std::get_if<float>(&a);
  const float* const right = std::get_if<float>(&b);
  return a == b && (!left || std::signbit(*left) == std::signbit(*right));
}

template <class List, class OtherList, class Same>
bool sameElements(const List& a, const OtherList& b, Same same) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), same);
}

template <class Chain, class OtherChain>
bool sameChain(const Chain& a, const OtherChain& b) {
  const auto sameParameter = [](Parameter left, Parameter right) {
    return left.name() == right.name() && sameValue(left.value(), right.value());
  };
  return sameElements(a, b, [&](const auto& left, const auto& right) {
    return left.id() == right.id() &&
           sameElements(left.parameters(), right.parameters(), sameParameter);
  });
}

// Whether two styles of whatever kinds have the same name, attributes and chains.
template <class StyleA, class StyleB>
bool sameContent(StyleA a, StyleB b) {
  const auto same = [](const auto& left, const auto& right) { return left == right; };
  return a.name() == b.name() && sameElements(a.languages(), b.languages(), same) &&
         sameElements(a.singerGroups(), b.singerGroups(), same) &&
         sameElements(a.singerIDs(), b.singerIDs(), same) &&
         sameElements(a.genres(), b.genres(), same) &&
         sameElements(a.subGenres(), b.subGenres(), same) &&
         sameElements(a.colors(), b.colors(), same) && sameChain(a.audioEffects(), b.audioEffects()) &&
         sameChain(a.midiEffects(), b.midiEffects());
}

// A folder in the user directory, where the new file will be written, with a manager of its own over it,
// and in that the style as reading its file should give it.
class Rehearsal {
 public:
  explicit Rehearsal(MutableStyle style)
      : folder_(style.manager().userDirectory()), place_(folder_.path() / "written.kostyle") {
    const std::filesystem::path& folder = folder_.path();
    if (folder_.error()) {
      add(ProblemKind::folderFailed, style.manager().userDirectory(), folder_.error());
    } else if (auto manager = Manager::create(freshName("kostyle-safe-"), folder, folder)) {
      manager_ = *std::move(manager);
      expected_ = manager_.createMutableStyle();
      StyleCopier(expected_, StyleCopier::Form::asRead).copy(style);
    } else {
      add(ProblemKind::refused, folder, {}, manager.code());
    }
  }

  Rehearsal(const Rehearsal&) = delete;
  Rehearsal& operator=(const Rehearsal&) = delete;
  ~Rehearsal() {
    if (folder_.error()) return;
    removeQuietly(place_);
    removeQuietly(written_);
  }

  // The style, to be copied; valid as long as this object.
  MutableStyle expected() const noexcept { return expected_; }

  // Whether the style can be written and read again; written() is its file then, in a place of no account.
  bool write(Layout layout) {
    if (!problems_.empty()) return false;
    OwnedMutableStyle copy(manager_);
    StyleCopier(copy.get(), StyleCopier::Form::asRead).copy(expected_);
    const Result<UserStyle> saved = copy.get().save(layout);
    if (!saved) return add(ProblemKind::refused, folder_.path(), {}, saved.code());
    copy.release();
    written_ = saved->path();
    return readBack({}, written_);
  }

  const std::filesystem::path& written() const noexcept { return written_; }

  // Whether a file gives the style and, unless it is empty, an identifier.
  bool gives(const std::filesystem::path& file, Text id) {
    if (const std::error_code error = linkOrCopy(file, place_))
      return add(ProblemKind::notReadBack, file, error);
    const bool same = readBack(id, file);
    removeQuietly(place_);
    return same;
  }

  Problems takeProblems() noexcept { return std::move(problems_); }

 private:
  // Reads the one file in the folder.
  bool readBack(Text id, const std::filesystem::path& shown) {
    const Result<void> read = manager_.readUserStyles();
    const UserStyle style = manager_.userStyles()[0];
    if (read && style && (id.empty() || style.id() == id) && sameContent(expected_, style)) return true;
    return add(style ? ProblemKind::readBackDiffers : ProblemKind::notReadBack, shown);
  }

  // Always false.
  bool add(ProblemKind kind, const std::filesystem::path& where, std::error_code cause = {},
           int code = KOSTYLE_OK) {
    problems_.push_back({kind, shownPath(where), code, cause});
    return false;
  }

  ScratchFolder folder_;
  std::filesystem::path place_;    // of what is read again
  std::filesystem::path written_;  // empty when nothing was
  Manager manager_{nullptr};
  MutableStyle expected_;
  Problems problems_;
};

}  // namespace kostyle::detail

#endif
