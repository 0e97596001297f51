#include "rows/plain_copy.h"

#include <algorithm>
#include <memory>
#include <string>

namespace bench {

template <class Type>
Type* PlainCopy::newArray(std::size_t count) {
  auto* const array = static_cast<Type*>(memory_.allocate(count * sizeof(Type), alignof(Type)));
  std::uninitialized_value_construct_n(array, count);
  return array;
}

const KoStyleChar* PlainCopy::copyText(const KoStyleChar* text) {
  const std::size_t units = std::char_traits<KoStyleChar>::length(text) + 1;
  auto* const copy = newArray<KoStyleChar>(units);
  std::copy_n(text, units, copy);
  return copy;
}

template <class Count, class At>
PlainTexts PlainCopy::copyList(KoStyleStyle* style, Count count, At at) {
  const std::size_t size = count(style);
  auto* const items = newArray<const KoStyleChar*>(size);
  for (std::size_t i = 0; i < size; ++i) items[i] = copyText(at(style, i));
  return {items, size};
}

void PlainCopy::copyParameter(KoStyleParameter* source, PlainParameter& parameter) {
  parameter.name = copyText(Parameter_name(source));
  parameter.type = Parameter_type(source);
  parameter.integer = Parameter_valueInt(source);
  parameter.number = Parameter_valueFloat(source);
  parameter.text = copyText(Parameter_valueString(source));
}

void PlainCopy::copyEffect(KoStyleEffect* source, PlainEffect& effect) {
  effect.id = copyText(Effect_id(source));
  effect.count = Effect_numParameter(source);
  effect.parameters = newArray<PlainParameter>(effect.count);
  for (std::size_t i = 0; i < effect.count; ++i) {
    copyParameter(Effect_parameter(source, i), effect.parameters[i]);
    if (i > 0) effect.parameters[i - 1].next = &effect.parameters[i];
  }
}

template <class Count, class At>
PlainChain PlainCopy::copyChain(KoStyleStyle* style, Count count, At at) {
  const std::size_t size = count(style);
  auto* const effects = newArray<PlainEffect>(size);
  for (std::size_t i = 0; i < size; ++i) {
    copyEffect(at(style, i), effects[i]);
    if (i > 0) effects[i - 1].next = &effects[i];
  }
  return {effects, size};
}

void PlainCopy::copyStyle(KoStyleStyle* source, PlainStyle& style) {
  style.id = copyText(Style_id(source));
  style.name = copyText(Style_name(source));
  style.vendor = copyText(Style_vendor(source));
  style.lists[PLAIN_SINGER_GROUPS] = copyList(source, Style_numSingerGroup, Style_singerGroup);
  style.lists[PLAIN_SINGER_IDS] = copyList(source, Style_numSingerID, Style_singerID);
  style.lists[PLAIN_GENRES] = copyList(source, Style_numGenre, Style_genre);
  style.lists[PLAIN_SUB_GENRES] = copyList(source, Style_numSubGenre, Style_subGenre);
  style.lists[PLAIN_COLORS] = copyList(source, Style_numColor, Style_color);
  style.audio = copyChain(source, Style_numAudioEffect, Style_audioEffect);
  style.midi = copyChain(source, Style_numMidiEffect, Style_midiEffect);
}

PlainCopy::PlainCopy(KoStyleManager* manager) {
  styles_.count = StyleManager_numSystemStyle(manager);
  styles_.styles = newArray<PlainStyle>(styles_.count);
  for (std::size_t i = 0; i < styles_.count; ++i) {
    copyStyle(StyleManager_systemStyle(manager, i), styles_.styles[i]);
    if (i > 0) styles_.styles[i - 1].next = &styles_.styles[i];
  }
}

}  // namespace bench
