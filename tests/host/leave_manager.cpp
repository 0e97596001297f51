// A host that ends without destroying its manager, which the library then does: leave_manager DIRECTORY
//
// It must end as if it had: the exit code is that of main.
#include <kostyle/kostyle.h>
#include <kostyle/cpp/path.hpp>

int main(int argc, char* argv[]) {
  if (argc != 2) return 2;
  const kostyle::NativeString path = kostyle::fromPath(argv[1]);
  const KoStyleChar* const directory = path.c_str();
  KoStyleManager* const manager =
      CreateStyleManager(KOSTYLE_TEXT("leave"), directory, directory, nullptr, 0, nullptr, 0, nullptr);
  KoStyleStyle* const style = StyleManager_createMutableStyle(manager);
  StyleManager_readSystemStyles(manager);
  const bool filled = MutableStyle_insertAudioEffect(style, 0, KOSTYLE_TEXT("E")) != nullptr;
  return filled && StyleManager_numSystemStyle(manager) > 0 ? 0 : 1;
}
