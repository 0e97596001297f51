// simdjson's document model. The parser is used again for the next file, as its user's guide advises.
#pragma once

#include "peers/listed_files.h"

namespace bench {

class SimdjsonDom {
 public:
  explicit SimdjsonDom(const std::filesystem::path& directory) : paths_(listedFiles(directory)) {}

  std::size_t read();

 private:
  std::vector<std::string> paths_;
};

}  // namespace bench
