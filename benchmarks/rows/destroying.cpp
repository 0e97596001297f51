// Destroying read styles.
#include "peers/hand_written.h"
#include "peers/library.h"
#include "rows/readers.h"
#include "rows/rows.h"

namespace bench {

void addDestroyingRows(Rows& rows, const Settings& settings) {
  const auto directory = settings.data / "sets" / "typical";
  addRow<Destroying<Library>>(rows, "destroying/typical/library", Runs::once, directory,
                              settings.files);
  addRow<Destroying<HandWritten>>(rows, "destroying/typical/hand-written", Runs::once, directory,
                                  settings.files);
}

}  // namespace bench
