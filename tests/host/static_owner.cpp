// A host whose static object destroys its manager when the process ends: static_owner DIRECTORY
//
// Built with KOSTYLE_LOADED, the file of the library, it loads the library in main instead of being
// linked with it, so that the static object is the older one, which the end of the process reaches
// last.
#include <kostyle/kostyle.h>

#include <cstdlib>

#include "example_text.h"

#if defined(_WIN32)
#define NOMINMAX
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#elif defined(KOSTYLE_LOADED)
#include <dlfcn.h>
#endif

namespace {

decltype(&CreateStyleManager) create;
decltype(&HasStyleManager) has;
decltype(&StyleManager_destroy) destroy;

class Owner {
 public:
  ~Owner() {
    constexpr int wentWrong = 3;
    if (!manager || !has(manager) || !destroy(manager) || has(manager)) std::_Exit(wentWrong);
  }
  KoStyleManager* manager = nullptr;
} owner;

#if defined(KOSTYLE_LOADED)

template <class Function>
void find(Function& function, const char* library, const char* name) {
#if defined(_WIN32)
  HMODULE const loaded = LoadLibraryA(library);
  function = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(loaded, name)));
#else
  function = reinterpret_cast<Function>(dlsym(dlopen(library, RTLD_NOW), name));
#endif
}

void findFunctions(const char* library) {
  find(create, library, "CreateStyleManager");
  find(has, library, "HasStyleManager");
  find(destroy, library, "StyleManager_destroy");
}

#else

void findFunctions(const char*) {
  create = CreateStyleManager;
  has = HasStyleManager;
  destroy = StyleManager_destroy;
}

#endif

}  // namespace

int EXAMPLE_MAIN(int argc, ExampleArgument* argv[]) {
  KoStyleChar directory[4096];
  if (argc != 2 || !pathFromArgument(argv[1], directory, 4096)) return 2;
#if defined(KOSTYLE_LOADED)
  findFunctions(KOSTYLE_LOADED);
#else
  findFunctions(nullptr);
#endif
  owner.manager = create(KOSTYLE_TEXT("owner"), directory, directory, nullptr, 0, nullptr, 0, nullptr);
  return owner.manager ? 0 : 1;
}
