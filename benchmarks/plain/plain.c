#include "plain.h"

static const KoStyleChar* textAt(const PlainTexts* texts, size_t index) {
  return index < texts->count ? texts->items[index] : NULL;
}

static PlainEffect* effectAt(const PlainChain* chain, size_t index) {
  return index < chain->count ? &chain->effects[index] : NULL;
}

size_t Plain_numStyle(PlainStyles* styles) { return styles ? styles->count : SIZE_MAX; }
PlainStyle* Plain_style(PlainStyles* styles, size_t index) {
  return styles && index < styles->count ? &styles->styles[index] : NULL;
}

PlainStyle* PlainStyle_next(PlainStyle* style) { return style ? style->next : NULL; }
const KoStyleChar* PlainStyle_id(PlainStyle* style) { return style ? style->id : NULL; }
const KoStyleChar* PlainStyle_name(PlainStyle* style) { return style ? style->name : NULL; }
const KoStyleChar* PlainStyle_vendor(PlainStyle* style) { return style ? style->vendor : NULL; }

size_t PlainStyle_numSingerGroup(PlainStyle* style) {
  return style ? style->lists[PLAIN_SINGER_GROUPS].count : SIZE_MAX;
}
const KoStyleChar* PlainStyle_singerGroup(PlainStyle* style, size_t index) {
  return style ? textAt(&style->lists[PLAIN_SINGER_GROUPS], index) : NULL;
}

size_t PlainStyle_numSingerID(PlainStyle* style) {
  return style ? style->lists[PLAIN_SINGER_IDS].count : SIZE_MAX;
}
const KoStyleChar* PlainStyle_singerID(PlainStyle* style, size_t index) {
  return style ? textAt(&style->lists[PLAIN_SINGER_IDS], index) : NULL;
}

size_t PlainStyle_numGenre(PlainStyle* style) {
  return style ? style->lists[PLAIN_GENRES].count : SIZE_MAX;
}
const KoStyleChar* PlainStyle_genre(PlainStyle* style, size_t index) {
  return style ? textAt(&style->lists[PLAIN_GENRES], index) : NULL;
}

size_t PlainStyle_numSubGenre(PlainStyle* style) {
  return style ? style->lists[PLAIN_SUB_GENRES].count : SIZE_MAX;
}
const KoStyleChar* PlainStyle_subGenre(PlainStyle* style, size_t index) {
  return style ? textAt(&style->lists[PLAIN_SUB_GENRES], index) : NULL;
}

size_t PlainStyle_numColor(PlainStyle* style) {
  return style ? style->lists[PLAIN_COLORS].count : SIZE_MAX;
}
const KoStyleChar* PlainStyle_color(PlainStyle* style, size_t index) {
  return style ? textAt(&style->lists[PLAIN_COLORS], index) : NULL;
}

size_t PlainStyle_numAudioEffect(PlainStyle* style) { return style ? style->audio.count : SIZE_MAX; }
PlainEffect* PlainStyle_audioEffect(PlainStyle* style, size_t index) {
  return style ? effectAt(&style->audio, index) : NULL;
}

size_t PlainStyle_numMidiEffect(PlainStyle* style) { return style ? style->midi.count : SIZE_MAX; }
PlainEffect* PlainStyle_midiEffect(PlainStyle* style, size_t index) {
  return style ? effectAt(&style->midi, index) : NULL;
}

PlainEffect* PlainAudioEffect_next(PlainEffect* effect) { return effect ? effect->next : NULL; }
PlainEffect* PlainMidiEffect_next(PlainEffect* effect) { return effect ? effect->next : NULL; }
const KoStyleChar* PlainEffect_id(PlainEffect* effect) { return effect ? effect->id : NULL; }
size_t PlainEffect_numParameter(PlainEffect* effect) { return effect ? effect->count : SIZE_MAX; }
PlainParameter* PlainEffect_parameter(PlainEffect* effect, size_t index) {
  return effect && index < effect->count ? &effect->parameters[index] : NULL;
}

PlainParameter* PlainParameter_next(PlainParameter* parameter) {
  return parameter ? parameter->next : NULL;
}
const KoStyleChar* PlainParameter_name(PlainParameter* parameter) {
  return parameter ? parameter->name : NULL;
}
int PlainParameter_type(PlainParameter* parameter) { return parameter ? parameter->type : -1; }
int PlainParameter_valueInt(PlainParameter* parameter) { return parameter ? parameter->integer : 0; }
float PlainParameter_valueFloat(PlainParameter* parameter) { return parameter ? parameter->number : 0; }
const KoStyleChar* PlainParameter_valueString(PlainParameter* parameter) {
  return parameter ? parameter->text : NULL;
}
