// bench-data PART... --data=FOLDER: makes the parts of the data that are named.
#include <cstdio>
#include <exception>
#include <functional>
#include <map>
#include <string>

#include "data/make_files.h"
#include "settings.h"

int main(int argc, char** argv) try {
  std::vector<char*> parts;
  const bench::Settings settings = bench::parseSettings(argc - 1, argv + 1, parts);
  const std::map<std::string, std::function<void()>> makers = {
      {"sets", [&] { bench::makeSets(settings.data, settings.files); }},
      {"bundles", [&] { bench::makeBundles(settings.data, settings.bundles); }},
      {"growth", [&] { bench::makeGrowth(settings.data, settings.sizes); }},
      {"growth-files", [&] { bench::makeGrowthFiles(settings.data, settings.sizes); }},
      {"hostile", [&] { bench::makeHostileFiles(settings.data, settings.hostileBytes); }},
  };
  for (const char* part : parts) makers.at(part)();
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "bench-data: %s\n", error.what());
  return 1;
}
