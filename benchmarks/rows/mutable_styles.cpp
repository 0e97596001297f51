#include "rows/mutable_styles.h"

namespace bench {
namespace {

constexpr std::size_t atEnd = SIZE_MAX;

struct SetValue {
  KoStyleParameter* parameter;
  void operator()(int value) const { MutableParameter_setValueInt(parameter, value); }
  void operator()(float value) const { MutableParameter_setValueFloat(parameter, value); }
  void operator()(const Text& value) const {
    MutableParameter_setValueString(parameter, value.c_str());
  }
};

void fill(KoStyleEffect* effect, const EffectContent& content) {
  for (const ParameterContent& parameter : content.parameters) {
    std::visit(SetValue{MutableEffect_addParameter(effect, parameter.name.c_str())}, parameter.value);
  }
}

template <class Add>
void addTexts(KoStyleStyle* style, const std::vector<Text>& texts, Add add) {
  for (const Text& text : texts) add(style, text.c_str());
}

}  // namespace

KoStyleStyle* makeMutableStyle(KoStyleManager* manager, const StyleContent& content) {
  KoStyleStyle* const style = StyleManager_createMutableStyle(manager);
  MutableStyle_setName(style, content.name.c_str());
  for (const int language : content.languages) MutableStyle_addLanguage(style, language);
  addTexts(style, content.singerGroups, MutableStyle_addSingerGroup);
  addTexts(style, content.singerIDs, MutableStyle_addSingerID);
  addTexts(style, content.genres, MutableStyle_addGenre);
  addTexts(style, content.subGenres, MutableStyle_addSubGenre);
  addTexts(style, content.colors, MutableStyle_addColor);
  for (const EffectContent& effect : content.audioEffects) {
    fill(MutableStyle_insertAudioEffect(style, atEnd, effect.id.c_str()), effect);
  }
  for (const EffectContent& effect : content.midiEffects) {
    fill(MutableStyle_insertMidiEffect(style, atEnd, effect.id.c_str()), effect);
  }
  return style;
}

std::vector<StyleContent> typicalContents(std::size_t count) {
  constexpr std::uint64_t seed = 20240303;
  Random random(seed);
  std::vector<StyleContent> contents;
  for (std::size_t i = 0; i < count; ++i) contents.push_back(makeContent(random, i, typicalShape));
  return contents;
}

}  // namespace bench
