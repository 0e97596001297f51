// StyleBuilder: collects what a stored style is to hold, applies the rules by which a style takes it,
// and freezes what is left.
//
// Of effects with one identifier in a chain, and of parameters with one name in an effect, the first
// stays. Effects keep their order; parameters and attribute texts sort. The texts handed in are not
// copied before freeze(), so they must live until then.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "model/attributes.h"
#include "model/effect_kind.h"
#include "model/name_order.h"
#include "model/parameter_value.h"
#include "model/stored_content.h"

namespace Tesk::KoStyle {

class StyleBuilder {
 public:
  enum class Adding { added, unfit, repeated };

  /// Starts anew, keeping the memory.
  void clear() noexcept;

  void setId(TextView id) noexcept { id_ = id; }
  void setPath(TextView path) noexcept { path_ = path; }
  void setVendor(TextView vendor) noexcept { vendor_ = vendor; }

  /// A name that no style may have is left out; false then.
  bool setName(TextView name) noexcept {
    name_ = isStyleName(name) ? name : TextView();
    return !name_.empty();
  }

  // A value that the attribute cannot have is left out as unfit. Of texts that repeat only those that
  // follow each other show at once.
  Adding addLanguage(int language) noexcept {
    if (!LanguageSet::isLanguage(language)) return Adding::unfit;
    return languages_.insert(language) ? Adding::added : Adding::repeated;
  }
  Adding addText(Attribute attribute, TextView text);

  /// An effect without parameters. The identifier must not be empty. False when it is that of the
  /// effect before it, which stays the last one.
  bool addEffect(EffectKind kind, TextView id);

  /// A parameter of the effect that was added last. The name must not be empty.
  void addParameter(TextView name, const ParameterValue& value) {
    parameters_.push_back({{name}, value});
  }

  bool hasEffects() const noexcept { return !effects_.empty(); }

  /// The content of `style`.
  StoredContent freeze(const Style& style);

  // What freeze() left out because it repeats, by its place among all that was added of its kind.
  // Parameters of an effect that is left out do not count.
  std::vector<std::size_t> repeatedEffects() const;
  std::vector<std::size_t> repeatedParameters() const;
  std::vector<std::size_t> repeatedTexts(Attribute attribute) const;

 private:
  struct ParameterEntry : Named {
    ParameterValue value;
  };
  struct EffectEntry : Named {
    EffectKind kind;
    std::size_t firstParameter;  // in parameters_
    bool taken = false;
    std::size_t firstKey = 0;  // in parameterKeys_, once taken
    std::size_t numKeys = 0;
  };

  using TextLists = std::array<FrozenRange<const TextView>, textAttributes.size()>;

  TextLists orderTexts();
  void takeEffects(EffectKind kind);
  void orderParameters();
  void freezeEffects(StoredContent& content, const Style& style) const;
  std::size_t endOfParameters(std::size_t effect) const noexcept;
  static const ParameterValue& valueOf(const NameKey& key) noexcept;

  TextView id_;
  TextView path_;
  TextView vendor_;
  TextView name_;
  LanguageSet languages_;
  std::array<std::vector<Named>, textAttributes.size()> texts_;
  std::vector<EffectEntry> effects_;
  std::vector<ParameterEntry> parameters_;
  NameKeys parameterKeys_;
  NameKeys keys_;
  std::vector<TextView> listed_;  // the texts of all lists, each list distinct and in order
};

}  // namespace Tesk::KoStyle
