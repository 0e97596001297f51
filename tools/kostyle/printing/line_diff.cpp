#include "printing/line_diff.h"

#include <fmt/core.h>

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "basics/increasing.h"
#include "basics/text.h"

namespace tool {
namespace {

using Lines = std::vector<std::string_view>;

// Each with its line end, which the last may lack.
Lines linesIn(std::string_view text) {
  Lines lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size() - 1) + 1;
    lines.push_back(text.substr(0, end));
    text.remove_prefix(end);
  }
  return lines;
}

// Which lines of two texts are the same: those that stand once in each and in the same order in both,
// and what is the same around them. This takes no longer for texts that have little in common.
class Matching {
 public:
  Matching(const Lines& before, const Lines& after) : before_(before), after_(after) {
    std::size_t i = 0;
    std::size_t j = 0;
    for (const auto& [anchor, other] : anchors()) {
      matchBetween(i, j, anchor, other);
      match(anchor, other);
      i = anchor + 1;
      j = other + 1;
    }
    matchBetween(i, j, before.size(), after.size());
  }

  const std::vector<std::pair<std::size_t, std::size_t>>& pairs() const { return pairs_; }

 private:
  using Pairs = std::vector<std::pair<std::size_t, std::size_t>>;

  struct Occurrence {
    std::size_t countBefore = 0;
    std::size_t countAfter = 0;
    std::size_t after = 0;
  };

  Pairs anchors() const {
    std::unordered_map<std::string_view, Occurrence> occurrences;
    for (const std::string_view line : before_) ++occurrences[line].countBefore;
    for (std::size_t j = 0; j < after_.size(); ++j) {
      Occurrence& occurrence = occurrences[after_[j]];
      ++occurrence.countAfter;
      occurrence.after = j;
    }
    Pairs once;
    std::vector<std::size_t> others;
    for (std::size_t i = 0; i < before_.size(); ++i) {
      const Occurrence& occurrence = occurrences[before_[i]];
      if (occurrence.countBefore != 1 || occurrence.countAfter != 1) continue;
      once.emplace_back(i, occurrence.after);
      others.push_back(occurrence.after);
    }
    Pairs inOrder;
    for (const std::size_t at : longestIncreasing(others)) inOrder.push_back(once[at]);
    return inOrder;
  }

  void match(std::size_t i, std::size_t j) { pairs_.emplace_back(i, j); }

  void matchBetween(std::size_t i, std::size_t j, std::size_t end, std::size_t otherEnd) {
    for (; i < end && j < otherEnd && before_[i] == after_[j]; ++i, ++j) match(i, j);
    std::size_t count = 0;
    while (count < std::min(end - i, otherEnd - j) &&
           before_[end - 1 - count] == after_[otherEnd - 1 - count])
      ++count;
    for (; count > 0; --count) match(end - count, otherEnd - count);
  }

  const Lines& before_;
  const Lines& after_;
  Pairs pairs_;
};

struct Change {
  std::size_t begin, end;            // lines before
  std::size_t otherBegin, otherEnd;  // lines after
};

std::vector<Change> changesOf(const Lines& before, const Lines& after) {
  std::vector<Change> changes;
  Change next{0, 0, 0, 0};
  const auto close = [&](std::size_t i, std::size_t j) {
    next.end = i;
    next.otherEnd = j;
    if (next.begin < i || next.otherBegin < j) changes.push_back(next);
    next.begin = i + 1;
    next.otherBegin = j + 1;
  };
  const Matching matching(before, after);
  for (const auto& [i, j] : matching.pairs()) close(i, j);
  close(before.size(), after.size());
  return changes;
}

class UnifiedForm {
 public:
  UnifiedForm(const Lines& before, const Lines& after, bool colors)
      : before_(before), after_(after), colors_(colors) {}

  void addNames(const std::string& name) {
    text_ += styled("1", "--- " + printable(name)) + '\n';
    text_ += styled("1", "+++ " + printable(name)) + '\n';
  }

  // Changes so near to each other that the lines around them meet.
  void addHunk(const Change* first, const Change* last) {
    const std::size_t lead = std::min(first->begin, context);
    const std::size_t tail = std::min(before_.size() - last->end, context);
    text_ += styled("36", fmt::format("@@ -{} +{} @@", range(first->begin - lead, last->end + tail),
                                      range(first->otherBegin - lead, last->otherEnd + tail))) +
             '\n';
    std::size_t at = first->begin - lead;
    for (const Change* change = first; change <= last; ++change) {
      for (; at < change->begin; ++at) addLine(' ', before_[at]);
      for (; at < change->end; ++at) addLine('-', before_[at]);
      for (std::size_t i = change->otherBegin; i < change->otherEnd; ++i) addLine('+', after_[i]);
    }
    for (; at < last->end + tail; ++at) addLine(' ', before_[at]);
  }

  bool areNear(const Change& first, const Change& second) const {
    return second.begin - first.end <= 2 * context;
  }

  const std::string& text() const { return text_; }

 private:
  static constexpr std::size_t context = 3;

  // An empty range stands behind the line that it names.
  static std::string range(std::size_t begin, std::size_t end) {
    if (end - begin == 1) return fmt::format("{}", end);
    return fmt::format("{},{}", begin + (end > begin ? 1 : 0), end - begin);
  }

  void addLine(char sign, std::string_view line) {
    const bool isWhole = line.back() == '\n';
    if (isWhole) line.remove_suffix(1);
    std::string shown(1, sign);
    while (!line.empty()) {
      const std::size_t tab = std::min(line.find('\t'), line.size());
      shown += printable(line.substr(0, tab));
      if (tab < line.size()) shown += '\t';
      line.remove_prefix(std::min(tab + 1, line.size()));
    }
    text_ += (sign == ' ' ? shown : styled(sign == '-' ? "31" : "32", shown)) + '\n';
    if (!isWhole) text_ += "\\ No newline at end of file\n";
  }

  std::string styled(const char* code, const std::string& text) const {
    return colors_ ? fmt::format("\x1b[{}m{}\x1b[0m", code, text) : text;
  }

  const Lines& before_;
  const Lines& after_;
  const bool colors_;
  std::string text_;
};

}  // namespace

std::string unifiedDiff(const std::string& name, const std::string& before, const std::string& after,
                        bool colors) {
  const Lines lines = linesIn(before);
  const Lines others = linesIn(after);
  const std::vector<Change> changes = changesOf(lines, others);
  if (changes.empty()) return {};
  UnifiedForm form(lines, others, colors);
  form.addNames(name);
  const Change* first = changes.data();
  const Change* const end = first + changes.size();
  while (first != end) {
    const Change* last = first;
    while (last + 1 != end && form.areNear(*last, last[1])) ++last;
    form.addHunk(first, last);
    first = last + 1;
  }
  return form.text();
}

}  // namespace tool
