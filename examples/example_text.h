/*
 * Text for the examples: the library's UTF-16 from a program's arguments and to its output, which is
 * UTF-8. A host that keeps UTF-16 itself needs none of this.
 */
#ifndef EXAMPLE_TEXT_H
#define EXAMPLE_TEXT_H

#include <kostyle/types.h>
#include <stdio.h>
#include <stdlib.h>

/** Writes a text and a line break to a stream; lone surrogates as U+FFFD. */
static inline void printText(FILE* stream, const KoStyleChar* text) {
  while (*text) {
    unsigned long c = *text++;
    if (c >= 0xD800 && c < 0xDC00 && *text >= 0xDC00 && *text < 0xE000) {
      c = 0x10000 + ((c - 0xD800) << 10) + (*text++ - 0xDC00UL);
    } else if (c >= 0xD800 && c < 0xE000) {
      c = 0xFFFD;
    }
    if (c < 0x80) {
      putc((int)c, stream);
      continue;
    }
    if (c < 0x800) {
      putc((int)(0xC0 | c >> 6), stream);
    } else if (c < 0x10000) {
      putc((int)(0xE0 | c >> 12), stream);
    } else {
      putc((int)(0xF0 | c >> 18), stream);
      putc((int)(0x80 | (c >> 12 & 0x3F)), stream);
    }
    if (c >= 0x800) putc((int)(0x80 | (c >> 6 & 0x3F)), stream);
    putc((int)(0x80 | (c & 0x3F)), stream);
  }
  putc('\n', stream);
}

/*
 * pathFromArgument() makes a path of an argument, of valid UTF-8 outside Windows: true, or false when
 * it does not fit. On Windows the path becomes absolute, as the library needs it.
 */
#if defined(_WIN32)

#define EXAMPLE_MAIN wmain
typedef wchar_t ExampleArgument;

static inline bool pathFromArgument(const wchar_t* argument, KoStyleChar* path, size_t capacity) {
  return _wfullpath(path, argument, capacity) != NULL;
}

#else

#define EXAMPLE_MAIN main
typedef char ExampleArgument;

static inline bool pathFromArgument(const char* argument, KoStyleChar* path, size_t capacity) {
  size_t length = 0;
  while (*argument) {
    const unsigned char lead = (unsigned char)*argument++;
    const int trails = lead < 0xC0 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
    unsigned long c = trails ? lead & (0x3FU >> trails) : lead;
    for (int i = 0; i < trails && *argument; ++i) c = c << 6 | ((unsigned char)*argument++ & 0x3FU);
    if (length + 2 >= capacity) return false;
    if (c >= 0x10000) {
      path[length++] = (KoStyleChar)(0xD800 + ((c - 0x10000) >> 10));
      c = 0xDC00 + ((c - 0x10000) & 0x3FF);
    }
    path[length++] = (KoStyleChar)c;
  }
  path[length] = 0;
  return true;
}

#endif

#endif
