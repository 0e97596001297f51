#include "printing/style_columns.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>

#include "basics/text.h"
#include "reading/attributes.h"
#include "reading/reasons.h"

namespace tool {
namespace {

std::string kindCell(KoStyleStyle* style, std::size_t) { return kindText(Style_type(style)); }
std::string nameCell(KoStyleStyle* style, std::size_t) { return toUtf8(Style_name(style)); }
std::string idCell(KoStyleStyle* style, std::size_t) { return toUtf8(Style_id(style)); }
std::string vendorCell(KoStyleStyle* style, std::size_t) { return toUtf8(Style_vendor(style)); }
std::string pathCell(KoStyleStyle* style, std::size_t) { return pathToUtf8(Style_path(style)); }

std::string languagesCell(KoStyleStyle* style, std::size_t) {
  return fmt::format("{}", fmt::join(languages(style), ", "));
}

std::string textsCell(KoStyleStyle* style, std::size_t list) {
  return fmt::format("{}", fmt::join(values(textLists()[list], style), ", "));
}

std::string effectsCell(KoStyleStyle* style, std::size_t) {
  return fmt::format("{}", Style_numAudioEffect(style) + Style_numMidiEffect(style));
}

std::vector<StyleColumn> allColumns() {
  return {
      {"kind", "KIND", 5, true, false, kindCell},
      {"name", "NAME", 0, true, false, nameCell},
      {"id", "ID", 1, true, false, idCell},
      {"languages", "LANGUAGES", 6, true, false, languagesCell},
      {"singer-groups", "SINGER GROUPS", 7, true, false, textsCell, 0},
      {"singer-ids", "SINGER IDS", 10, false, false, textsCell, 1},
      {"genres", "GENRES", 2, true, false, textsCell, 2},
      {"sub-genres", "SUB-GENRES", 8, true, false, textsCell, 3},
      {"colors", "COLORS", 9, true, false, textsCell, 4},
      {"effects", "EFFECTS", 4, true, true, effectsCell},
      {"vendor", "VENDOR", 11, false, false, vendorCell},
      {"path", "PATH", 3, true, false, pathCell},
  };
}

// ASCII letters without their case.
std::string folded(std::string text) {
  for (char& c : text)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + ('a' - 'A'));
  return text;
}

}  // namespace

const std::vector<StyleColumn>& styleColumns() {
  static const std::vector<StyleColumn> columns = allColumns();
  return columns;
}

std::string cellOf(const StyleColumn& column, KoStyleStyle* style) {
  return column.cell(style, column.list);
}

void sortStyles(std::vector<KoStyleStyle*>& styles, const StyleColumn& column) {
  std::map<KoStyleStyle*, std::string> keys;
  for (KoStyleStyle* style : styles) keys[style] = folded(cellOf(column, style));
  const auto before = [&](KoStyleStyle* a, KoStyleStyle* b) {
    const std::string& left = keys[a];
    const std::string& right = keys[b];
    // Numbers have no leading zeros.
    if (column.isNumber && left.size() != right.size()) return left.size() < right.size();
    return left < right;
  };
  std::stable_sort(styles.begin(), styles.end(), before);
}

}  // namespace tool
