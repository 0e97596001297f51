#include <fmt/core.h>

#include <CLI/CLI.hpp>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "basics/failure.h"
#include "basics/output.h"
#include "catalog/collection.h"
#include "catalog/page_data.h"
#include "catalog/page_file.h"
#include "catalog/page_template.h"
#include "commands/commands.h"

namespace tool {
namespace {

struct CatalogOptions {
  std::vector<std::string> directories;
  std::string output;
  std::string title = "Styles";
};

std::string pageOf(const Collection& collection, const std::string& title) {
  std::string page(pageBeforeData);
  page += pageData(collection, title);
  page += pageAfterData;
  return page;
}

int catalog(const CatalogOptions& options) {
  if (options.output.empty()) throw WrongUse("the path of the page is empty");
  const bool isPrinted = options.output == "-";
  std::optional<PageFile> file;
  if (!isPrinted) file.emplace(pathOf(options.output));
  const Collection collection(options.directories);
  const std::string page = pageOf(collection, options.title);
  if (isPrinted) {
    printBytes(page);
  } else {
    file->write(collection, page);
  }
  if (collection.refused() == 0) return exitOk;
  notice(fmt::format("{} of {} files {} refused; the page says why", collection.refused(),
                     collection.files().size(), collection.refused() == 1 ? "is" : "are"));
  return exitRefused;
}

}  // namespace

void addCatalogCommand(CLI::App& app, Command& chosen) {
  const auto options = std::make_shared<CatalogOptions>();
  CLI::App* command =
      app.add_subcommand("catalog", "Makes a page for browsers that shows the styles of directories");
  command->add_option("DIR", options->directories, "Directory of style files")->required();
  command->add_option("-o,--output", options->output, "Where the page goes; - is the standard output")
      ->required()
      ->type_name("FILE");
  command->add_option("--title", options->title, "Title of the page")->capture_default_str();
  command->footer(
      R"(The page is one file that needs no network: styles with search, filters and sorting, and what "check"
says about their files. The directories are read in their order, as one collection. The exit code is 1 when
a file is refused; the page is written all the same and says why.

Examples:
  kostyle catalog styles/system styles/user -o styles.html
  kostyle catalog --title "My sounds" styles/user -o - | gzip > sounds.html.gz)");
  command->callback([options, &chosen] { chosen = [options] { return catalog(*options); }; });
}

}  // namespace tool
