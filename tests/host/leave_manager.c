/*
 * A host that ends without destroying its manager, which the library then does: leave_manager DIRECTORY
 *
 * It must end as if it had: the exit code is that of main.
 */
#include <kostyle/kostyle.h>

#include "example_text.h"

int EXAMPLE_MAIN(int argc, ExampleArgument* argv[]) {
  KoStyleChar directory[4096];
  if (argc != 2 || !pathFromArgument(argv[1], directory, 4096)) return 2;
  KoStyleManager* manager =
      CreateStyleManager(KOSTYLE_TEXT("leave"), directory, directory, NULL, 0, NULL, 0, NULL);
  KoStyleStyle* style = StyleManager_createMutableStyle(manager);
  StyleManager_readSystemStyles(manager);
  const bool filled = MutableStyle_insertAudioEffect(style, 0, KOSTYLE_TEXT("E")) != NULL;
  return filled && StyleManager_numSystemStyle(manager) > 0 ? 0 : 1;
}
