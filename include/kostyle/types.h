/*
 * KoStyle: text, handles and linkage of the interface.
 */
#ifndef KOSTYLE_TYPES_H
#define KOSTYLE_TYPES_H

#include <stddef.h>
#include <stdint.h>

#ifndef __cplusplus
#include <stdbool.h>
#endif

/**
 * @def KOSTYLE_TEXT
 * Makes a literal of the library's text: KOSTYLE_TEXT("Pop"). C99 has no 16-bit literals; outside Windows
 * the macro needs C11 or C++11.
 */
/** One UTF-16 code unit: wchar_t on Windows; elsewhere char16_t in C++, a 16-bit integer in C. */
#if defined(_WIN32)
typedef wchar_t KoStyleChar;
#define KOSTYLE_TEXT(literal) L##literal
#elif defined(__cplusplus)
typedef char16_t KoStyleChar;
#define KOSTYLE_TEXT(literal) u##literal
#else
typedef uint_least16_t KoStyleChar;
#define KOSTYLE_TEXT(literal) u##literal
#endif

/*
 * Handles: one opaque type for each family, so that the compiler refuses a parameter where an effect
 * is expected. The library's own sources, built with KOSTYLE_BUILD, put its interfaces in their place.
 */
#if !defined(KOSTYLE_BUILD)
/** A style manager: CreateStyleManager(). */
typedef struct KoStyleManager KoStyleManager;
/** A style of any kind: system, user or mutable. */
typedef struct KoStyleStyle KoStyleStyle;
/** An effect of either chain, of a stored or of a mutable style. */
typedef struct KoStyleEffect KoStyleEffect;
/** A parameter of an effect, of a stored or of a mutable style. */
typedef struct KoStyleParameter KoStyleParameter;
/** A creation result: what reading one style file left behind. */
typedef struct KoStyleCreationResult KoStyleCreationResult;
/** The editor of a user style's name, sub-genres and colours. */
typedef struct KoStylePropertyEditor KoStylePropertyEditor;
#endif

/* KOSTYLE_API: a function that the library exports. */
#if defined(_WIN32) && !defined(KOSTYLE_BUILD)
#define KOSTYLE_IMPORT __declspec(dllimport)
#elif defined(KOSTYLE_BUILD) && defined(__GNUC__) && !defined(_WIN32)
#define KOSTYLE_IMPORT __attribute__((visibility("default")))
#else
#define KOSTYLE_IMPORT
#endif

#ifdef __cplusplus
#define KOSTYLE_API extern "C" KOSTYLE_IMPORT
#else
#define KOSTYLE_API extern KOSTYLE_IMPORT
#endif

#endif
