// The random steps that a host takes with its mutable styles.
#pragma once

#include <gmock/gmock.h>

#include <algorithm>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "support/kostyle.h"
#include "support/random_style.h"
#include "support/reference_host.h"

namespace test {

class MutableStyleSteps : public ReferenceHost {
 public:
  /// The steps so far, one on a line.
  std::string steps() const { return steps_.str(); }
  int stepCount() const { return stepCount_; }

 protected:
  explicit MutableStyleSteps(std::uint64_t seed) : random_(seed) {}

  /// Every step that is taken names itself, before it calls the library.
  std::ostream& log(const char* name) {
    ++stepCount_;
    return steps_ << "\n  " << name;
  }

  template <class List>
  static auto at(List& list, std::size_t index) {
    return list.begin() + static_cast<std::ptrdiff_t>(index);
  }

  /// A text of a few, so that they meet again.
  Text word() {
    static const std::vector<Text> words{text(""),
                                         text("a"),
                                         text("b"),
                                         text("B"),
                                         text(u8"\U0001D11E"),
                                         text("ab"),
                                         text("Tarn"),
                                         text("a text longer than a small buffer")};
    return random_.of(words);
  }
  /// The text, or for an empty one sometimes null.
  const KoStyleChar* orNull(const Text& argument) {
    return argument.empty() && random_.oneIn(2) ? nullptr : argument.c_str();
  }

  MutableReference* anyMutable() {
    return mutables.empty() ? nullptr : &mutables[random_.below(mutables.size())];
  }
  /// A random effect of a random mutable style, and where it stands.
  struct EffectPlace {
    std::vector<EffectReference>* chain;
    std::size_t index;
    EffectReference& effect() const { return (*chain)[index]; }
  };
  std::optional<EffectPlace> anyEffect() {
    MutableReference* const style = anyMutable();
    if (!style) return std::nullopt;
    auto& chain = style->chains[random_.below(2)];
    if (chain.empty()) return std::nullopt;
    return EffectPlace{&chain, random_.below(chain.size())};
  }

  // Mutable styles.

  void createMutable() {
    if (mutables.size() >= 4) return;
    log("createMutable");
    mutables.push_back({StyleManager_createMutableStyle(manager()), {}, {}});
  }

  void forget(const MutableReference& gone) {
    mutables.erase(mutables.begin() + (&gone - mutables.data()));
  }

  void destroyMutable() {
    MutableReference* const style = anyMutable();
    if (!style || !random_.oneIn(4)) return;
    log("destroyMutable");
    KoStyleStyle* const handle = style->handle;
    MutableStyle_destroy(handle);
    forget(*style);
    EXPECT_FALSE(StyleManager_hasMutableStyle(manager(), handle));
  }

  void setName() {
    MutableReference* const style = anyMutable();
    if (!style) return;
    const Text name = random_.oneIn(8) ? Text(100 + random_.below(2), KoStyleChar('n')) : word();
    log("setName ") << utf8(name);
    const bool taken = !name.empty() && name.size() <= KOSTYLE_MAX_NAME_LENGTH;
    EXPECT_EQ(MutableStyle_setName(style->handle, orNull(name)), taken);
    if (taken) style->attributes.name = name;
  }

  /// Adds or deletes a value in a sorted list, as a list of the library takes it.
  template <class Value>
  static bool change(std::vector<Value>& list, const Value& value, bool adding) {
    const auto place = std::lower_bound(list.begin(), list.end(), value);
    const bool held = place != list.end() && *place == value;
    if (held == adding) return false;
    if (adding) {
      list.insert(place, value);
    } else {
      list.erase(place);
    }
    return true;
  }

  void editLanguage() {
    MutableReference* const style = anyMutable();
    if (!style) return;
    const int language = static_cast<int>(random_.below(7)) - 1;
    const bool adding = random_.oneIn(2);
    log(adding ? "addLanguage " : "deleteLanguage ") << language;
    const bool valid = language >= 0 && language <= 4;
    EXPECT_EQ(
        (adding ? MutableStyle_addLanguage : MutableStyle_deleteLanguage)(style->handle, language),
        valid && change(style->attributes.languages, language, adding));
  }

  void editTextList() {
    MutableReference* const style = anyMutable();
    if (!style) return;
    const std::size_t list = random_.below(5);
    const bool exact = list == singerIDs;
    const Text value =
        exact ? Text(15 + random_.below(3), KoStyleChar('a' + random_.below(3))) : word();
    const bool adding = !random_.oneIn(3);
    log(adding ? "add " : "delete ") << textLists()[list].name << ' ' << utf8(value);
    const bool valid = exact ? value.size() == KOSTYLE_SINGER_ID_LENGTH : !value.empty();
    const auto function = adding ? textLists()[list].add : textLists()[list].remove;
    EXPECT_EQ(function(style->handle, orNull(value)),
              valid && change(style->attributes.lists[list], value, adding));
  }

  // Effects and parameters.

  void insertEffect() {
    MutableReference* const style = anyMutable();
    if (!style) return;
    const std::size_t kind = random_.below(2);
    auto& chain = style->chains[kind];
    const Text id = word();
    const std::size_t index = random_.below(chain.size() + 2);
    log("insertEffect ") << kind << ' ' << index << ' ' << utf8(id);
    const bool refused = id.empty() || std::any_of(chain.begin(), chain.end(),
                                                   [&](const auto& each) { return each.id == id; });
    KoStyleEffect* const effect = chains()[kind].insert(style->handle, index, orNull(id));
    EXPECT_EQ(effect == nullptr, refused);
    if (effect) chain.insert(at(chain, std::min(index, chain.size())), {effect, id, {}});
  }

  void moveEffect() {
    const auto place = anyEffect();
    if (!place) return;
    const std::size_t target = random_.below(place->chain->size() + 2);
    log("moveEffect ") << place->index << " to " << target;
    EXPECT_TRUE(MutableEffect_move(place->effect().handle, target));
    const EffectReference moved = place->effect();
    place->chain->erase(at(*place->chain, place->index));
    place->chain->insert(at(*place->chain, std::min(target, place->chain->size())), moved);
  }

  void destroyEffect() {
    const auto place = anyEffect();
    if (!place) return;
    log("destroyEffect ") << place->index;
    MutableEffect_destroy(place->effect().handle);
    place->chain->erase(at(*place->chain, place->index));
  }

  void addParameter() {
    const auto place = anyEffect();
    if (!place) return;
    const Text name = word();
    log("addParameter ") << utf8(name);
    const bool refused = name.empty() || place->effect().hasName(name);
    KoStyleParameter* const parameter =
        MutableEffect_addParameter(place->effect().handle, orNull(name));
    EXPECT_EQ(parameter == nullptr, refused);
    if (parameter) place->effect().add(parameter, name);
  }

  ParameterReference* anyParameter() {
    const auto place = anyEffect();
    if (!place || place->effect().parameters.empty()) return nullptr;
    return &place->effect().parameters[random_.below(place->effect().parameters.size())];
  }

  void renameParameter() {
    ParameterReference* const parameter = anyParameter();
    if (!parameter) return;
    const Text name = word();
    log("renameParameter ") << utf8(parameter->value.name) << " to " << utf8(name);
    EXPECT_EQ(MutableParameter_setName(parameter->handle, orNull(name)), !name.empty());
    if (!name.empty()) parameter->value.name = name;
  }

  void setValue() {
    ParameterReference* const parameter = anyParameter();
    if (!parameter) return;
    parameter->value = randomParameter(random_, parameter->value.name);
    log("setValue of ") << utf8(parameter->value.name);
    test::setValue(parameter->handle, parameter->value);
  }

  void destroyParameter() {
    const auto place = anyEffect();
    if (!place || place->effect().parameters.empty()) return;
    auto& parameters = place->effect().parameters;
    const std::size_t index = random_.below(parameters.size());
    log("destroyParameter ") << index;
    MutableParameter_destroy(parameters[index].handle);
    parameters.erase(at(parameters, index));
  }

  Random random_;

 private:
  std::ostringstream steps_;
  int stepCount_ = 0;
};

}  // namespace test
