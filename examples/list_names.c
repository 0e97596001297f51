/* Prints the names of the styles in a directory: list_names DIRECTORY */
#include <kostyle/kostyle.h>

#include "example_text.h" /* pathFromArgument, printText */

int EXAMPLE_MAIN(int argc, ExampleArgument* argv[]) {
  KoStyleChar directory[4096];
  if (argc != 2 || !pathFromArgument(argv[1], directory, 4096)) return 2;

  int error;
  KoStyleManager* manager =
      CreateStyleManager(KOSTYLE_TEXT("list-names"), directory, directory, NULL, 0, NULL, 0, &error);
  if (!manager) return fprintf(stderr, "no manager: code %d\n", error), 1;
  StyleManager_readSystemStyles(manager);

  KoStyleStyle* style = StyleManager_systemStyle(manager, 0);
  for (; style; style = SystemStyle_next(style)) printText(stdout, Style_name(style));

  KoStyleCreationResult* result = StyleManager_systemStyleCreationResult(manager, 0);
  for (; result; result = StyleCreationResult_next(result)) {
    if (StyleCreationResult_error(result) == KOSTYLE_OK) continue;
    fprintf(stderr, "refused with code %d: ", StyleCreationResult_error(result));
    printText(stderr, StyleCreationResult_filePath(result));
  }
  StyleManager_destroy(manager);
  return 0;
}
