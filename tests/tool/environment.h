// Environment variables of the programs that a test starts.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>

#include "tool/process.h"

namespace test {

/// While the object lives, a variable has another value; without one it is not there.
class OtherVariable {
 public:
  OtherVariable(const std::string& name, const std::optional<std::string>& value)
      : name_(name), before_(get()) {
    set(value);
  }
  OtherVariable(const OtherVariable&) = delete;
  OtherVariable& operator=(const OtherVariable&) = delete;
  ~OtherVariable() { set(before_); }

 private:
#if defined(_WIN32)
  std::optional<std::string> get() const {
    std::wstring value(32768, L'\0');
    const DWORD length = GetEnvironmentVariableW(text(name_).c_str(), value.data(), 32768);
    if (length == 0) return std::nullopt;
    value.resize(length);
    return fs::path(value).u8string();
  }
  void set(const std::optional<std::string>& value) const {
    SetEnvironmentVariableW(text(name_).c_str(), value ? text(*value).c_str() : nullptr);
  }
#else
  std::optional<std::string> get() const {
    const char* const value = std::getenv(name_.c_str());
    return value ? std::optional<std::string>(value) : std::nullopt;
  }
  void set(const std::optional<std::string>& value) const {
    if (value) {
      setenv(name_.c_str(), value->c_str(), 1);
    } else {
      unsetenv(name_.c_str());
    }
  }
#endif

  std::string name_;
  std::optional<std::string> before_;
};

}  // namespace test
