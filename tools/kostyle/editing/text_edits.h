// Replacements in the bytes of a file. What they do not name stays byte for byte.
#pragma once

#include <string>
#include <vector>

#include "document/source_text.h"

namespace tool {

class TextEdits {
 public:
  /// The spans of two edits do not overlap. Texts put at one place stand in the order of the calls.
  void replace(Span span, std::string utf8);
  void insert(std::uint32_t place, std::string utf8) { replace({place, place}, std::move(utf8)); }

  /// The file's bytes with the edits, in its encoding.
  std::string applyTo(const SourceText& source) const;

 private:
  struct Edit {
    Span span;
    std::string utf8;
  };

  std::vector<Edit> edits_;
};

}  // namespace tool
