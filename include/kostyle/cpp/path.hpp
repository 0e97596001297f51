/*
 * KoStyle for C++: paths in and out.
 */
#ifndef KOSTYLE_CPP_PATH_HPP
#define KOSTYLE_CPP_PATH_HPP

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <system_error>

#include "text.hpp"

namespace kostyle {

/**
 * The path that a text of the library means. Outside Windows, where paths are bytes, nothing of a path that
 * is not valid UTF-8 is lost; a text that is no path, as KoStyle_pathFromText() says, gives the empty one. The
 * result is a copy.
 */
inline std::filesystem::path toPath(Text text) {
#if defined(_WIN32)
  return text.c_str();
#else
  const std::size_t size = KoStyle_pathFromText(text.c_str(), nullptr, 0);
  if (size == SIZE_MAX) return {};
  std::string path(size, '\0');
  KoStyle_pathFromText(text.c_str(), path.data(), path.size() + 1);
  return path;
#endif
}

/**
 * The text that the library needs for a path. On Windows that is the absolute path with single backslashes,
 * without "." and ".." as steps and without a backslash at its end, so that any path of a host will do; one
 * that starts with two backslashes is taken as it is. No prefix for long paths is added: a host that is not
 * aware of them and saves beyond 260 units gives the path with the prefix itself. Elsewhere it is the path
 * as it is, also a relative one. The result is a copy.
 */
inline NativeString fromPath(const std::filesystem::path& path) {
#if defined(_WIN32)
  if (path.empty() || path.native().compare(0, 2, L"\\\\") == 0) return path.native();
  std::error_code error;
  std::filesystem::path whole = std::filesystem::absolute(path, error);
  if (error) whole = path;
  whole = whole.lexically_normal().make_preferred();
  if (!whole.has_filename() && whole.has_relative_path()) whole = whole.parent_path();
  return whole.native();
#else
  NativeString text(KoStyle_textFromPath(path.c_str(), nullptr, 0), KoStyleChar());
  KoStyle_textFromPath(path.c_str(), text.data(), text.size() + 1);
  return text;
#endif
}

}  // namespace kostyle

#endif
