// What is left out, in words: which rule it breaks, what stands there and what should.
#pragma once

#include "checking/reading_check.h"
#include "format/read_observer.h"

namespace tool {

/// Adds the finding about a part that is left out.
Finding& addLeftOut(Reporter& reporter, const Part& part, Tesk::KoStyle::LeftOut why);

/// A part by its name: effect "Reverb", "genres".
std::string partName(const JsonDocument& document, const Part& part);

}  // namespace tool
