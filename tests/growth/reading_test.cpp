// Reading, walking and asking stored styles.
#include <kostyle/kostyle.h>

#include "growth/documents.h"

namespace test {
namespace {

double reading(const Host& host, int n) {
  int code = -1;
  const double cost = each(n, [&] { code = StyleManager_readSystemStyles(host.manager); });
  demand(code == KOSTYLE_OK);
  return cost;
}

template <class Write>
double readingFiles(int n, Write write) {
  const Host host;
  for (int i = 0; i < n; ++i) {
    const std::string id = write(i, n);
    writeFile(host.system / (std::to_string(i) + ".kostyle"), document(id, id));
  }
  const double cost = reading(host, n);
  demand(StyleManager_numSystemStyleCreationResult(host.manager) == static_cast<std::size_t>(n));
  return cost;
}

double readingOne(int n, const std::string& content) {
  const Host host;
  writeFile(host.system / "one.kostyle", content);
  const double cost = reading(host, n);
  demand(StyleManager_numSystemStyle(host.manager) == 1);
  return cost;
}

template <Naming naming>
double files(int n) {
  return readingFiles(n, naming);
}
template <Naming naming>
double effects(int n) {
  return readingOne(n, manyEffects(n, naming));
}
template <Naming naming>
double parameters(int n) {
  return readingOne(n, manyParameters(n, naming));
}
template <Naming naming>
double values(int n) {
  return readingOne(n, manyValues(n, naming));
}

/// The last of an indexed list.
inline std::size_t last(int n) { return static_cast<std::size_t>(n) - 1; }

double audioEffectsByNext(int n) {
  const OneStyle one(manyEffects(n, scattered));
  return walking(n, Style_audioEffect(one.style, 0), AudioEffect_next);
}
double audioEffectsByPrev(int n) {
  const OneStyle one(manyEffects(n, scattered));
  return walking(n, Style_audioEffect(one.style, last(n)), AudioEffect_prev);
}
double midiEffectsByNext(int n) {
  const OneStyle one(manyEffects(n, scattered, "midiEffect"));
  return walking(n, Style_midiEffect(one.style, 0), MidiEffect_next);
}
double midiEffectsByPrev(int n) {
  const OneStyle one(manyEffects(n, scattered, "midiEffect"));
  return walking(n, Style_midiEffect(one.style, last(n)), MidiEffect_prev);
}
double parametersByNext(int n) {
  const OneStyle one(manyParameters(n, scattered));
  return walking(n, Effect_parameter(Style_audioEffect(one.style, 0), 0), Parameter_next);
}
double parametersByPrev(int n) {
  const OneStyle one(manyParameters(n, scattered));
  return walking(n, Effect_parameter(Style_audioEffect(one.style, 0), last(n)), Parameter_prev);
}

double hasAudioEffect(int n) {
  const OneStyle one(manyEffects(n, scattered));
  int found = 0;
  const double cost = each(n, [&] {
    for (KoStyleEffect* e = Style_audioEffect(one.style, 0); e; e = AudioEffect_next(e))
      found += Style_hasAudioEffect(one.style, e);
  });
  demand(found == n);
  return cost;
}
double hasParameter(int n) {
  const OneStyle one(manyParameters(n, scattered));
  KoStyleEffect* const effect = Style_audioEffect(one.style, 0);
  int found = 0;
  const double cost = each(n, [&] {
    for (KoStyleParameter* p = Effect_parameter(effect, 0); p; p = Parameter_next(p))
      found += Effect_hasParameter(effect, p);
  });
  demand(found == n);
  return cost;
}
double parametersByIndex(int n) {
  const OneStyle one(manyParameters(n, scattered));
  KoStyleEffect* const effect = Style_audioEffect(one.style, 0);
  std::size_t i = 0;
  const double cost = each(n, [&] {
    while (Effect_parameter(effect, i)) ++i;
  });
  demand(i == static_cast<std::size_t>(n));
  return cost;
}

constexpr Operation operations[] = {
    {"EffectsSorted", effects<sorted>},
    {"EffectsScattered", effects<scattered>},
    {"EffectsOfNulls", effects<nulls>},
    {"ParametersOfNulls", parameters<nulls>},
    {"ValuesOfNulls", values<nulls>},
    {"EffectsOfOneIdentifier", effects<same>},
    {"ParametersSorted", parameters<sorted>},
    {"ParametersReversed", parameters<reversed>},
    {"ParametersScattered", parameters<scattered>},
    {"ParametersOfOneName", parameters<same>},
    {"ValuesSorted", values<sorted>},
    {"ValuesReversed", values<reversed>},
    {"ValuesScattered", values<scattered>},
    {"OneValueRepeated", values<same>},
    {"AudioEffectsByNext", audioEffectsByNext},
    {"AudioEffectsByPrev", audioEffectsByPrev},
    {"MidiEffectsByNext", midiEffectsByNext},
    {"MidiEffectsByPrev", midiEffectsByPrev},
    {"ParametersByNext", parametersByNext},
    {"ParametersByPrev", parametersByPrev},
    {"ParametersByIndex", parametersByIndex},
    {"HasAudioEffect", hasAudioEffect},
    {"HasParameter", hasParameter},
};
constexpr Operation ofFiles[] = {{"Files", files<scattered>}, {"FilesOfOneIdentifier", files<same>}};

using ReadingGrowth = Growth;
TEST_P(ReadingGrowth, StaysBelowTheBound) { expectBelowBound(); }
INSTANTIATE_TEST_SUITE_P(OneFile, ReadingGrowth, testing::ValuesIn(operations), nameOf);
INSTANTIATE_TEST_SUITE_P(Directory, ReadingGrowth, testing::ValuesIn(ofFiles), nameOf);

}  // namespace
}  // namespace test
