// What a command line asks for, held against a style.
#pragma once

#include "editing/style_content.h"
#include "writing/style_edits.h"

namespace tool {

struct RequestedChange {
  StyleChange change;  // from what the style is
  StyleContent after;  // to what it is to be
};

/// Throws WrongUse and Refused for what makes no sense for this style. Whether the library takes a
/// value is for it to say.
RequestedChange requestedChange(const StyleEdits& edits, const StyleContent& before);

[[noreturn]] void refuseAsPresent(const char* option, TextView text);

/// That the library does not take a value.
[[noreturn]] void refuseLanguage(int language);
[[noreturn]] void refuseText(const TextList& list, TextView text);
[[noreturn]] void refuseEffect(const Chain& chain, TextView id);

}  // namespace tool
