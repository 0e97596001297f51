// Saving new styles, beside building and writing the same documents with RapidJSON alone.
#include <optional>
#include <stdexcept>

#include "data/style_json.h"
#include "host.h"
#include "rows/mutable_styles.h"
#include "rows/rows.h"
#include "written_folder.h"

namespace bench {
namespace {

enum class Form { indented, compact };

class SavingByLibrary : public Workload {
 public:
  SavingByLibrary(std::filesystem::path folder, std::size_t count, Form form)
      : path_(std::move(folder)), contents_(typicalContents(count)), form_(form) {}

  void prepare() override {
    folder_.emplace(path_);
    host_.emplace(path_);
    for (const StyleContent& content : contents_) {
      styles_.push_back(makeMutableStyle(host_->manager(), content));
    }
  }
  Done run() override {
    int error = KOSTYLE_OK;
    for (KoStyleStyle* style : styles_) {
      if (!MutableStyle_save(style, form_ == Form::indented, &error))
        throw std::runtime_error("not saved");
    }
    return {styles_.size()};
  }
  void tidy() override {
    styles_.clear();
    host_.reset();
    folder_.reset();
  }

 private:
  std::filesystem::path path_;
  std::vector<StyleContent> contents_;
  Form form_;
  std::optional<WrittenFolder> folder_;
  std::optional<Host> host_;
  std::vector<KoStyleStyle*> styles_;
};

enum class Afterwards { nothing, keepCopy };

// Asks of the system what a save must ask: is the folder there, is the name free; then the file is
// opened, written and closed. Names and identifiers are at hand, and the document refers to the
// content's texts. To keep a copy is what a save does besides: the content that was saved is copied,
// and what it was copied from is freed.
class SavingByRapidjson : public Workload {
 public:
  SavingByRapidjson(std::filesystem::path folder, std::size_t count, Form form, Afterwards afterwards)
      : path_(std::move(folder)),
        contents_(typicalContents(count)),
        form_(form),
        afterwards_(afterwards) {
    for (std::size_t i = 0; i < count; ++i) {
      const std::string digits = std::to_string(i);
      const std::string id = "00000000-0000-4000-8000-" + std::string(12 - digits.size(), '0') + digits;
      contents_[i].id = toText(id);
      files_.push_back(path_ / (id + ".kostyle"));
    }
  }

  void prepare() override {
    folder_.emplace(path_);
    if (afterwards_ == Afterwards::keepCopy) given_ = contents_;
    kept_.reserve(given_.size());
  }
  Done run() override {
    for (std::size_t i = 0; i < files_.size(); ++i) {
      if (afterwards_ == Afterwards::nothing) {
        save(contents_[i], files_[i]);
      } else {
        save(given_[i], files_[i]);
        kept_.push_back(given_[i]);
        given_[i] = StyleContent();
      }
    }
    return {files_.size()};
  }
  void tidy() override {
    given_.clear();
    kept_.clear();
    folder_.reset();
  }

 private:
  void save(const StyleContent& content, const std::filesystem::path& path) const {
    if (!is_directory(path_) || exists(path)) throw std::runtime_error("no place to save to");
    const JsonDocument document = buildDocument(content, Vendor::leftOut);
    std::FILE* const file = std::fopen(path.string().c_str(), "wb");
    if (!file) throw std::runtime_error("not saved");
    if (form_ == Form::indented) {
      writeIndented(document, file);
    } else {
      writeCompact(document, file);
    }
    std::fclose(file);
  }

  std::filesystem::path path_;
  std::vector<StyleContent> contents_;
  Form form_;
  Afterwards afterwards_;
  std::vector<StyleContent> given_;
  std::vector<StyleContent> kept_;
  std::vector<std::filesystem::path> files_;
  std::optional<WrittenFolder> folder_;
};

void addForm(Rows& rows, const std::string& name, const std::filesystem::path& folder, Runs runs,
             std::size_t saves, Form form) {
  addRow<SavingByLibrary>(rows, name + "/library", runs, folder / "library", saves, form);
  addRow<SavingByRapidjson>(rows, name + "/rapidjson", runs, folder / "rapidjson", saves, form,
                            Afterwards::nothing);
  addRow<SavingByRapidjson>(rows, name + "/rapidjson-keeping", runs, folder / "rapidjson-keeping",
                            saves, form, Afterwards::keepCopy);
}

void addPlace(Rows& rows, const std::string& name, const std::filesystem::path& folder, Runs runs,
              std::size_t saves) {
  addForm(rows, name + "/indented", folder, runs, saves, Form::indented);
  addForm(rows, name + "/compact", folder, runs, saves, Form::compact);
}

}  // namespace

void addSavingRows(Rows& rows, const Settings& settings) {
  const std::filesystem::path disk = settings.scratch / "saving";
  const std::filesystem::path memory = settings.fastScratch / "saving";
  addPlace(rows, "saving/disk", disk, Runs::once, settings.saves);
  if (settings.fastScratch.empty()) return;
  addPlace(rows, "saving/memory", memory, Runs::once, settings.saves);
  constexpr std::size_t few = 10;
  addPlace(rows, "saving/memory-few", memory, Runs::many, few);
}

}  // namespace bench
