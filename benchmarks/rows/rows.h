// The sections of the table.
#pragma once

#include "settings.h"
#include "workload.h"

namespace bench {

void addReadingRows(Rows& rows, const Settings& settings);
void addMemoryRows(Rows& rows, const Settings& settings);
void addDestroyingRows(Rows& rows, const Settings& settings);
void addWalkingRows(Rows& rows, const Settings& settings);
void addCallRows(Rows& rows, const Settings& settings);
void addEditingRows(Rows& rows, const Settings& settings);
void addSavingRows(Rows& rows, const Settings& settings);
void addHostileRows(Rows& rows, const Settings& settings);

}  // namespace bench
