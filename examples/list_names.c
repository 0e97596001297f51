/* Prints the names of the styles in a directory, and what was refused: list_names DIRECTORY */
#include <kostyle/helpers.h>
#include <kostyle/kostyle.h>
#include <stdio.h>
#include <stdlib.h>

static int listNames(const KoStyleChar* directory) {
  int code;
  KoStyleManager* manager =
      CreateStyleManager(KOSTYLE_TEXT("list-names"), directory, directory, NULL, 0, NULL, 0, &code);
  if (manager) code = StyleManager_readSystemStyles(manager);
  if (code != KOSTYLE_OK) return fprintf(stderr, "%s\n", KoStyle_codeText(code)), 1;

  char text[4096];
  KoStyleStyle* style = StyleManager_systemStyle(manager, 0);
  for (; style; style = SystemStyle_next(style)) {
    KoStyle_utf8FromText(Style_name(style), text, sizeof text);
    printf("%s\n", text);
  }

  KoStyleCreationResult* result = StyleManager_systemStyleCreationResult(manager, 0);
  for (; result; result = StyleCreationResult_next(result)) {
    if (StyleCreationResult_error(result) == KOSTYLE_OK) continue;
    KoStyle_utf8FromText(StyleCreationResult_filePath(result), text, sizeof text);
    fprintf(stderr, "%s: %s\n", text, KoStyle_codeText(StyleCreationResult_error(result)));
  }
  StyleManager_destroy(manager);
  return 0;
}

#if defined(_WIN32)
int wmain(int argc, wchar_t* argv[]) {
  KoStyleChar directory[4096]; /* absolute, as the library needs it */
  return argc == 2 && _wfullpath(directory, argv[1], 4096) ? listNames(directory) : 2;
}
#else
int main(int argc, char* argv[]) {
  KoStyleChar directory[4096];
  return argc == 2 && KoStyle_textFromPath(argv[1], directory, 4096) < 4096 ? listNames(directory) : 2;
}
#endif
