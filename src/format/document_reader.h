// DocumentReader: what a document must hold to be a style, and what of it a style takes. The rules
// stand here and, of what repeats, in StyleBuilder.
#pragma once

#include <utility>

#include "format/json.h"
#include "format/read_observer.h"
#include "format/style_read_outcome.h"
#include "model/style.h"
#include "model/style_builder.h"

namespace Tesk::KoStyle {

/// `Observer` is Unobserved or Observed. The memory serves one document after the other.
template <class Observer>
class DocumentReader {
 public:
  explicit DocumentReader(Observer observer = {}) : observer_(std::move(observer)) {}

  /// Reads a document into a new style, filling a cleared outcome. False when the document is no style,
  /// with the first failing check in `outcome`; the style is then of no use.
  bool read(const json::Value& root, TextView path, Style& style, StyleReadOutcome& outcome);

 private:
  const json::Value* find(const json::Value& object, TextView key);
  void refuse(StyleReadOutcome& outcome, std::uint32_t error, const json::Value* value,
              TextView key = {});
  const json::Value* readRequiredText(const json::Value& root, TextView key, StyleReadOutcome& outcome);
  void readVendor(const json::Value& root);
  void readChain(const json::Value& root, EffectKind kind);
  void readEffect(EffectKind kind, TextView id, const json::Value& effect);
  void readParameters(const json::Value& source);
  bool addParameter(TextView name, const json::Value& value);
  void readFilter(const json::Value& root);
  void addLanguage(const json::Value& element);
  void addText(Attribute attribute, const json::Value& element);
  template <class Add>
  void readArray(const json::Value& filter, TextView key, Add add);

  StyleBuilder builder_;
  Observer observer_;
};

extern template class DocumentReader<Unobserved>;
extern template class DocumentReader<Observed>;

}  // namespace Tesk::KoStyle
