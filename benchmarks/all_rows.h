// All rows that can be measured on this platform.
#pragma once

#include "rows/rows.h"

namespace bench {

Rows allRows(const Settings& settings);

}  // namespace bench
