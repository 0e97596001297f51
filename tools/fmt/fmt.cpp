// The parts of fmt that are no templates of its users, compiled once: the package's own library is for
// one platform.
#include <fmt/format-inl.h>

FMT_BEGIN_NAMESPACE
namespace detail {
template FMT_API auto thousands_sep_impl(locale_ref place) -> thousands_sep_result<char>;
template FMT_API auto decimal_point_impl(locale_ref place) -> char;
}  // namespace detail
FMT_END_NAMESPACE
