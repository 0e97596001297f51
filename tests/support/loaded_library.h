// A library that a program loads by itself, or has loaded already, by its file name.
#pragma once

#if defined(_WIN32)
#include "support/windows_api.h"
#else
#include <dlfcn.h>
#endif

namespace test {

class LoadedLibrary {
 public:
#if defined(_WIN32)
  using Handle = HMODULE;
  explicit LoadedLibrary(const char* file) : handle_(LoadLibraryA(file)) {}
  void unload() { FreeLibrary(handle_); }

  /// The address of an exported name; null when there is none.
  void* address(const char* name) const {
    return reinterpret_cast<void*>(GetProcAddress(handle_, name));
  }
#else
  using Handle = void*;
  explicit LoadedLibrary(const char* file) : handle_(dlopen(file, RTLD_NOW)) {}
  void unload() { dlclose(handle_); }

  /// The address of an exported name; null when there is none.
  void* address(const char* name) const { return dlsym(handle_, name); }
#endif

  /// Null when the library could not be loaded.
  Handle handle() const { return handle_; }

  /// Finds the exported function of a name, whose type is that of its declaration.
  template <class Function>
  void find(Function*& function, const char* name) const {
    function = reinterpret_cast<Function*>(address(name));
  }

 private:
  Handle handle_;
};

}  // namespace test
