// The serializer: from a style in memory to a style document.
//
// A document refers to the texts of its style, which must live and not change as long as it does. It is
// built whole before anything is written, so that only building it can run out of memory and a style
// that cannot be written leaves its file as it was opened.
#pragma once

#include <kostyle/codes.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>

#include "format/json.h"
#include "model/mutable_style.h"
#include "model/style.h"

namespace Tesk::KoStyle {

class StyleDocument {
 public:
  /// The document of a mutable style, under the identifier of the file that it goes to.
  StyleDocument(const MutableStyle& style, TextView id);

  /// The document of a stored style, under its own identifier.
  explicit StyleDocument(const Style& style);

  /// KOSTYLE_OK, or why the style cannot be written: KOSTYLE_ERROR_NO_EFFECT or KOSTYLE_ERROR_WRITE_*.
  std::uint32_t code() const { return code_; }

  const json::Document& json() const { return json_; }

 private:
  static constexpr std::size_t chunkSize = 32768;

  // Most documents fit into the first chunk.
  alignas(std::max_align_t) char firstChunk_[chunkSize];
  json::ThrowingAllocator allocator_;
  json::Pool pool_{firstChunk_, chunkSize, chunkSize, &allocator_};
  json::Document json_{&pool_};
  std::uint32_t code_ = KOSTYLE_OK;
};

/// Writes a document as UTF-8 without a mark to an open file, and returns its code. A document with
/// another code than KOSTYLE_OK is not written. What goes wrong during the writing itself (a text with
/// a lone surrogate, an infinite number, a full disk) deliberately goes unreported: the file then holds
/// the blocks of the output's buffer that were written before.
std::uint32_t writeStyleFile(const StyleDocument& document, bool pretty, std::FILE* file) noexcept;

// The builders. Each adds what it names to `target` and returns a code. They are there for the
// attributes, chains and effects of stored and of mutable styles.

template <class List>
std::uint32_t writeFilter(const Attributes<List>& attributes, json::Value& target, json::Pool& pool);

template <class Chain>
std::uint32_t writeEffectChain(const Chain& effects, json::Value& target, json::Pool& pool);

template <class EffectType>
std::uint32_t writeParameters(const EffectType* effect, json::Value& target, json::Pool& pool);

}  // namespace Tesk::KoStyle
