/*
 * KoStyle for C++17: the whole C interface as types that own, views, ranges and results. Header only, over
 * the functions that the library exports; kostyle.h has the conventions, which hold here too:
 *
 *  1. Manager owns. Everything else that is reached through it is a view, as light as a pointer, valid as
 *     long as the handle in it: a style until it is removed or its set is read again, its effects and
 *     parameters as long as their style keeps its content, its property editor until the next one. Nothing
 *     checks that.
 *  2. Each kind has its type: a system style is no user style, a mutable effect no stored one. What does
 *     not fit together does not compile, comparisons of such kinds among it.
 *  3. Texts come as Text: utf8() copies, native() looks. Texts go in as UTF-8 or as native text, whichever
 *     the host has.
 *  4. What may fail gives a Result: a value, or a code of enum KoStyleCode with its sentence. Functions that
 *     refuse an argument and change nothing give false or an empty view.
 *  5. A manager and all that it owns are used by one thread at a time. Managers are created and destroyed
 *     from any thread.
 *  6. The layer throws nothing of its own: only std::bad_alloc leaves it, of its own strings and lists or,
 *     where host and library allow for it, of the library. Functions declared noexcept take no memory.
 *  7. Nothing is added to what the C functions cost, but where a function says so: copies of text, paths,
 *     and the care of a safe save.
 */
#ifndef KOSTYLE_KOSTYLE_HPP
#define KOSTYLE_KOSTYLE_HPP

/* IWYU pragma: begin_exports */
#include "cpp/attributes.hpp"
#include "cpp/copy.hpp"
#include "cpp/creation_result.hpp"
#include "cpp/effect.hpp"
#include "cpp/find_problems.hpp"
#include "cpp/manager.hpp"
#include "cpp/mutable_style.hpp"
#include "cpp/parameter.hpp"
#include "cpp/path.hpp"
#include "cpp/problem.hpp"
#include "cpp/property_editor.hpp"
#include "cpp/range.hpp"
#include "cpp/result.hpp"
#include "cpp/safe_save.hpp"
#include "cpp/style.hpp"
#include "cpp/text.hpp"
#include "cpp/view.hpp"
#include "kostyle.h"
/* IWYU pragma: end_exports */

/** The layer for C++17 over the interface for C: one header, kostyle.hpp, which has the conventions. */
namespace kostyle {}

#endif
