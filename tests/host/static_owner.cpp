// A host whose static object destroys its manager when the process ends: static_owner DIRECTORY
//
// Built with KOSTYLE_LOADED, the file of the library, it loads the library in main instead of being
// linked with it, so that the static object is the older one, which the end of the process reaches
// last.
#include <kostyle/kostyle.h>
#include <kostyle/cpp/path.hpp>

#include <cstdlib>

#include "support/loaded_library.h"

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

void findFunctions() {
#if defined(KOSTYLE_LOADED)
  const test::LoadedLibrary library(KOSTYLE_LOADED);
  library.find(create, "CreateStyleManager");
  library.find(has, "HasStyleManager");
  library.find(destroy, "StyleManager_destroy");
#else
  create = CreateStyleManager;
  has = HasStyleManager;
  destroy = StyleManager_destroy;
#endif
}

}  // namespace

int main(int argc, char* argv[]) {
  if (argc != 2) return 2;
  const kostyle::NativeString path = kostyle::fromPath(argv[1]);
  const KoStyleChar* const directory = path.c_str();
  findFunctions();
  owner.manager = create(KOSTYLE_TEXT("owner"), directory, directory, nullptr, 0, nullptr, 0, nullptr);
  return owner.manager ? 0 : 1;
}
