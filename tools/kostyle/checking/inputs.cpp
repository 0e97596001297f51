#include "checking/inputs.h"

#include <fmt/core.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <optional>
#include <set>
#include <system_error>

#if defined(_WIN32)
#include <fcntl.h>
#include <io.h>
#endif

#include "basics/size_limit.h"
#include "checking/file_check.h"
#include "format/style_keys.h"
#include "manager/file_system.h"
#include "platform/platform.h"

namespace tool {
namespace {

namespace platform = Tesk::KoStyle::platform;

constexpr const char* standardInput = "-";

platform::NativePath nativePathOf(const Text& path) {
  return platform::nativePath(Tesk::KoStyle::toLongPath(path.c_str()));
}

bool endsWithSeparator(const std::string& path) {
#if defined(_WIN32)
  if (path.back() == '\\') return true;
#endif
  return path.back() == '/';
}

// The style files of a directory, those too that the library passes over because they are no regular
// ones.
std::vector<Input> styleFilesOf(const std::string& argument) {
  const Text directory = libraryPath(pathOf(argument));
  const std::string prefix = argument + (endsWithSeparator(argument) ? "" : "/");
  std::vector<Input> inputs;
  const bool listed =
      platform::enumerateDirectory(nativePathOf(directory), [&](platform::DirectoryEntry&& entry) {
        if (entry.isDirectory || !Tesk::KoStyle::hasStyleExtension(entry.name)) return true;
        Input input;
        input.path = Tesk::KoStyle::joinPath(directory, entry.name);
        input.shown = prefix + pathToUtf8(entry.name);
        if (!entry.isRegularFile) input.problem = whyNoRegularFile(pathOf(TextView(input.path)));
        input.order = inputs.size();
        inputs.push_back(std::move(input));
        return true;
      });
  if (!listed) {
    Input input;
    input.shown = argument;
    std::error_code error;
    const fs::directory_iterator entries(pathOf(argument), error);
    input.problem = fmt::format("the directory cannot be listed{}{}", error ? ": " : "",
                                error ? error.message() : "");
    inputs.push_back(std::move(input));
  }
  const auto before = [](const Input& a, const Input& b) { return a.path < b.path; };
  std::sort(inputs.begin(), inputs.end(), before);
  return inputs;
}

Input fileOf(const std::string& argument) {
  Input input;
  input.shown = argument == standardInput ? "stdin" : argument;
  if (argument == standardInput) return input;
  const fs::path path = pathOf(argument);
  input.path = libraryPath(path);
  input.isNamed = true;
  input.problem = whyNoRegularFile(path);
  return input;
}

platform::File openStandardInput() {
#if defined(_WIN32)
  _setmode(_fileno(stdin), _O_BINARY);
  return platform::File(_fdopen(_dup(_fileno(stdin)), "rb"));
#else
  return platform::File(std::freopen(nullptr, "rb", stdin));
#endif
}

// None when there is more.
std::optional<std::string> contentOf(std::FILE* file, std::size_t maxSize) {
  std::string content;
  char block[65536];
  while (const std::size_t size = std::fread(block, 1, sizeof block, file)) {
    if (content.size() + size > maxSize) return std::nullopt;
    content.append(block, size);
  }
  return content;
}

std::string reasonOf(int error, const char* otherwise) {
  return error == 0 ? otherwise : std::generic_category().message(error);
}

}  // namespace

std::vector<Input> inputsOf(const std::vector<std::string>& arguments) {
  std::vector<Input> inputs;
  std::set<fs::path> named;
  std::size_t before = 0;
  for (const std::string& argument : arguments) {
    std::vector<Input> more;
    if (argument != standardInput && isDirectory(pathOf(argument))) {
      more = styleFilesOf(argument);
    } else {
      more = {fileOf(argument)};
    }
    for (Input& input : more) {
      input.order += before;
      // However the same path is spelt; two links are two files to the library.
      std::error_code ignored;
      const fs::path spelt = fs::absolute(pathOf(TextView(input.path)), ignored).lexically_normal();
      const bool isNew = input.path.empty() || named.insert(spelt).second;
      if (isNew) inputs.push_back(std::move(input));
    }
    before += more.size();
  }
  return inputs;
}

FileReport checkInput(const Input& input, std::size_t maxSize) {
  if (!input.problem.empty()) return unreadable(input.shown, input.problem);
  errno = 0;
  const platform::File file =
      input.path.empty() ? openStandardInput() : platform::openForReading(nativePathOf(input.path));
  if (!file) return unreadable(input.shown, reasonOf(errno, "the file cannot be opened"));
  std::optional<std::string> content = contentOf(file.get(), maxSize);
  if (std::ferror(file.get()) != 0)
    return unreadable(input.shown, reasonOf(errno, "the file cannot be read"));
  if (!content) return unreadable(input.shown, largerThan(maxSize));
  FileReport report = checkContent(input.shown, std::move(*content));
  if (input.isNamed && !Tesk::KoStyle::hasStyleExtension(input.path)) {
    Finding finding;
    finding.rule = &rule::fileExtension;
    finding.found = "the name of the file does not end in .kostyle";
    finding.requirement = rule::fileExtension.sentence;
    finding.outcome = "no application reads it";
    report.findings.insert(report.findings.begin(), std::move(finding));
  }
  return report;
}

}  // namespace tool
