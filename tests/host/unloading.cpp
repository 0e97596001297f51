// A host that unloads the library, again and again, with managers left: unloading DIRECTORY
//
// The library then destroys them. Whatever it leaves is found by the leak check of a sanitized build,
// since nothing leads to it any more.
#include <kostyle/kostyle.h>
#include <kostyle/cpp/path.hpp>

#include <initializer_list>

#include "support/loaded_library.h"

namespace {

bool loadUseAndUnload(const KoStyleChar* directory) {
  test::LoadedLibrary library(KOSTYLE_LOADED);
  decltype(&CreateStyleManager) create = nullptr;
  decltype(&StyleManager_readSystemStyles) read = nullptr;
  decltype(&StyleManager_numSystemStyle) count = nullptr;
  decltype(&StyleManager_createMutableStyle) createMutable = nullptr;
  library.find(create, "CreateStyleManager");
  library.find(read, "StyleManager_readSystemStyles");
  library.find(count, "StyleManager_numSystemStyle");
  library.find(createMutable, "StyleManager_createMutableStyle");
  bool used = true;
  for (const KoStyleChar* appID : {KOSTYLE_TEXT("one"), KOSTYLE_TEXT("two")}) {
    KoStyleManager* const manager =
        create(appID, directory, directory, nullptr, 0, nullptr, 0, nullptr);
    // None is here from the time before.
    used = used && count(manager) == 0 && read(manager) == KOSTYLE_OK && count(manager) > 0 &&
           createMutable(manager);
  }
  library.unload();
  return used;
}

}  // namespace

int main(int argc, char* argv[]) {
  if (argc != 2) return 2;
  const kostyle::NativeString directory = kostyle::fromPath(argv[1]);
  for (int round = 0; round < 3; ++round) {
    if (!loadUseAndUnload(directory.c_str())) return 1;
  }
  return 0;
}
