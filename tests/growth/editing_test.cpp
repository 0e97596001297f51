// Mutable styles, their effects and parameters.
#include <kostyle/kostyle.h>

#include "growth/documents.h"

namespace test {
namespace {

/// A style set with one mutable style, and its texts made beforehand.
struct Workshop {
  Workshop(int n, Naming naming) {
    for (int i = 0; i < n; ++i) texts.push_back(text(naming(i, n)));
  }
  Host host;
  KoStyleStyle* style = StyleManager_createMutableStyle(host.manager);
  std::vector<Text> texts;
};

template <Naming naming>
double addParameters(int n) {
  const Workshop workshop(n, naming);
  KoStyleEffect* const effect = MutableStyle_insertAudioEffect(workshop.style, 0, KOSTYLE_TEXT("e"));
  return each(n, [&] {
    for (const Text& name : workshop.texts) demand(MutableEffect_addParameter(effect, name.c_str()));
  });
}

template <Naming naming>
double addGenres(int n) {
  const Workshop workshop(n, naming);
  return each(n, [&] {
    for (const Text& genre : workshop.texts) MutableStyle_addGenre(workshop.style, genre.c_str());
  });
}

/// Inserts n effects, each where `place` says for the size of the chain.
template <class Place>
double insertEffects(const Workshop& workshop, Place place) {
  return each(static_cast<int>(workshop.texts.size()), [&] {
    std::size_t size = 0;
    for (const Text& id : workshop.texts)
      demand(MutableStyle_insertAudioEffect(workshop.style, place(size++), id.c_str()));
  });
}
double insertAtTheFront(int n) {
  return insertEffects(Workshop(n, scattered), [](std::size_t) { return std::size_t{0}; });
}
double insertInTheMiddle(int n) {
  return insertEffects(Workshop(n, scattered), [](std::size_t size) { return size / 2; });
}
double insertAtTheEnd(int n) {
  return insertEffects(Workshop(n, scattered), [](std::size_t size) { return size; });
}

/// A workshop whose style has n audio effects, or one effect with n parameters.
struct Chain : Workshop {
  explicit Chain(int n) : Workshop(n, scattered) {
    for (std::size_t i = 0; i < texts.size(); ++i)
      demand(MutableStyle_insertAudioEffect(style, i, texts[i].c_str()));
  }
};
struct Parameters : Workshop {
  explicit Parameters(int n) : Workshop(n, scattered) {
    for (const Text& name : texts) demand(MutableEffect_addParameter(effect, name.c_str()));
  }
  KoStyleEffect* effect = MutableStyle_insertAudioEffect(style, 0, KOSTYLE_TEXT("e"));
};

double moveEffects(int n) {
  const Chain chain(n);
  const auto middle = static_cast<std::size_t>(n) / 2;
  return each(n, [&] {
    for (int i = 0; i < n; ++i)
      demand(MutableEffect_move(MutableStyle_audioEffect(chain.style, 0), middle));
  });
}
double destroyEffects(int n) {
  const Chain chain(n);
  return each(n, [&] {
    for (auto left = static_cast<std::size_t>(n); left > 0; --left)
      MutableEffect_destroy(MutableStyle_audioEffect(chain.style, left / 2));
  });
}
double renameParameters(int n) {
  const Parameters parameters(n);
  return each(n, [&] {
    for (std::size_t i = 0; i < static_cast<std::size_t>(n); ++i) {
      KoStyleParameter* const parameter = MutableEffect_parameter(parameters.effect, i);
      demand(MutableParameter_setName(parameter, KOSTYLE_TEXT("the same for all")));
    }
  });
}
double destroyParameters(int n) {
  const Parameters parameters(n);
  return each(n, [&] {
    for (int i = 0; i < n; ++i) MutableParameter_destroy(MutableEffect_parameter(parameters.effect, 0));
  });
}

double effectsByNext(int n) {
  const Chain chain(n);
  return walking(n, MutableStyle_audioEffect(chain.style, 0), MutableAudioEffect_next);
}
double effectsByPrev(int n) {
  const Chain chain(n);
  return walking(n, MutableStyle_audioEffect(chain.style, static_cast<std::size_t>(n) - 1),
                 MutableAudioEffect_prev);
}
double parametersByNext(int n) {
  const Parameters parameters(n);
  return walking(n, MutableEffect_parameter(parameters.effect, 0), MutableParameter_next);
}
double parametersByPrev(int n) {
  const Parameters parameters(n);
  return walking(n, MutableEffect_parameter(parameters.effect, static_cast<std::size_t>(n) - 1),
                 MutableParameter_prev);
}
double hasEffect(int n) {
  const Chain chain(n);
  int found = 0;
  const double cost = each(n, [&] {
    KoStyleEffect* effect = MutableStyle_audioEffect(chain.style, 0);
    for (; effect; effect = MutableAudioEffect_next(effect))
      found += Style_hasAudioEffect(chain.style, effect);
  });
  demand(found == n);
  return cost;
}

double createStyles(int n) {
  const Host host;
  return each(n, [&] {
    for (int i = 0; i < n; ++i) demand(StyleManager_createMutableStyle(host.manager));
  });
}
double askForAndDestroyStyles(int n) {
  const Host host;
  std::vector<KoStyleStyle*> styles;
  for (int i = 0; i < n; ++i) styles.push_back(StyleManager_createMutableStyle(host.manager));
  return each(n, [&] {
    for (KoStyleStyle* style : styles) {
      demand(StyleManager_hasMutableStyle(host.manager, style));
      MutableStyle_destroy(style);
    }
  });
}

constexpr Operation operations[] = {
    {"AddParametersSorted", addParameters<sorted>},
    {"AddParametersReversed", addParameters<reversed>},
    {"AddParametersScattered", addParameters<scattered>},
    {"AddGenresSorted", addGenres<sorted>},
    {"AddGenresReversed", addGenres<reversed>},
    {"AddGenresScattered", addGenres<scattered>},
    {"InsertAtTheFront", insertAtTheFront},
    {"InsertInTheMiddle", insertInTheMiddle},
    {"InsertAtTheEnd", insertAtTheEnd},
    {"MoveEffects", moveEffects},
    {"DestroyEffects", destroyEffects},
    {"RenameParameters", renameParameters},
    {"DestroyParameters", destroyParameters},
    {"EffectsByNext", effectsByNext},
    {"EffectsByPrev", effectsByPrev},
    {"ParametersByNext", parametersByNext},
    {"ParametersByPrev", parametersByPrev},
    {"HasEffect", hasEffect},
    {"CreateStyles", createStyles},
    {"AskForAndDestroyStyles", askForAndDestroyStyles},
};

using EditingGrowth = Growth;
TEST_P(EditingGrowth, StaysBelowTheBound) { expectBelowBound(); }
INSTANTIATE_TEST_SUITE_P(Mutable, EditingGrowth, testing::ValuesIn(operations), nameOf);

}  // namespace
}  // namespace test
