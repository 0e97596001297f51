#include "all_rows.h"

namespace bench {

Rows allRows(const Settings& settings) {
  Rows rows;
#if !defined(_WIN32)  // the peers are not there, and a file costs what the emulation makes it cost
  addReadingRows(rows, settings);
#endif
  addMemoryRows(rows, settings);
  addDestroyingRows(rows, settings);
  addWalkingRows(rows, settings);
  return rows;
}

}  // namespace bench
