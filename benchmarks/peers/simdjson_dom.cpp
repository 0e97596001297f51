#include "peers/simdjson_dom.h"

#include <simdjson.h>

namespace bench {

std::size_t SimdjsonDom::read() {
  simdjson::dom::parser parser;
  std::size_t parsed = 0;
  for (const std::string& path : paths_) parsed += parser.load(path).error() == simdjson::SUCCESS;
  return parsed;
}

}  // namespace bench
