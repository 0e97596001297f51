// Files made to be dear, beside an honest one of the same size.
#include "peers/library.h"
#include "peers/rapidjson_parse.h"
#include "rows/readers.h"
#include "rows/rows.h"

namespace bench {

void addHostileRows(Rows& rows, const Settings& settings) {
  const std::size_t heap = settings.hostileBytes * 16;
  for (const char* kind : {"honest", "objects", "arrays", "numbers", "strings", "duplicate-effects",
                           "duplicate-parameters", "duplicate-values", "skipped-members", "one-string",
                           "one-number", "white-space"}) {
    const auto directory = settings.data / "hostile" / kind;
    const std::string name = std::string("hostile/") + kind;
    addRow<Reading<Library>>(rows, name + "/library", Runs::once, directory, 1, heap);
    addRow<Reading<RapidjsonParse>>(rows, name + "/parse", Runs::once, directory, 1, heap);
  }
}

}  // namespace bench
