// A style file as an editor shows it: UTF-8 without a mark, lines that end in \n, and a document in one
// line as many.
#pragma once

#include <string>

#include "document/source_text.h"

namespace tool {

class EditorText {
 public:
  /// Of a file's bytes; `file` is its name for messages. Throws Refused when they are no text.
  EditorText(const std::string& file, const std::string& bytes);

  const std::string& text() const { return text_; }

  /// An edited text as bytes for the file: in its encoding, with its mark and its line ends.
  std::string bytesOf(const std::string& edited) const;

 private:
  SourceText source_;
  std::string text_;
  std::string lineEnd_ = "\n";  // empty when the file has several kinds: then none is changed
  bool endsLastLine_ = true;
};

/// What an editor saved as UTF-8 text, whatever encoding it chose; \r\n stays. `file` is its name for
/// messages. Throws Refused when it is no text.
std::string savedText(const std::string& file, const std::string& bytes);

}  // namespace tool
