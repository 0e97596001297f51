// StyleParser: the first half of reading a style file, from bytes to a document. Its memory serves one
// file after the other; what a large one took is kept until the parser ends.
#pragma once

#include <cstdio>
#include <memory>
#include <optional>

#include "format/file_encoding.h"
#include "format/json.h"
#include "format/source_encodings.h"

namespace Tesk::KoStyle {

class StyleParser {
 public:
  StyleParser();

  /// Parses an open file, UTF-8, UTF-16 or UTF-32 with or without a byte-order mark. The offset of an
  /// error counts the bytes of the file up to where it was detected. The document ends with the next
  /// call.
  rapidjson::ParseResult parse(std::FILE* file);

  const json::Value& document() const noexcept { return *document_; }

 private:
  template <class Source>
  using Reader = rapidjson::GenericReader<Source, json::Encoding, json::StackMemory>;

  template <class Unit, class Source>
  rapidjson::ParseResult parseUnits(Reader<Source>& reader, std::FILE* file, const Block& first,
                                    const FileEncoding& encoding);

  std::unique_ptr<char[]> firstChunk_;
  json::ThrowingAllocator allocator_;
  json::StackMemory stackMemory_;
  json::Pool pool_;
  Reader<Utf8Source> utf8_;
  Reader<Utf16Source> utf16_;
  Reader<Utf32Source> utf32_;
  std::optional<json::Document> document_;
};

}  // namespace Tesk::KoStyle
