// A library that a program loads by itself instead of being linked with it.
#pragma once

#if defined(_WIN32)
#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace test {

class LoadedLibrary {
 public:
#if defined(_WIN32)
  explicit LoadedLibrary(const char* file) : handle_(LoadLibraryA(file)) {}
  void unload() { FreeLibrary(handle_); }
#else
  explicit LoadedLibrary(const char* file) : handle_(dlopen(file, RTLD_NOW)) {}
  void unload() { dlclose(handle_); }
#endif

  /// Finds the exported function of a name, whose type is that of its declaration.
  template <class Function>
  void find(Function*& function, const char* name) const {
#if defined(_WIN32)
    function = reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(handle_, name)));
#else
    function = reinterpret_cast<Function*>(dlsym(handle_, name));
#endif
  }

 private:
#if defined(_WIN32)
  HMODULE handle_;
#else
  void* handle_;
#endif
};

}  // namespace test
