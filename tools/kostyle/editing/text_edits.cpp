#include "editing/text_edits.h"

#include <algorithm>
#include <utility>

namespace tool {

void TextEdits::replace(Span span, std::string utf8) { edits_.push_back({span, std::move(utf8)}); }

std::string TextEdits::applyTo(const SourceText& source) const {
  std::vector<Edit> inOrder = edits_;
  std::stable_sort(inOrder.begin(), inOrder.end(),
                   [](const Edit& a, const Edit& b) { return a.span.begin < b.span.begin; });
  std::string result;
  std::size_t done = 0;
  for (const Edit& edit : inOrder) {
    result += source.bytes().substr(done, edit.span.begin - done);
    result += source.encoded(edit.utf8);
    done = edit.span.end;
  }
  return result += source.bytes().substr(done);
}

}  // namespace tool
