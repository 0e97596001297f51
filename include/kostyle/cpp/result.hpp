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
  /** Of a code that a C function returned: any number. */
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
  /** Success. */
  Result(Value value) noexcept : value_(std::move(value)) {}
  /** Failure, with a code that is not KOSTYLE_OK. */
  Result(Error error) noexcept : error_(error) {}

  /** Whether there is a value. */
  bool has_value() const noexcept { return value_.has_value(); }
  /** As has_value(): `if (result)`. */
  explicit operator bool() const noexcept { return has_value(); }

  /** The value, when there is one; it lives in the result. */
  Value& operator*() & noexcept { return *pointer(); }
  /** The value, when there is one. */
  const Value& operator*() const& noexcept { return *pointer(); }
  /** The value, when there is one, to be moved from. */
  Value&& operator*() && noexcept { return std::move(*pointer()); }
  /** What the value has, when there is one. */
  Value* operator->() noexcept { return pointer(); }
  /** What the value has, when there is one. */
  const Value* operator->() const noexcept { return pointer(); }

  /**
   * Why there is no value: the codes are those that the operation names; KOSTYLE_OK when there is a
   * value.
   */
  Error error() const noexcept { return error_; }
  /** The code of error(), of enum KoStyleCode. */
  int code() const noexcept { return error_.code(); }
  /** The sentence of error(), in English; never NULL, and lives for ever. */
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

/** Success, or the code that says what went wrong; tested as Result is. */
template <>
class [[nodiscard]] Result<void> {
 public:
  /** Success. */
  constexpr Result() noexcept = default;
  /** Failure, or success when the code is KOSTYLE_OK. */
  constexpr Result(Error error) noexcept : error_(error) {}

  /** Whether it is success. */
  bool has_value() const noexcept { return error_.code() == KOSTYLE_OK; }
  /** As has_value(): `if (result)`. */
  explicit operator bool() const noexcept { return has_value(); }

  /** What went wrong; KOSTYLE_OK when nothing did. */
  Error error() const noexcept { return error_; }
  /** The code of error(), of enum KoStyleCode. */
  int code() const noexcept { return error_.code(); }
  /** The sentence of error(), in English; never NULL, and lives for ever. */
  const char* sentence() const noexcept { return error_.sentence(); }

 private:
  Error error_{KOSTYLE_OK};
};

}  // namespace kostyle

#endif
