/*
 * The life of a user style: created, filled, saved, read again, overwritten, edited and removed.
 *
 *   edit_styles DIRECTORY
 *
 * The directory must exist and hold no styles. It serves as system and as user style directory, and is
 * left as it was.
 */
#include <kostyle/helpers.h>
#include <kostyle/kostyle.h>
#include <stdio.h>
#include <stdlib.h>

static void printStyle(const char* title, KoStyleStyle* style) {
  char name[3 * KOSTYLE_MAX_NAME_LENGTH + 1];
  KoStyle_utf8FromText(Style_name(style), name, sizeof name);
  printf("%s: %d audio effects, %d genres, %d colours, %s\n", title, (int)Style_numAudioEffect(style),
         (int)Style_numGenre(style), (int)Style_numColor(style), name);
}

/* Fills a mutable style: a name, two genres, and one audio effect with three parameters. */
static bool fill(KoStyleStyle* mutableStyle, const KoStyleChar* name, float mix) {
  if (!MutableStyle_setName(mutableStyle, name)) return false;
  if (!MutableStyle_addGenre(mutableStyle, KOSTYLE_TEXT("Ballad"))) return false;
  if (!MutableStyle_addGenre(mutableStyle, KOSTYLE_TEXT("Jazz"))) return false;
  KoStyleEffect* reverb = MutableStyle_insertAudioEffect(mutableStyle, 0, KOSTYLE_TEXT("Reverb"));
  KoStyleParameter* parameter = MutableEffect_addParameter(reverb, KOSTYLE_TEXT("mix"));
  MutableParameter_setValueFloat(parameter, mix);
  parameter = MutableEffect_addParameter(reverb, KOSTYLE_TEXT("preDelay"));
  MutableParameter_setValueInt(parameter, 20);
  parameter = MutableEffect_addParameter(reverb, KOSTYLE_TEXT("room"));
  MutableParameter_setValueString(parameter, KOSTYLE_TEXT("Chapel"));
  return parameter != NULL;
}

static KoStyleStyle* saveNew(KoStyleManager* manager) {
  KoStyleStyle* mutableStyle = StyleManager_createMutableStyle(manager);
  if (!fill(mutableStyle, KOSTYLE_TEXT("Evening"), 0.25F)) return NULL;
  int error;
  KoStyleStyle* saved = MutableStyle_save(mutableStyle, true, &error);
  if (!saved) fprintf(stderr, "not saved: %s\n", KoStyle_codeText(error));
  return saved;
}

static KoStyleStyle* overwrite(KoStyleManager* manager, KoStyleStyle* style) {
  KoStyleStyle* mutableStyle = StyleManager_createMutableStyle(manager);
  if (!fill(mutableStyle, KOSTYLE_TEXT("Late evening"), 0.5F)) return NULL;
  MutableStyle_insertAudioEffect(mutableStyle, 0, KOSTYLE_TEXT("Gate"));
  int error;
  KoStyleStyle* overwritten = MutableStyle_overwrite(mutableStyle, Style_id(style), true, &error);
  if (!overwritten) fprintf(stderr, "not overwritten: %s\n", KoStyle_codeText(error));
  return overwritten;
}

static bool edit(KoStyleStyle* style) {
  KoStylePropertyEditor* editor = UserStyle_createPropertyEditor(style);
  PropertyEditor_setStyleName(editor, KOSTYLE_TEXT("Midnight"));
  PropertyEditor_addColor(editor, KOSTYLE_TEXT("blue"));
  const bool saved = PropertyEditor_save(editor, true);
  UserStyle_destroyPropertyEditor(style);
  return saved;
}

/* The handles of a style set end when it is read again, so the style is looked up anew. */
static KoStyleStyle* readAgain(KoStyleManager* manager) {
  if (StyleManager_readUserStyles(manager) != KOSTYLE_OK) return NULL;
  return StyleManager_userStyle(manager, StyleManager_numUserStyle(manager) - 1);
}

static bool run(KoStyleManager* manager) {
  KoStyleStyle* style = saveNew(manager);
  if (!style) return false;
  printStyle("saved", style);
  style = readAgain(manager);
  if (!style) return false;
  printStyle("read again", style);
  style = overwrite(manager, style);
  if (!style) return false;
  printStyle("overwritten", style);
  if (!edit(style)) return false;
  printStyle("edited", style);
  return UserStyle_remove(style) == KOSTYLE_OK;
}

static int editStyles(const KoStyleChar* directory) {
  int error;
  KoStyleManager* manager =
      CreateStyleManager(KOSTYLE_TEXT("edit-styles"), directory, directory, NULL, 0, NULL, 0, &error);
  if (!manager) {
    fprintf(stderr, "%s\n", KoStyle_codeText(error));
    return 1;
  }
  const bool succeeded = run(manager);
  printf(succeeded ? "removed\n" : "failed\n");
  StyleManager_destroy(manager);
  return succeeded ? 0 : 1;
}

#if defined(_WIN32)
int wmain(int argc, wchar_t* argv[]) {
  KoStyleChar directory[4096]; /* absolute, as the library needs it */
  return argc == 2 && _wfullpath(directory, argv[1], 4096) ? editStyles(directory) : 2;
}
#else
int main(int argc, char* argv[]) {
  KoStyleChar directory[4096];
  return argc == 2 && KoStyle_textFromPath(argv[1], directory, 4096) < 4096 ? editStyles(directory) : 2;
}
#endif
