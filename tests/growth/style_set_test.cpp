// Styles and creation results of a set of n files, and what changes one of them.
#include <kostyle/kostyle.h>

#include "growth/documents.h"

namespace test {
namespace {

/// A set of n user styles. Their files are costly to make, so one set of a size serves all cases; each
/// leaves as many styles as it found.
struct UserStyles {
  explicit UserStyles(int n) {
    for (int i = 0; i < n; ++i) {
      const std::string id = scattered(i, n);
      writeFile(host.user / (std::to_string(i) + ".kostyle"), document(id, id));
    }
    StyleManager_readUserStyles(host.manager);
    demand(StyleManager_numUserStyle(host.manager) == static_cast<std::size_t>(n));
  }
  Host host;
};

/// So many that looking through all of them would show beside the cost of writing a file.
constexpr int fewFiles = 1'000;

const Host& userStyles(int n) {
  static const UserStyles ofFew(fewFiles), ofMany(times * fewFiles);
  return n == fewFiles ? ofFew.host : ofMany.host;
}

constexpr int changes = 100;  // of a set that is much larger

std::vector<KoStyleStyle*> mutableStyles(const Host& host, const char* name) {
  std::vector<KoStyleStyle*> styles;
  for (int i = 0; i < changes; ++i) styles.push_back(host.createMutableStyle(name));
  return styles;
}

/// The costs of saving new styles and of removing them again.
struct SavingCosts {
  double saving, removing;
};
SavingCosts saveAndRemove(int n) {
  const Host& host = userStyles(n);
  std::vector<KoStyleStyle*> saved = mutableStyles(host, "saved");
  const double saving = each(changes, [&] {
    for (KoStyleStyle*& style : saved) style = Host::save(style);
  });
  const double removing = each(changes, [&] {
    for (KoStyleStyle* style : saved) demand(UserStyle_remove(style) == KOSTYLE_OK);
  });
  return {saving, removing};
}
double save(int n) { return saveAndRemove(n).saving; }
double remove(int n) { return saveAndRemove(n).removing; }

double overwrite(int n) {
  const Host& host = userStyles(n);
  const std::vector<KoStyleStyle*> styles = mutableStyles(host, "overwriting");
  std::vector<Text> targets;
  for (int i = 0; i < changes; ++i) {
    const auto place = static_cast<std::size_t>(i) * static_cast<std::size_t>(n) / changes;
    targets.emplace_back(Style_id(StyleManager_userStyle(host.manager, place)));
  }
  return each(changes, [&] {
    for (std::size_t i = 0; i < changes; ++i) {
      int error = -1;
      MutableStyle_overwrite(styles[i], targets[i].c_str(), false, &error);
      demand(error == KOSTYLE_OK);
    }
  });
}

double edit(int n) {
  const Host& host = userStyles(n);
  return each(changes, [&] {
    for (std::size_t i = 0; i < changes; ++i) {
      KoStyleStyle* const style =
          StyleManager_userStyle(host.manager, i * static_cast<std::size_t>(n) / changes);
      KoStylePropertyEditor* const editor = UserStyle_createPropertyEditor(style);
      demand(PropertyEditor_setStyleName(editor, KOSTYLE_TEXT("edited")));
      demand(PropertyEditor_save(editor, false));
      UserStyle_destroyPropertyEditor(style);
    }
  });
}

std::size_t last(int n) { return static_cast<std::size_t>(n) - 1; }
double byNext(int n) {
  return walking(n, StyleManager_userStyle(userStyles(n).manager, 0), UserStyle_next);
}
double byPrev(int n) {
  return walking(n, StyleManager_userStyle(userStyles(n).manager, last(n)), UserStyle_prev);
}
double resultsByNext(int n) {
  return walking(n, StyleManager_userStyleCreationResult(userStyles(n).manager, 0),
                 StyleCreationResult_next);
}
double resultsByPrev(int n) {
  return walking(n, StyleManager_userStyleCreationResult(userStyles(n).manager, last(n)),
                 StyleCreationResult_prev);
}
double hasStyle(int n) {
  const Host& host = userStyles(n);
  int found = 0;
  const double cost = each(n, [&] {
    for (KoStyleStyle* style = StyleManager_userStyle(host.manager, 0); style;
         style = UserStyle_next(style))
      found += StyleManager_hasUserStyle(host.manager, style);
  });
  demand(found == n);
  return cost;
}

constexpr Operation operations[] = {
    {"ByNext", byNext},
    {"ByPrev", byPrev},
    {"CreationResultsByNext", resultsByNext},
    {"CreationResultsByPrev", resultsByPrev},
    {"HasStyle", hasStyle},
    {"Save", save},
    {"Remove", remove},
    {"Overwrite", overwrite},
    {"Edit", edit},
};

using StyleSetGrowth = Growth;
TEST_P(StyleSetGrowth, StaysBelowTheBound) { expectBelowBound(fewFiles); }
INSTANTIATE_TEST_SUITE_P(UserStyles, StyleSetGrowth, testing::ValuesIn(operations), nameOf);

}  // namespace
}  // namespace test
