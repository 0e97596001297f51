#include "data/style_content.h"

#include <cstdio>
#include <string>

namespace bench {
namespace {

constexpr const char* words[] = {"attack", "band",  "chorus", "delay", "drive",  "depth", "feedback",
                                 "filter", "gain",  "high",   "level", "low",    "mix",   "mode",
                                 "phase",  "ratio", "rate",   "room",  "spread", "tone",  "width"};
constexpr const char* genres[] = {"Pop",  "Rock", "Ballad", "Folk",    "Electronic",
                                  "Jazz", "Soul", "House",  "Ambient", "Enka"};

template <std::size_t Count>
Text pick(Random& random, const char* const (&list)[Count]) {
  return toText(list[random() % Count]);
}

Text number(std::size_t value) { return toText(std::to_string(value)); }

Text hexadecimal(Random& random, int digits) {
  char buffer[17];
  std::snprintf(buffer, sizeof buffer, "%016llx", static_cast<unsigned long long>(random()));
  return toText(std::string_view(buffer, static_cast<std::size_t>(digits)));
}

// Of 14 parameters 5 are integers, 7 floats and 2 texts.
std::variant<int, float, Text> makeValue(Random& random, std::size_t index) {
  const std::size_t kind = index % 14;
  if (kind % 7 == 6) return pick(random, words) + KOSTYLE_TEXT(" ") + pick(random, words);
  if (kind % 5 < 2) return static_cast<int>(random() % 2001) - 1000;
  return static_cast<float>(random() % 6400) / 64.0F;
}

std::vector<EffectContent> makeChain(Random& random, std::size_t count, std::size_t parameters) {
  std::vector<EffectContent> chain(count);
  for (std::size_t e = 0; e < count; ++e) {
    chain[e].id = pick(random, words) + pick(random, words) + number(e);
    for (std::size_t p = 0; p < parameters; ++p) {
      chain[e].parameters.push_back({pick(random, words) + number(p), makeValue(random, p)});
    }
  }
  return chain;
}

std::vector<Text> makeList(Random& random, std::size_t count, const Text& suffix) {
  std::vector<Text> list(count);
  for (std::size_t i = 0; i < count; ++i) list[i] = pick(random, genres) + suffix + number(i);
  return list;
}

}  // namespace

StyleContent makeContent(Random& random, std::size_t styleNumber, const Shape& shape) {
  StyleContent content;
  content.id = hexadecimal(random, 16) + KOSTYLE_TEXT("-") + number(styleNumber);
  content.name = pick(random, genres) + KOSTYLE_TEXT(" ") + number(styleNumber);
  content.vendor = KOSTYLE_TEXT("Studio \u00e9t\u00e9 \u590f");
  for (std::size_t i = 0; i < shape.listValues; ++i) {
    content.languages.push_back(static_cast<int>(i % 5));
    content.singerIDs.push_back(hexadecimal(random, 16));
  }
  content.singerGroups = makeList(random, shape.listValues, KOSTYLE_TEXT(" voices "));
  content.genres = makeList(random, shape.listValues, KOSTYLE_TEXT(" "));
  content.subGenres = makeList(random, shape.listValues, KOSTYLE_TEXT(" \u97f3 "));
  content.colors = makeList(random, shape.listValues, KOSTYLE_TEXT("-colour-"));
  content.audioEffects = makeChain(random, shape.audioEffects, shape.audioParameters);
  content.midiEffects = makeChain(random, shape.midiEffects, shape.midiParameters);
  return content;
}

}  // namespace bench
