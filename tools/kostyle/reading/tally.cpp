#include "reading/tally.h"

#include <set>
#include <utility>

#include "reading/attributes.h"
#include "reading/style_content.h"

namespace tool {
namespace {

using Things = std::set<std::vector<Value>>;

constexpr std::size_t genreList = 2;  // in textLists()

Things genresOf(const StyleContent& style) {
  Things genres;
  for (const Text& genre : style.texts[genreList]) genres.insert({genre});
  return genres;
}

Things languagesOf(const StyleContent& style) {
  Things languages;
  for (const int language : style.languages) languages.insert({language});
  return languages;
}

template <typename Visit>
void forEachEffect(const StyleContent& style, Visit visit) {
  for (std::size_t chain = 0; chain < style.chains.size(); ++chain)
    for (const EffectContent& effect : style.chains[chain])
      visit(effect, fromUtf8(chains()[chain].name));
}

Things effectsOf(const StyleContent& style) {
  Things effects;
  forEachEffect(style, [&](const EffectContent& effect, const Text& chain) {
    effects.insert({effect.id, chain});
  });
  return effects;
}

Things parametersOf(const StyleContent& style) {
  Things parameters;
  forEachEffect(style, [&](const EffectContent& effect, const Text& chain) {
    for (const ParameterContent& parameter : effect.parameters)
      parameters.insert({parameter.name, effect.id, chain, fromUtf8(typeText(parameter.value))});
  });
  return parameters;
}

void add(Tally& tally, const Things& things) {
  for (const auto& thing : things) ++tally.styles[thing];
}

}  // namespace

std::vector<Tally> talliesOf(const std::vector<KoStyleStyle*>& styles) {
  std::vector<Tally> tallies{{"genres", {"genre"}},
                             {"languages", {"language"}},
                             {"effects", {"effect", "chain"}},
                             {"parameters", {"parameter", "effect", "chain", "type"}}};
  for (KoStyleStyle* style : styles) {
    const StyleContent content = contentOf(style);
    std::size_t next = 0;
    for (const Things& things :
         {genresOf(content), languagesOf(content), effectsOf(content), parametersOf(content)})
      add(tallies[next++], things);
  }
  return tallies;
}

}  // namespace tool
