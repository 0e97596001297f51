/*
 * KoStyle: the version that these headers belong to, and the library with them.
 *
 * docs/stability.md says what may change with which of the numbers.
 */
#ifndef KOSTYLE_VERSION_H
#define KOSTYLE_VERSION_H

/* The build reads these three definitions. */
/** Changes with what a host may notice. */
#define KOSTYLE_VERSION_MAJOR 1
/** Changes with what is added. */
#define KOSTYLE_VERSION_MINOR 0
/** Changes with corrections. */
#define KOSTYLE_VERSION_PATCH 0

#define KOSTYLE_JOIN_VERSION(major, minor, patch) #major "." #minor "." #patch
#define KOSTYLE_EXPAND_VERSION(major, minor, patch) KOSTYLE_JOIN_VERSION(major, minor, patch)
/** The three numbers as a literal: "1.0.0". */
#define KOSTYLE_VERSION_STRING \
  KOSTYLE_EXPAND_VERSION(KOSTYLE_VERSION_MAJOR, KOSTYLE_VERSION_MINOR, KOSTYLE_VERSION_PATCH)
/** The three numbers as one, for comparisons by the preprocessor: 10000 for 1.0.0. */
#define KOSTYLE_VERSION_NUMBER \
  (KOSTYLE_VERSION_MAJOR * 10000 + KOSTYLE_VERSION_MINOR * 100 + KOSTYLE_VERSION_PATCH)

#endif
