// The line in which something stands, for a terminal.
#pragma once

#include "checking/finding.h"

namespace tool {

/// Long lines are cut around the span. Tabs become spaces; what could drive the terminal becomes
/// escapes.
Excerpt excerptOf(const SourceText& source, Span span);

}  // namespace tool
