#include "catalog/collection.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <system_error>
#include <thread>
#include <utility>

#include "basics/common_options.h"
#include "basics/failure.h"
#include "basics/progress.h"

namespace tool {
namespace {

// The second is not known of directories everywhere.
bool areSameDirectory(const std::string& one, const std::string& other) {
  std::error_code ignored;
  return libraryPath(pathOf(one)) == libraryPath(pathOf(other)) ||
         fs::equivalent(pathOf(one), pathOf(other), ignored);
}

void requireDifferentDirectories(const std::vector<std::string>& directories) {
  for (auto name = directories.begin(); name != directories.end(); ++name) {
    // "-" is the standard input elsewhere.
    if (*name == "-" || !isDirectory(pathOf(*name)))
      throw WrongUse(fmt::format("{}: no such directory", *name));
    const auto isSame = [&](const std::string& other) { return areSameDirectory(*name, other); };
    if (std::any_of(directories.begin(), name, isSame))
      throw WrongUse(fmt::format("{}: the directory is named twice", *name));
  }
}

// The library reads them one after the other.
StyleDirectories asOneSet(const std::vector<std::string>& directories) {
  requireDifferentDirectories(directories);
  StyleDirectories set;
  set.system = pathOf(directories.front());
  for (auto name = directories.begin() + 1; name != directories.end(); ++name)
    set.systemExtra.push_back(pathOf(*name));
  return set;
}

std::map<Text, KoStyleStyle*> stylesByPath(const Manager& manager) {
  std::map<Text, KoStyleStyle*> styles;
  for (KoStyleStyle* style : manager.styles()) styles.emplace(Style_path(style), style);
  return styles;
}

}  // namespace

Collection::Collection(const std::vector<std::string>& directories)
    : directories_(directories), manager_(asOneSet(directories)) {
  std::vector<Input> inputs;
  std::vector<std::size_t> places;  // of the directories of the inputs
  for (std::size_t i = 0; i < directories_.size(); ++i) {
    const std::size_t before = inputs.size();
    for (Input& input : inputsOf({directories_[i]})) {
      input.order += before;
      inputs.push_back(std::move(input));
      places.push_back(i);
    }
  }
  Progress progress("checking");
  CheckOptions options;
  options.progress = [&](std::size_t done, std::size_t all) { progress.tell(done, all); };
  options.maxSize = std::min(commonOptions().maxSize, SourceText::maxSize);
  options.jobs = std::max(1U, std::thread::hardware_concurrency());
  std::vector<FileReport> reports = checkAll(inputs, options);
  const auto styles = stylesByPath(manager_);
  for (std::size_t i = 0; i < inputs.size(); ++i) {
    const auto style = styles.find(inputs[i].path);
    files_.push_back(
        {std::move(reports[i]), places[i], style == styles.end() ? nullptr : style->second});
  }
}

std::size_t Collection::refused() const {
  const auto isRefused = [](const CollectedFile& file) { return !file.style; };
  return static_cast<std::size_t>(std::count_if(files_.begin(), files_.end(), isRefused));
}

}  // namespace tool
