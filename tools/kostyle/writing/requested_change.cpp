#include "writing/requested_change.h"

#include <fmt/core.h>

#include <algorithm>
#include <set>
#include <utility>

#include "basics/failure.h"
#include "checking/near_name.h"
#include "writing/parameter_argument.h"
#include "writing/value_argument.h"

namespace tool {
namespace {

// An argument that becomes a part of the style.
Text content(const std::string& argument) {
  if (!isUtf8(argument)) throw WrongUse(fmt::format("{}: not valid UTF-8", argument));
  return fromUtf8(argument);
}

template <typename Element>
bool take(std::vector<Element>& elements, const Element& element) {
  const auto found = std::find(elements.begin(), elements.end(), element);
  if (found == elements.end()) return false;
  elements.erase(found);
  return true;
}

template <typename Element>
bool contains(const std::vector<Element>& elements, const Element& element) {
  return std::find(elements.begin(), elements.end(), element) != elements.end();
}

// The end of a message about a name that is not there.
std::string meant(const std::string& name, const std::vector<Text>& known) {
  return nearNameHint(fromUtf8(name), {known.begin(), known.end()});
}

struct WorkingEffect {
  EffectContent content;
  bool isNew;
  EffectChange change;
  std::set<Text> assigned;

  ParameterContent* find(const Text& name) {
    for (ParameterContent& parameter : content.parameters)
      if (parameter.name == name) return &parameter;
    return nullptr;
  }
  std::vector<Text> names() const {
    std::vector<Text> names;
    for (const ParameterContent& parameter : content.parameters) names.push_back(parameter.name);
    return names;
  }
};

class Request {
 public:
  Request(const StyleEdits& edits, const StyleContent& before) : edits_(edits), result_{{}, before} {
    for (std::size_t chain = 0; chain < chains().size(); ++chain)
      for (const EffectContent& effect : before.chains[chain])
        effects_[chain].push_back({effect, false, {effect.id, {}, {}, {}}, {}});
  }

  RequestedChange resolve() {
    setName();
    changeLanguages();
    for (std::size_t list = 0; list < textLists().size(); ++list) changeTexts(list);
    for (std::size_t chain = 0; chain < chains().size(); ++chain) changeEffects(chain);
    for (const std::string& argument : edits_.deletedParameters) deleteParameter(argument);
    for (const std::string& argument : edits_.parameters) assignParameter(argument);
    takeOverEffects();
    return std::move(result_);
  }

 private:
  void setName() {
    if (!edits_.name) return;
    Text name = content(*edits_.name);
    if (name == result_.after.name && !name.empty()) return;
    result_.after.name = name;
    result_.change.name = std::move(name);
  }

  void changeLanguages() {
    std::vector<int>& languages = result_.after.languages;
    for (const int language : edits_.deletedLanguages)
      if (!take(languages, language)) throw Refused(fmt::format("language {} is not there", language));
    for (const int language : edits_.languages) {
      if (contains(languages, language))
        throw Refused(fmt::format("language {} is there already", language));
      languages.push_back(language);
    }
    result_.change.languages = {edits_.deletedLanguages, edits_.languages};
  }

  void changeTexts(std::size_t list) {
    const char* const option = textLists()[list].option;
    std::vector<Text>& texts = result_.after.texts[list];
    ListChange<Text>& change = result_.change.texts[list];
    for (const std::string& argument : edits_.deletedTexts[list]) {
      change.removed.push_back(content(argument));
      if (!take(texts, change.removed.back()))
        throw Refused(
            fmt::format("{} {} is not there{}", option, inQuotes(argument), meant(argument, texts)));
    }
    for (const std::string& argument : edits_.texts[list]) {
      change.added.push_back(content(argument));
      if (contains(texts, change.added.back())) refuseAsPresent(option, change.added.back());
      texts.push_back(change.added.back());
    }
  }

  void changeEffects(std::size_t chain) {
    std::vector<WorkingEffect>& effects = effects_[chain];
    const auto find = [&](const Text& id) {
      return std::find_if(effects.begin(), effects.end(),
                          [&](const WorkingEffect& effect) { return effect.content.id == id; });
    };
    for (const std::string& argument : edits_.deletedEffects[chain]) {
      const auto found = find(content(argument));
      if (found == effects.end())
        throw Refused(fmt::format("{} {} is not there{}", chains()[chain].option, inQuotes(argument),
                                  meant(argument, idsOf(chain))));
      result_.change.chains[chain].removed.push_back(found->content.id);
      effects.erase(found);
    }
    for (const std::string& argument : edits_.effects[chain]) {
      const Text id = content(argument);
      if (find(id) != effects.end()) refuseAsPresent(chains()[chain].option, id);
      effects.push_back({{id, {}}, true, {}, {}});
    }
  }

  std::vector<Text> idsOf(std::size_t chain) const {
    std::vector<Text> ids;
    for (const WorkingEffect& effect : effects_[chain]) ids.push_back(effect.content.id);
    return ids;
  }

  // The effect that an argument names, which is cut down to the rest.
  WorkingEffect& takeEffect(std::string& argument) {
    std::vector<NamedEffect> names;
    std::vector<WorkingEffect*> found;
    for (std::size_t chain = 0; chain < chains().size(); ++chain)
      for (WorkingEffect& effect : effects_[chain]) {
        names.push_back({chains()[chain].name, toUtf8(effect.content.id)});
        found.push_back(&effect);
      }
    if (const auto reference = findEffect(argument, names)) {
      argument = reference->rest;
      return *found[reference->effect];
    }
    return takeNewEffect(argument);
  }

  // audio:EFFECT.NAME, of an effect that is to be added.
  WorkingEffect& takeNewEffect(std::string& argument) {
    const std::string path = argument.substr(0, argument.find('='));
    const std::size_t dot = path.find('.');
    std::string id = path.substr(0, dot);
    for (std::size_t chain = 0; chain < chains().size(); ++chain) {
      const std::string prefix = std::string(chains()[chain].name) + ':';
      if (id.compare(0, prefix.size(), prefix) != 0) continue;
      id.erase(0, prefix.size());
      if (!edits_.add || id.empty() || dot == path.npos || path.find('.', dot + 1) != path.npos) break;
      argument.erase(0, dot + 1);
      effects_[chain].push_back({{content(id), {}}, true, {}, {}});
      return effects_[chain].back();
    }
    std::vector<Text> ids = idsOf(0);
    for (Text& other : idsOf(1)) ids.push_back(std::move(other));
    throw Refused(
        fmt::format("{}: the style has no such effect{}{}", argument, meant(id, ids),
                    edits_.add ? "; to add it, name its chain: audio:EFFECT.NAME=VALUE" : ""));
  }

  void deleteParameter(const std::string& argument) {
    std::string rest = argument;
    WorkingEffect& effect = takeEffect(rest);
    const Text name = content(rest);
    ParameterContent* const parameter = effect.find(name);
    if (!parameter)
      throw Refused(
          fmt::format("{}: the effect has no such parameter{}", argument, meant(rest, effect.names())));
    effect.content.parameters.erase(effect.content.parameters.begin() +
                                    (parameter - effect.content.parameters.data()));
    effect.change.removed.push_back(name);
  }

  static Value assignedValue(const std::string& argument, const Assignment& assignment,
                             const ParameterContent* present) {
    try {
      if (!assignment.type.empty()) return valueOfType(assignment.value, assignment.type);
      return present ? valueLike(present->value, assignment.value) : valueByForm(assignment.value);
    } catch (const WrongUse& error) {
      throw WrongUse(fmt::format("{}: {}", argument, error.what()));
    } catch (const Refused& error) {
      throw Refused(fmt::format("{}: {}", argument, error.what()));
    }
  }

  void assignParameter(const std::string& argument) {
    content(argument);
    std::string rest = argument;
    WorkingEffect& effect = takeEffect(rest);
    const Assignment assignment = parseAssignment(rest);
    const Text name = fromUtf8(assignment.name);
    if (!effect.assigned.insert(name).second)
      throw WrongUse(fmt::format("{}: the parameter is given twice", argument));
    if (name.empty()) throw Refused(fmt::format("{}: the parameter's name is empty", argument));
    ParameterContent* const present = effect.find(name);
    const Value value = assignedValue(argument, assignment, present);
    if (present) {
      if (areSame(present->value, value)) return;
      present->value = value;
      effect.change.replaced.push_back({name, value});
      return;
    }
    // One that was deleted before keeps its place.
    const bool wasThere = take(effect.change.removed, name);
    if (!wasThere && !effect.isNew && !edits_.add)
      throw Refused(fmt::format("{}: the effect has no such parameter{}; --add adds it", argument,
                                meant(assignment.name, effect.names())));
    (wasThere ? effect.change.replaced : effect.change.added).push_back({name, value});
    effect.content.parameters.push_back({name, value});
  }

  void takeOverEffects() {
    for (std::size_t chain = 0; chain < chains().size(); ++chain) {
      ChainChange& change = result_.change.chains[chain];
      result_.after.chains[chain].clear();
      for (WorkingEffect& effect : effects_[chain]) {
        result_.after.chains[chain].push_back(effect.content);
        const EffectChange& own = effect.change;
        if (effect.isNew) {
          change.added.push_back(effect.content);
        } else if (!own.removed.empty() || !own.replaced.empty() || !own.added.empty()) {
          change.changed.push_back(own);
        }
      }
    }
  }

  const StyleEdits& edits_;
  RequestedChange result_;
  std::array<std::vector<WorkingEffect>, std::tuple_size_v<Chains>> effects_;
};

}  // namespace

RequestedChange requestedChange(const StyleEdits& edits, const StyleContent& before) {
  return Request(edits, before).resolve();
}

void refuseLanguage(int language) {
  throw Refused(fmt::format("language {} is refused: not {} to {}", language, Style_minLangID(),
                            Style_maxLangID()));
}

void refuseAsPresent(const char* option, TextView text) {
  throw Refused(fmt::format("{} {} is there already", option, inQuotes(toUtf8(text))));
}

void refuseText(const TextList& list, TextView text) {
  throw Refused(fmt::format("{} {} is refused: {}", list.option, inQuotes(toUtf8(text)), list.mistake));
}

void refuseEffect(const Chain& chain, TextView id) {
  throw Refused(fmt::format("{} {} is refused: empty", chain.option, inQuotes(toUtf8(id))));
}

}  // namespace tool
