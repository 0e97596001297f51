/*
 * KoStyle for C++: what styles, effects, parameters and creation results have in common.
 */
#ifndef KOSTYLE_CPP_VIEW_HPP
#define KOSTYLE_CPP_VIEW_HPP

namespace kostyle {

/**
 * A handle of the C interface with a type that says which kind it is of. It is as light as a pointer, and
 * copying it copies no more: it refers to an object of the library, valid as long as the handle is. Const
 * is the view, not the object.
 *
 * A view may be empty, as at the end of a walk by next(). Of an empty view functions give what the C
 * functions give for a null handle: empty texts, other empty views, false; ranges are empty.
 */
template <class Handle>
class View {
 public:
  /** Empty. */
  constexpr View() noexcept = default;

  /** Of a handle of the C interface, which must be of the kind that the view is for, or NULL. */
  constexpr explicit View(Handle* handle) noexcept : handle_(handle) {}

  /** For the functions of the C interface. */
  constexpr Handle* handle() const noexcept { return handle_; }

  /** Whether the view refers to an object. */
  constexpr explicit operator bool() const noexcept { return handle_ != nullptr; }

  /** Whether two views refer to one object. */
  friend constexpr bool operator==(View a, View b) noexcept { return a.handle_ == b.handle_; }
  /** Whether they refer to different ones. */
  friend constexpr bool operator!=(View a, View b) noexcept { return a.handle_ != b.handle_; }

 private:
  Handle* handle_ = nullptr;
};

}  // namespace kostyle

#endif
