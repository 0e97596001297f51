#include <kostyle/helpers.h>
#include <kostyle/kostyle.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

int main(int argc, char* argv[]) {
  KoStyleChar system[4096];
  KoStyleChar user[4096];
  KoStyleManager* manager;
  int error;
  if (argc != 3) return 2;
  KoStyle_textFromPath(argv[1], system, 4096);
  KoStyle_textFromPath(argv[2], user, 4096);
  manager = CreateStyleManager(KOSTYLE_TEXT("guide"), system, user, NULL, 0, NULL, 0, &error);
  if (!manager) return 1;
  if (StyleManager_readSystemStyles(manager) || StyleManager_readUserStyles(manager)) return 1;
  /* fragment */
  StyleManager_destroy(manager);
  return 0;
}
