#include "reading/style_content.h"

#include "reading/attributes.h"
#include "reading/parameter_value.h"

namespace tool {
namespace {

EffectContent effectContent(KoStyleEffect* effect) {
  EffectContent content{Effect_id(effect), {}};
  for (std::size_t i = 0; i < Effect_numParameter(effect); ++i) {
    KoStyleParameter* parameter = Effect_parameter(effect, i);
    content.parameters.push_back({Parameter_name(parameter), valueOf(parameter)});
  }
  return content;
}

}  // namespace

StyleContent contentOf(KoStyleStyle* stored) {
  StyleContent content;
  content.id = Style_id(stored);
  content.name = Style_name(stored);
  content.vendor = Style_vendor(stored);
  content.languages = languages(stored);
  for (std::size_t list = 0; list < textLists().size(); ++list)
    for (std::size_t i = 0; i < textLists()[list].count(stored); ++i)
      content.texts[list].emplace_back(textLists()[list].at(stored, i));
  for (std::size_t chain = 0; chain < chains().size(); ++chain)
    for (std::size_t i = 0; i < chains()[chain].count(stored); ++i)
      content.chains[chain].push_back(effectContent(chains()[chain].stored(stored, i)));
  return content;
}

}  // namespace tool
