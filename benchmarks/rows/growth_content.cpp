// How the cost of one large file grows: reading it, and walking its effects and parameters.
#include "peers/library.h"
#include "rows/growth.h"
#include "rows/readers.h"
#include "rows/visiting.h"

namespace bench {
namespace {

// Reads one file and counts its elements as the operations.
class ReadingElements : public Reading<Library> {
 public:
  ReadingElements(std::filesystem::path directory, std::size_t elements)
      : Reading(std::move(directory), 1, elements * heapForElement), elements_(elements) {}

  Done run() override {
    Reading::run();
    return {elements_};
  }

 private:
  static constexpr std::size_t heapForElement = 1U << 10;
  std::size_t elements_;
};

KoStyleStyle* onlyStyle(KoStyleManager* manager) { return StyleManager_systemStyle(manager, 0); }
KoStyleEffect* onlyEffect(KoStyleManager* manager) { return Style_midiEffect(onlyStyle(manager), 0); }

void addEffectVisits(Rows& rows, const std::filesystem::path& directory, std::size_t size) {
  const auto add = [&](const char* work, const Visit& visit) {
    addRow<Visiting>(rows, growthName(work, size), Runs::many, directory, size, visit);
  };
  add("next/effects", [](KoStyleManager* manager) {
    return walkLength(Style_audioEffect(onlyStyle(manager), 0), AudioEffect_next);
  });
  add("prev/effects", [=](KoStyleManager* manager) {
    return walkLength(Style_audioEffect(onlyStyle(manager), size - 1), AudioEffect_prev);
  });
  addRow<Asking<KoStyleStyle, KoStyleEffect>>(rows, growthName("has/effects", size), Runs::many,
                                              directory, size, onlyStyle, Style_audioEffect,
                                              Style_hasAudioEffect);
}

void addParameterVisits(Rows& rows, const std::filesystem::path& directory, std::size_t size) {
  const auto add = [&](const char* work, const Visit& visit) {
    addRow<Visiting>(rows, growthName(work, size), Runs::many, directory, size, visit);
  };
  add("next/parameters", [](KoStyleManager* manager) {
    return walkLength(Effect_parameter(onlyEffect(manager), 0), Parameter_next);
  });
  add("prev/parameters", [=](KoStyleManager* manager) {
    return walkLength(Effect_parameter(onlyEffect(manager), size - 1), Parameter_prev);
  });
  addRow<Asking<KoStyleEffect, KoStyleParameter>>(rows, growthName("has/parameters", size), Runs::many,
                                                  directory, size, onlyEffect, Effect_parameter,
                                                  Effect_hasParameter);
}

std::filesystem::path folder(const Settings& settings, const std::string& content, std::size_t size) {
  return settings.data / "growth" / content / std::to_string(size);
}

}  // namespace

void addGrowthReadingRows(Rows& rows, const Settings& settings) {
  for (const std::size_t size : settings.sizes) {
    for (const char* content :
         {"effects", "repeated-effect", "parameters-sorted", "parameters-reversed", "parameters-random",
          "repeated-parameter", "values", "repeated-value"}) {
      addRow<ReadingElements>(rows, growthName(std::string("read/") + content, size), Runs::many,
                              folder(settings, content, size), size);
    }
  }
}

void addGrowthWalkingRows(Rows& rows, const Settings& settings) {
  for (const std::size_t size : settings.sizes) {
    addEffectVisits(rows, folder(settings, "effects", size), size);
    addParameterVisits(rows, folder(settings, "parameters-random", size), size);
  }
}

}  // namespace bench
