// The parts of the data, each below the folder that is given.
#pragma once

#include <cstddef>
#include <filesystem>
#include <vector>

namespace bench {

/// sets/NAME: typical, compact, utf16 and small, of `files` style files each.
void makeSets(const std::filesystem::path& data, std::size_t files);

/// bundles: presets in Turtle with as many values as a typical style.
void makeBundles(const std::filesystem::path& data, std::size_t bundles);

/// growth/NAME/SIZE: folders of one file that is large in one way.
void makeGrowth(const std::filesystem::path& data, const std::vector<std::size_t>& sizes);

/// growth-files/NAME/SIZE: folders of many small files, each with an identifier of its own (distinct)
/// or all with the same (repeated).
void makeGrowthFiles(const std::filesystem::path& data, const std::vector<std::size_t>& sizes);

/// hostile/NAME: folders of one file of `bytes` bytes each.
void makeHostileFiles(const std::filesystem::path& data, std::size_t bytes);

}  // namespace bench
