// The library's UTF-16 text, for programs that otherwise speak UTF-8.
#pragma once

#include <kostyle/types.h>

#include <filesystem>
#include <string>
#include <string_view>

namespace bench {

using Text = std::basic_string<KoStyleChar>;

/// From ASCII.
inline Text toText(std::string_view ascii) { return {ascii.begin(), ascii.end()}; }

inline Text pathText(const std::filesystem::path& path) {
  auto absolute = std::filesystem::absolute(path);
  absolute.make_preferred();
#if defined(_WIN32)
  return absolute.wstring();
#else
  return absolute.u16string();
#endif
}

}  // namespace bench
