#include "all_rows.h"

#include "rows/growth.h"

namespace bench {

Rows allRows(const Settings& settings) {
  Rows rows;
#if !defined(_WIN32)  // the peers are not there, and a file costs what the emulation makes it cost
  addReadingRows(rows, settings);
  addSavingRows(rows, settings);
  addHostileRows(rows, settings);
  addGrowthFileRows(rows, settings);
  addGrowthReadingRows(rows, settings);
  addGrowthSavingRows(rows, settings);
#endif
  addMemoryRows(rows, settings);
  addDestroyingRows(rows, settings);
  addWalkingRows(rows, settings);
  addCallRows(rows, settings);
  addEditingRows(rows, settings);
  addGrowthWalkingRows(rows, settings);
  addGrowthEditingRows(rows, settings);
  addGrowthStandardRows(rows, settings);
  return rows;
}

}  // namespace bench
