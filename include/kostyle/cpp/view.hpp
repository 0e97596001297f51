/*
 * KoStyle for C++: what styles, effects, parameters and creation results have in common.
 */
#ifndef KOSTYLE_CPP_VIEW_HPP
#define KOSTYLE_CPP_VIEW_HPP

#include <type_traits>

namespace kostyle {
namespace detail {

class AnyView {};

// Whether views of the two types may refer to one object: one is the kind of the other or a more general one.
template <class A, class B>
inline constexpr bool areComparable = std::is_base_of_v<AnyView, A>&& std::is_base_of_v<AnyView, B> &&
                                      (std::is_base_of_v<A, B> || std::is_base_of_v<B, A>);

}  // namespace detail

/**
 * A handle of the C interface with a type that says which kind it is of. It is as light as a pointer, and
 * copying it copies no more: it refers to an object of the library, valid as long as the handle is. Const
 * is the view, not the object.
 *
 * A view may be empty, as at the end of a walk by next(). Of an empty view functions give what the C
 * functions give for a null handle: empty texts, other empty views, false; ranges are empty.
 *
 * A view and what is reached through it are used by one thread at a time, as all that belongs to a manager.
 */
template <class Handle>
class View : private detail::AnyView {
 public:
  /** Empty. */
  constexpr View() noexcept = default;

  /** Of a handle of the C interface, which must be of the kind that the view is for, or NULL. */
  constexpr explicit View(Handle* handle) noexcept : handle_(handle) {}

  /** The handle, for the functions of the C interface; NULL of an empty view. */
  constexpr Handle* handle() const noexcept { return handle_; }

  /** Whether the view refers to an object. */
  constexpr explicit operator bool() const noexcept { return handle_ != nullptr; }

 private:
  Handle* handle_ = nullptr;
};

/** Whether two views refer to one object. Views of kinds that exclude each other are not compared. */
template <class A, class B>
constexpr auto operator==(const A& a, const B& b) noexcept
    -> std::enable_if_t<detail::areComparable<A, B>, bool> {
  return a.handle() == b.handle();
}

/**
 * Whether two views refer to different objects. Views of kinds that exclude each other are not compared.
 */
template <class A, class B>
constexpr auto operator!=(const A& a, const B& b) noexcept
    -> std::enable_if_t<detail::areComparable<A, B>, bool> {
  return !(a == b);
}

}  // namespace kostyle

#endif
