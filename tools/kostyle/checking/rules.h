// The rules that a style file is checked by, each with a name that never changes.
#pragma once

#include <cstddef>

namespace tool {

enum class Severity { note, warning, error };

/// What a rule is about: what reading a file takes of it, or what writing the style again keeps of
/// that.
enum class Stage { reading, writing };

struct Rule {
  const char* id;
  Severity severity;
  Stage stage;
  const char* sentence;  // what holds
};

namespace rule {

// The file is refused.
extern const Rule unreadableFile;
extern const Rule jsonSyntax;
extern const Rule rootType;
extern const Rule memberMissing;
extern const Rule memberType;
extern const Rule memberEmpty;
extern const Rule noEffect;
extern const Rule repeatedIdentifier;

// Something is left out or becomes something else.
extern const Rule fileExtension;
extern const Rule unknownMember;
extern const Rule repeatedMember;
extern const Rule repeatedEffect;
extern const Rule repeatedParameter;
extern const Rule repeatedValue;
extern const Rule wrongType;
extern const Rule emptyName;
extern const Rule emptyValue;
extern const Rule nameLength;
extern const Rule singerIdLength;
extern const Rule languageRange;
extern const Rule integerRange;
extern const Rule floatRange;
extern const Rule effectWithoutParameter;
extern const Rule midiScript;
extern const Rule textCut;
extern const Rule behindEnd;
extern const Rule parameterRenamed;

// The style is taken, but a file that is written of it differs.
extern const Rule effectLost;
extern const Rule loneSurrogate;
extern const Rule vendorLost;
extern const Rule floatPrecision;
extern const Rule encodingChanged;
extern const Rule memberOrder;
extern const Rule parameterOrder;
extern const Rule valueOrder;

}  // namespace rule

/// All rules, in the order above.
struct Rules {
  const Rule* const* first;
  std::size_t count;
  const Rule* const* begin() const { return first; }
  const Rule* const* end() const { return first + count; }
};
Rules allRules();

/// "error", "warning" or "note".
const char* severityName(Severity severity);

/// "reading" or "writing".
const char* stageName(Stage stage);

}  // namespace tool
