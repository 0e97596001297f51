// Reading directories of files, by the library and by its peers.
#include "peers/hand_written.h"
#include "peers/library.h"
#include "peers/lilv_presets.h"
#include "peers/open_read_close.h"
#include "peers/rapidjson_parse.h"
#include "peers/simdjson_dom.h"
#include "rows/readers.h"
#include "rows/rows.h"

namespace bench {
namespace {

// The same in a process whose memory still has to come from the system, page by page.
void addFreshRows(Rows& rows, const Settings& settings) {
  const auto directory = settings.data / "sets" / "typical";
  const std::string name = "reading/typical-fresh/";
  addRow<Reading<Library, Heap::fresh>>(rows, name + "library", Runs::once, directory, settings.files);
  addRow<Reading<RapidjsonParse, Heap::fresh>>(rows, name + "parse", Runs::once, directory,
                                               settings.files);
  addRow<Reading<HandWritten, Heap::fresh>>(rows, name + "hand-written", Runs::once, directory,
                                            settings.files);
}

}  // namespace

void addReadingRows(Rows& rows, const Settings& settings) {
  for (const std::string set : {"typical", "compact", "utf16", "small"}) {
    const auto directory = settings.data / "sets" / set;
    const std::string name = "reading/" + set + "/";
    const std::size_t files = settings.files;
    addRow<Reading<Library>>(rows, name + "library", Runs::once, directory, files);
    addRow<Reading<RapidjsonParse>>(rows, name + "parse", Runs::once, directory, files);
    addRow<Reading<OpenReadClose>>(rows, name + "open-read-close", Runs::once, directory, files);
    if (set == "utf16") continue;  // these two read UTF-8 only
    addRow<Reading<SimdjsonDom>>(rows, name + "simdjson", Runs::once, directory, files);
    addRow<Reading<HandWritten>>(rows, name + "hand-written", Runs::once, directory, files);
  }
  addFreshRows(rows, settings);
  addRow<Reading<LilvPresets>>(rows, "reading/typical/lilv", Runs::once, settings.data / "bundles",
                               settings.bundles);
}

}  // namespace bench
