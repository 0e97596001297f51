#include "writing/mutable_style.h"

#include <fmt/format.h>

#include <set>
#include <utility>

#include "basics/failure.h"
#include "basics/text.h"
#include "reading/parameter_value.h"

namespace tool {
namespace {

// An argument that becomes a part of the style.
Text content(const std::string& argument) {
  if (!isUtf8(argument)) throw WrongUse(fmt::format("{}: not valid UTF-8", argument));
  return fromUtf8(argument);
}

KoStyleParameter* findParameter(KoStyleEffect* effect, TextView name) {
  for (std::size_t i = 0; i < Effect_numParameter(effect); ++i) {
    KoStyleParameter* parameter = MutableEffect_parameter(effect, i);
    if (name == Parameter_name(parameter)) return parameter;
  }
  return nullptr;
}

Refused notCopied(const char* what, const KoStyleChar* text) {
  return Refused(
      fmt::format("{} {} of the stored style cannot be copied: texts end at U+0000, and without the "
                  "rest it is refused or there already",
                  what, inQuotes(toUtf8(text))));
}

void copyParameters(KoStyleEffect* from, KoStyleEffect* to) {
  for (std::size_t i = 0; i < Effect_numParameter(from); ++i) {
    KoStyleParameter* parameter = Effect_parameter(from, i);
    const KoStyleChar* name = Parameter_name(parameter);
    KoStyleParameter* copy = MutableEffect_addParameter(to, name);
    if (!copy) throw notCopied("parameter", name);
    setValue(copy, valueOf(parameter));
  }
}

}  // namespace

void MutableStyle::copy(KoStyleStyle* stored) {
  // The name is empty when it was too long to be read.
  MutableStyle_setName(style_, Style_name(stored));
  for (const int language : languages(stored)) addLanguage(language);
  for (const TextList& list : textLists())
    for (std::size_t i = 0; i < list.count(stored); ++i)
      if (!list.add(style_, list.at(stored, i))) throw notCopied(list.option, list.at(stored, i));
  for (const Chain& chain : chains())
    for (std::size_t i = 0; i < chain.count(stored); ++i) {
      KoStyleEffect* effect = chain.stored(stored, i);
      KoStyleEffect* copy = chain.insert(style_, i, Effect_id(effect));
      if (!copy) throw notCopied(chain.option, Effect_id(effect));
      copyParameters(effect, copy);
    }
}

void MutableStyle::apply(const StyleEdits& edits) {
  if (edits.name && !MutableStyle_setName(style_, content(*edits.name).c_str()))
    throw Refused(fmt::format("name {} is refused: not 1 to {} UTF-16 units long",
                              inQuotes(*edits.name), static_cast<int>(KOSTYLE_MAX_NAME_LENGTH)));
  for (const int language : edits.deletedLanguages)
    if (!MutableStyle_deleteLanguage(style_, language))
      throw Refused(fmt::format("language {} is not there", language));
  for (const int language : edits.languages) addLanguage(language);
  for (std::size_t i = 0; i < textLists().size(); ++i) {
    for (const auto& text : edits.deletedTexts[i]) deleteText(textLists()[i], text);
    for (const auto& text : edits.texts[i]) addText(textLists()[i], content(text).c_str());
  }
  for (std::size_t i = 0; i < chains().size(); ++i) {
    for (const auto& id : edits.deletedEffects[i]) deleteEffect(chains()[i], id);
    for (const auto& id : edits.effects[i]) appendEffect(chains()[i], content(id).c_str());
  }
  for (const auto& argument : edits.deletedParameters) deleteParameter(argument);
  assignParameters(edits.parameters);
}

void MutableStyle::addLanguage(int language) {
  if (!MutableStyle_addLanguage(style_, language))
    throw Refused(fmt::format("language {} is refused: not {} to {}, or there already", language,
                              Style_minLangID(), Style_maxLangID()));
}

void MutableStyle::addText(const TextList& list, const KoStyleChar* text) {
  if (!list.add(style_, text))
    throw Refused(fmt::format("{} {} is refused: {}, or there already", list.option,
                              inQuotes(toUtf8(text)), list.mistake));
}

void MutableStyle::deleteText(const TextList& list, const std::string& text) {
  if (!list.remove(style_, content(text).c_str()))
    throw Refused(fmt::format("{} {} is not there", list.option, inQuotes(text)));
}

KoStyleEffect* MutableStyle::appendEffect(const Chain& chain, const KoStyleChar* id) {
  KoStyleEffect* effect = chain.insert(style_, chain.count(style_), id);
  if (!effect)
    throw Refused(
        fmt::format("{} {} is refused: empty, or there already", chain.option, inQuotes(toUtf8(id))));
  return effect;
}

void MutableStyle::deleteEffect(const Chain& chain, const std::string& id) {
  for (const NamedEffect& effect : effects())
    if (effect.chain == &chain && effect.id == id) return MutableEffect_destroy(effect.handle);
  throw Refused(fmt::format("{} {} is not there", chain.option, inQuotes(id)));
}

void MutableStyle::deleteParameter(const std::string& argument) {
  const auto [effect, name] = findEffect(argument, effects());
  KoStyleParameter* parameter = findParameter(effect, content(name));
  if (!parameter) throw Refused(fmt::format("{}: the effect has no such parameter", argument));
  MutableParameter_destroy(parameter);
}

void MutableStyle::assignParameters(const std::vector<std::string>& arguments) {
  const std::vector<NamedEffect> candidates = effects();
  std::set<std::pair<KoStyleEffect*, std::string>> assigned;
  for (const std::string& argument : arguments) {
    content(argument);
    const auto [effect, rest] = findEffect(argument, candidates);
    const Assignment assignment = parseAssignment(rest);
    if (!assigned.emplace(effect, assignment.name).second)
      throw WrongUse(fmt::format("{}: the parameter is given twice", argument));
    const Text name = fromUtf8(assignment.name);
    KoStyleParameter* parameter = findParameter(effect, name);
    if (!parameter) parameter = MutableEffect_addParameter(effect, name.c_str());
    if (!parameter) throw Refused(fmt::format("{}: the parameter's name is empty", argument));
    setValue(parameter, assignment.value);
  }
}

std::vector<NamedEffect> MutableStyle::effects() const {
  std::vector<NamedEffect> effects;
  for (const Chain& chain : chains())
    for (std::size_t i = 0; i < chain.count(style_); ++i) {
      KoStyleEffect* effect = chain.mutableEffect(style_, i);
      effects.push_back({&chain, toUtf8(Effect_id(effect)), effect});
    }
  return effects;
}

}  // namespace tool
