/*
 * A host for Windows without a C runtime, so that it can be linked as MSVC does where MSVC is not:
 * prints the names of the styles in the current directory.
 */
#include <kostyle/helpers.h>
#include <kostyle/kostyle.h>

enum { STANDARD_OUTPUT = -11, CAPACITY = 4096 };

__declspec(dllimport) void* GetStdHandle(unsigned long which);
__declspec(dllimport) int WriteFile(void* file, const void* bytes, unsigned long size,
                                    unsigned long* written, void* overlapped);
__declspec(dllimport) unsigned long GetCurrentDirectoryW(unsigned long capacity, wchar_t* directory);
__declspec(dllimport) void ExitProcess(unsigned int code);

/* Static, since without the runtime a frame must be small. */
static KoStyleChar directory[CAPACITY];
static char line[CAPACITY];
/* Linkers of MSVC's kind ask for it where numbers are floating. */
int _fltused = 1;

void start(void) {
  void* const output = GetStdHandle((unsigned long)STANDARD_OUTPUT);
  int error = 0;
  unsigned long written = 0;
  GetCurrentDirectoryW(CAPACITY, directory);
  KoStyleManager* manager =
      CreateStyleManager(KOSTYLE_TEXT("host"), directory, directory, NULL, 0, NULL, 0, &error);
  if (!manager) ExitProcess(1);
  StyleManager_readSystemStyles(manager);
  KoStyleStyle* style = StyleManager_systemStyle(manager, 0);
  for (; style; style = SystemStyle_next(style)) {
    size_t length = KoStyle_utf8FromText(Style_name(style), line, CAPACITY - 1);
    if (length > CAPACITY - 2) ExitProcess(2);
    line[length] = '\n';
    if (!WriteFile(output, line, (unsigned long)length + 1, &written, NULL)) ExitProcess(3);
  }
  StyleManager_destroy(manager);
  ExitProcess(0);
}
