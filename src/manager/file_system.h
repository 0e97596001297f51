// File-system operations of the library. Each brings its path into the long-path form before it
// reaches the platform, and reports a failure of the system by its result alone.
#pragma once

#include <cstddef>
#include <vector>

#include "platform/text.h"

namespace Tesk::KoStyle {

/// The form of a path that the system's length limit does not touch; empty for null.
Text toLongPath(const Char* path);

bool pathExists(const Char* path);
bool pathExists(const Text& path);

bool isDirectory(const Char* path);

/// Creates a directory with all missing parents. Something that exists at the path already counts as
/// success, even a plain file.
bool createDirectories(const Char* path);

/// Whether a directory exists or could be created with its parents.
bool ensureDirectory(const Char* path);

/// Removes a file or a directory; a directory that is not empty only when `recursive`.
bool removePath(const Char* path, const bool& recursive);

/// Removes a directory with its content, but stops with false after the first subdirectory that it
/// could remove whole: a tree needs more calls, one for each subdirectory that a call removes.
bool removeDirectoryTree(const Char* path);

/// The files of a directory in the system's order, entering subdirectories down to `depthLimit` levels
/// (1: none is entered; 0: no limit). Empty for null and for what cannot be enumerated.
std::vector<Text> listFiles(const Char* directory, const std::size_t& depthLimit);

/// Appends to `files` what listFiles() gives for a directory that stands `depth` levels down.
void enumerateFiles(const Text& directory, const std::size_t& depthLimit, const std::size_t& depth,
                    std::vector<Text>& files);

/// Directory, separator, name; the directory's text as it is.
Text joinPath(TextView directory, TextView name);

}  // namespace Tesk::KoStyle
