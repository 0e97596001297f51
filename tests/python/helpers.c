/* The inline functions of helpers.h as functions of a library, for comparing. */
#include <kostyle/helpers.h>

#if defined(_WIN32)
#define EXPORT __declspec(dllexport)
#else
#define EXPORT __attribute__((visibility("default")))
#endif

EXPORT const char* codeText(int code) { return KoStyle_codeText(code); }

EXPORT const char* parseErrorText(int parseError) { return KoStyle_parseErrorText(parseError); }

EXPORT void findLine(const void* content, size_t size, uint64_t offset, size_t* line, size_t* column) {
  KoStyle_findLine(content, size, offset, line, column);
}

EXPORT size_t textFromPath(const char* path, KoStyleChar* buffer, size_t capacity) {
  return KoStyle_textFromPath(path, buffer, capacity);
}
