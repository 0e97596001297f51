// The memory that read styles hold.
#include "peers/hand_written.h"
#include "peers/library.h"
#include "rows/readers.h"
#include "rows/rows.h"

namespace bench {

void addMemoryRows(Rows& rows, const Settings& settings) {
  for (const std::string set : {"typical", "small"}) {
    const auto directory = settings.data / "sets" / set;
    addRow<Holding<Library>>(rows, "memory/" + set + "/library", Runs::once, directory, settings.files);
    addRow<Holding<HandWritten>>(rows, "memory/" + set + "/hand-written", Runs::once, directory,
                                 settings.files);
  }
}

}  // namespace bench
