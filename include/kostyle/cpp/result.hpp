/*
 * KoStyle for C++: what an operation answers that may fail.
 */
#ifndef KOSTYLE_CPP_RESULT_HPP
#define KOSTYLE_CPP_RESULT_HPP

#include <cassert>
#include <optional>
#include <utility>

#include "../codes.h"
#include "../helpers.h"

namespace kostyle {

/** A code of enum KoStyleCode with its sentence. */
class Error {
 public:
  constexpr explicit Error(int code) noexcept : code_(code) {}

  /** The code; a library that is newer than these headers may give one that is not in the list. */
  constexpr int code() const noexcept { return code_; }

  /** One sentence, in English, without a capital or a full stop; never NULL, and lives for ever. */
  const char* sentence() const noexcept { return KoStyle_codeText(code_); }

 private:
  int code_;
};

/**
 * A value, or the code that says why there is none; a small std::expected. It is tested like a pointer, and
 * its value is reached like what a pointer leads to: only when there is one, which is asserted.
 */
template <class Value>
class [[nodiscard]] Result {
 public:
  Result(Value value) noexcept : value_(std::move(value)) {}
  Result(Error error) noexcept : error_(error) {}

  bool has_value() const noexcept { return value_.has_value(); }
  explicit operator bool() const noexcept { return has_value(); }

  Value& operator*() & noexcept { return *pointer(); }
  const Value& operator*() const& noexcept { return *pointer(); }
  Value&& operator*() && noexcept { return std::move(*pointer()); }
  Value* operator->() noexcept { return pointer(); }
  const Value* operator->() const noexcept { return pointer(); }

  /** Why there is no value; KOSTYLE_OK when there is one. */
  Error error() const noexcept { return error_; }
  int code() const noexcept { return error_.code(); }
  const char* sentence() const noexcept { return error_.sentence(); }

 private:
  Value* pointer() noexcept {
    assert(value_);
    return &*value_;
  }
  const Value* pointer() const noexcept {
    assert(value_);
    return &*value_;
  }

  std::optional<Value> value_;
  Error error_{KOSTYLE_OK};
};

/** Success, or the code that says what went wrong. */
template <>
class [[nodiscard]] Result<void> {
 public:
  constexpr Result() noexcept = default;
  constexpr Result(Error error) noexcept : error_(error) {}

  bool has_value() const noexcept { return error_.code() == KOSTYLE_OK; }
  explicit operator bool() const noexcept { return has_value(); }

  Error error() const noexcept { return error_; }
  int code() const noexcept { return error_.code(); }
  const char* sentence() const noexcept { return error_.sentence(); }

 private:
  Error error_{KOSTYLE_OK};
};

}  // namespace kostyle

#endif
