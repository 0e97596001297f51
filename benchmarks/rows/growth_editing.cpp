// How the cost of editing grows with what is edited.
#include <functional>
#include <stdexcept>

#include "rows/growth.h"
#include "rows/names.h"
#include "rows/visiting.h"
#include "written_folder.h"

namespace bench {
namespace {

enum class At { front, middle, end };

void insertEffects(KoStyleStyle* style, const Names& names, At at) {
  for (std::size_t i = 0; i < names.size(); ++i) {
    const std::size_t index = at == At::front ? 0 : at == At::middle ? i / 2 : i;
    MutableStyle_insertAudioEffect(style, index, names[i].c_str());
  }
}

// A manager with one mutable style, which has one MIDI effect.
struct EditedStyle {
  explicit EditedStyle(const std::filesystem::path& directory) : host(directory) {}

  Host host;
  KoStyleStyle* style = StyleManager_createMutableStyle(host.manager());
  KoStyleEffect* effect = MutableStyle_insertMidiEffect(style, 0, KOSTYLE_TEXT("e"));
};

using Edit = std::function<void(EditedStyle&, const Names&)>;

// `before` is not measured, `edit` is.
class Editing : public Workload {
 public:
  Editing(const std::filesystem::path& scratch, const Names& names, Edit before, Edit edit)
      : folder_(scratch / "growth"),
        names_(names),
        before_(std::move(before)),
        edit_(std::move(edit)) {}

  void prepare() override {
    edited_.emplace(folder_.path());
    before_(*edited_, names_);
  }
  Done run() override {
    edit_(*edited_, names_);
    return {names_.size()};
  }
  void tidy() override { edited_.reset(); }

 private:
  WrittenFolder folder_;
  Names names_;
  Edit before_;
  Edit edit_;
  std::optional<EditedStyle> edited_;
};

void nothing(EditedStyle&, const Names&) {}

Edit inserting(At at) {
  return [=](EditedStyle& w, const Names& names) { insertEffects(w.style, names, at); };
}

void addParameters(EditedStyle& w, const Names& names) {
  for (const Text& name : names) MutableEffect_addParameter(w.effect, name.c_str());
}

void moveEffects(EditedStyle& w, const Names& names) {
  for (std::size_t i = 0; i < names.size(); ++i) {
    MutableEffect_move(MutableStyle_audioEffect(w.style, 0), names.size() / 2);
  }
}

void createMutableStyles(EditedStyle& w, const Names& names) {
  for (std::size_t i = 0; i < names.size(); ++i) StyleManager_createMutableStyle(w.host.manager());
}

void walkEffects(EditedStyle& w, const Names& names) {
  if (walkLength(MutableStyle_audioEffect(w.style, 0), MutableAudioEffect_next) != names.size()) {
    throw std::runtime_error("not all effects were visited");
  }
}

void walkParameters(EditedStyle& w, const Names& names) {
  if (walkLength(MutableEffect_parameter(w.effect, 0), MutableParameter_next) != names.size()) {
    throw std::runtime_error("not all parameters were visited");
  }
}

}  // namespace

void addGrowthEditingRows(Rows& rows, const Settings& settings) {
  for (const std::size_t size : settings.sizes) {
    const auto add = [&](const char* work, Names (*names)(std::size_t), const Edit& before,
                         const Edit& edit) {
      rows.push_back({growthName(work, size), Runs::many, [=, scratch = settings.scratch] {
                        return std::make_unique<Editing>(scratch, names(size), before, edit);
                      }});
    };
    add("add-parameters/sorted", orderedNames, nothing, addParameters);
    add("add-parameters/reversed", reversedNames, nothing, addParameters);
    add("add-parameters/random", shuffledNames, nothing, addParameters);
    add("insert-effects/front", shuffledNames, nothing, inserting(At::front));
    add("insert-effects/middle", shuffledNames, nothing, inserting(At::middle));
    add("insert-effects/end", shuffledNames, nothing, inserting(At::end));
    add("move-effects", shuffledNames, inserting(At::end), moveEffects);
    add("next/mutable-effects", shuffledNames, inserting(At::end), walkEffects);
    add("next/mutable-parameters", shuffledNames, addParameters, walkParameters);
    add("create-mutable-styles", orderedNames, nothing, createMutableStyles);
  }
}

}  // namespace bench
