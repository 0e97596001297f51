/*
 * Styles as plain structs behind exported C functions of the same form as the library's: what a walk
 * costs at the least across the border of a shared library.
 */
#ifndef PLAIN_PLAIN_H
#define PLAIN_PLAIN_H

#include <kostyle/types.h>

#if defined(_WIN32) && defined(PLAIN_BUILD)
#define PLAIN_LINKAGE __declspec(dllexport)
#elif defined(_WIN32)
#define PLAIN_LINKAGE __declspec(dllimport)
#else
#define PLAIN_LINKAGE __attribute__((visibility("default")))
#endif
#ifdef __cplusplus
#define PLAIN_API extern "C" PLAIN_LINKAGE
#else
#define PLAIN_API extern PLAIN_LINKAGE
#endif

typedef struct PlainTexts {
  const KoStyleChar** items;
  size_t count;
} PlainTexts;

typedef struct PlainParameter {
  const KoStyleChar* name;
  int type;
  int integer;
  float number;
  const KoStyleChar* text;
  struct PlainParameter* next;
} PlainParameter;

typedef struct PlainEffect {
  const KoStyleChar* id;
  PlainParameter* parameters;
  size_t count;
  struct PlainEffect* next;
} PlainEffect;

typedef struct PlainChain {
  PlainEffect* effects;
  size_t count;
} PlainChain;

enum PlainList {
  PLAIN_SINGER_GROUPS,
  PLAIN_SINGER_IDS,
  PLAIN_GENRES,
  PLAIN_SUB_GENRES,
  PLAIN_COLORS,
  PLAIN_LISTS
};

typedef struct PlainStyle {
  const KoStyleChar* id;
  const KoStyleChar* name;
  const KoStyleChar* vendor;
  PlainTexts lists[PLAIN_LISTS];
  PlainChain audio;
  PlainChain midi;
  struct PlainStyle* next;
} PlainStyle;

typedef struct PlainStyles {
  PlainStyle* styles;
  size_t count;
} PlainStyles;

PLAIN_API size_t Plain_numStyle(PlainStyles* styles);
PLAIN_API PlainStyle* Plain_style(PlainStyles* styles, size_t index);

PLAIN_API PlainStyle* PlainStyle_next(PlainStyle* style);
PLAIN_API const KoStyleChar* PlainStyle_id(PlainStyle* style);
PLAIN_API const KoStyleChar* PlainStyle_name(PlainStyle* style);
PLAIN_API const KoStyleChar* PlainStyle_vendor(PlainStyle* style);
PLAIN_API size_t PlainStyle_numSingerGroup(PlainStyle* style);
PLAIN_API const KoStyleChar* PlainStyle_singerGroup(PlainStyle* style, size_t index);
PLAIN_API size_t PlainStyle_numSingerID(PlainStyle* style);
PLAIN_API const KoStyleChar* PlainStyle_singerID(PlainStyle* style, size_t index);
PLAIN_API size_t PlainStyle_numGenre(PlainStyle* style);
PLAIN_API const KoStyleChar* PlainStyle_genre(PlainStyle* style, size_t index);
PLAIN_API size_t PlainStyle_numSubGenre(PlainStyle* style);
PLAIN_API const KoStyleChar* PlainStyle_subGenre(PlainStyle* style, size_t index);
PLAIN_API size_t PlainStyle_numColor(PlainStyle* style);
PLAIN_API const KoStyleChar* PlainStyle_color(PlainStyle* style, size_t index);
PLAIN_API size_t PlainStyle_numAudioEffect(PlainStyle* style);
PLAIN_API PlainEffect* PlainStyle_audioEffect(PlainStyle* style, size_t index);
PLAIN_API size_t PlainStyle_numMidiEffect(PlainStyle* style);
PLAIN_API PlainEffect* PlainStyle_midiEffect(PlainStyle* style, size_t index);

PLAIN_API PlainEffect* PlainAudioEffect_next(PlainEffect* effect);
PLAIN_API PlainEffect* PlainMidiEffect_next(PlainEffect* effect);
PLAIN_API const KoStyleChar* PlainEffect_id(PlainEffect* effect);
PLAIN_API size_t PlainEffect_numParameter(PlainEffect* effect);
PLAIN_API PlainParameter* PlainEffect_parameter(PlainEffect* effect, size_t index);

PLAIN_API PlainParameter* PlainParameter_next(PlainParameter* parameter);
PLAIN_API const KoStyleChar* PlainParameter_name(PlainParameter* parameter);
PLAIN_API int PlainParameter_type(PlainParameter* parameter);
PLAIN_API int PlainParameter_valueInt(PlainParameter* parameter);
PLAIN_API float PlainParameter_valueFloat(PlainParameter* parameter);
PLAIN_API const KoStyleChar* PlainParameter_valueString(PlainParameter* parameter);

#endif
