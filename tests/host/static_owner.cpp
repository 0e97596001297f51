// A host whose static object destroys its manager when the process ends: static_owner DIRECTORY
//
// Built with KOSTYLE_LOADED, the file of the library, it loads the library in main instead of being
// linked with it, so that the static object is the older one, which the end of the process reaches
// last.
#include <kostyle/kostyle.h>

#include <cstdlib>

#include "example_text.h"
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

int EXAMPLE_MAIN(int argc, ExampleArgument* argv[]) {
  KoStyleChar directory[4096];
  if (argc != 2 || !pathFromArgument(argv[1], directory, 4096)) return 2;
  findFunctions();
  owner.manager = create(KOSTYLE_TEXT("owner"), directory, directory, nullptr, 0, nullptr, 0, nullptr);
  return owner.manager ? 0 : 1;
}
