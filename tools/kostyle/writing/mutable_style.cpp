#include "writing/mutable_style.h"

#include <fmt/core.h>

#include <algorithm>

#include "basics/failure.h"
#include "reading/parameter_value.h"
#include "writing/requested_change.h"

namespace tool {
namespace {

void fillEffect(KoStyleEffect* effect, const EffectContent& content) {
  for (const ParameterContent& parameter : content.parameters) {
    KoStyleParameter* const added = MutableEffect_addParameter(effect, parameter.name.c_str());
    if (!added)
      throw Refused(fmt::format("parameter {} is refused: empty, or there already",
                                inQuotes(toUtf8(parameter.name))));
    setValue(added, parameter.value);
  }
}

}  // namespace

void MutableStyle::setName(const Text& name) {
  if (!MutableStyle_setName(style_, name.c_str()))
    throw Refused(fmt::format("name {} is refused: not 1 to {} UTF-16 units long",
                              inQuotes(toUtf8(name)), static_cast<int>(KOSTYLE_MAX_NAME_LENGTH)));
}

void MutableStyle::fill(const StyleContent& content) {
  for (const int language : content.languages)
    if (!MutableStyle_addLanguage(style_, language)) refuseLanguage(language);
  for (std::size_t list = 0; list < textLists().size(); ++list)
    addTexts(textLists()[list], content.texts[list]);
  for (std::size_t chain = 0; chain < chains().size(); ++chain)
    for (const EffectContent& effect : content.chains[chain]) {
      const std::size_t end = chains()[chain].count(style_);
      KoStyleEffect* const added = chains()[chain].insert(style_, end, effect.id.c_str());
      if (!added) refuseEffect(chains()[chain], effect.id);
      fillEffect(added, effect);
    }
}

void MutableStyle::addTexts(const TextList& list, const std::vector<Text>& texts) {
  for (const Text& text : texts) {
    if (list.add(style_, text.c_str())) continue;
    if (std::count(texts.begin(), texts.end(), text) > 1) refuseAsPresent(list.option, text);
    refuseText(list, text);
  }
}

void requireTaken(const StyleChange& change) {
  StyleContent added;
  added.languages = change.languages.added;
  for (std::size_t list = 0; list < change.texts.size(); ++list)
    added.texts[list] = change.texts[list].added;
  for (std::size_t chain = 0; chain < change.chains.size(); ++chain)
    added.chains[chain] = change.chains[chain].added;
  const TemporaryDirectory directory;
  StyleDirectories directories;
  directories.user = directory.path();
  const Manager manager(directories);
  MutableStyle style(manager);
  if (change.name) style.setName(*change.name);
  style.fill(added);
}

}  // namespace tool
