// How the cost of saving, overwriting and removing each of many styles grows.
#include <stdexcept>

#include "rows/growth.h"
#include "written_folder.h"

namespace bench {
namespace {

// Manages `size` user styles, and as many mutable styles to save or to overwrite them with.
class SavingWorkload : public Workload {
 public:
  SavingWorkload(std::filesystem::path folder, std::size_t size)
      : path_(std::move(folder)), size_(size) {}

  void tidy() override {
    mutables_.clear();
    saved_.clear();
    host_.reset();
    folder_.reset();
  }

 protected:
  void makeHost() {
    folder_.emplace(path_);
    host_.emplace(path_);
  }
  void makeMutables() {
    for (std::size_t i = 0; i < size_; ++i) {
      KoStyleStyle* const style = StyleManager_createMutableStyle(host_->manager());
      MutableStyle_setName(style, KOSTYLE_TEXT("n"));
      KoStyleEffect* const effect = MutableStyle_insertAudioEffect(style, 0, KOSTYLE_TEXT("e"));
      MutableEffect_addParameter(effect, KOSTYLE_TEXT("p"));
      mutables_.push_back(style);
    }
  }
  Done save() {
    for (KoStyleStyle* style : mutables_) {
      int error = KOSTYLE_OK;
      saved_.push_back(expect(MutableStyle_save(style, false, &error)));
    }
    mutables_.clear();
    return {size_};
  }
  Done overwrite() {
    for (std::size_t i = 0; i < size_; ++i) {
      int error = KOSTYLE_OK;
      const Text id = Style_id(saved_[i]);
      expect(MutableStyle_overwrite(mutables_[i], id.c_str(), false, &error));
    }
    return {size_};
  }
  Done remove() {
    for (KoStyleStyle* style : saved_) {
      if (UserStyle_remove(style) != KOSTYLE_OK) throw std::runtime_error("not removed");
    }
    return {size_};
  }

 private:
  static KoStyleStyle* expect(KoStyleStyle* style) {
    if (!style) throw std::runtime_error("not saved");
    return style;
  }

  std::filesystem::path path_;
  std::size_t size_;
  std::optional<WrittenFolder> folder_;
  std::optional<Host> host_;
  std::vector<KoStyleStyle*> mutables_;
  std::vector<KoStyleStyle*> saved_;
};

class SavingEach : public SavingWorkload {
 public:
  using SavingWorkload::SavingWorkload;
  void prepare() override {
    makeHost();
    makeMutables();
  }
  Done run() override { return save(); }
};

class OverwritingEach : public SavingWorkload {
 public:
  using SavingWorkload::SavingWorkload;
  void prepare() override {
    makeHost();
    makeMutables();
    save();
    makeMutables();
  }
  Done run() override { return overwrite(); }
};

class RemovingEach : public SavingWorkload {
 public:
  using SavingWorkload::SavingWorkload;
  void prepare() override {
    makeHost();
    makeMutables();
    save();
  }
  Done run() override { return remove(); }
};

}  // namespace

void addGrowthSavingRows(Rows& rows, const Settings& settings) {
  const auto folder =
      (settings.fastScratch.empty() ? settings.scratch : settings.fastScratch) / "growth-saving";
  for (const std::size_t size : settings.sizes) {
    addRow<SavingEach>(rows, growthName("save", size), Runs::once, folder, size);
    addRow<OverwritingEach>(rows, growthName("overwrite", size), Runs::once, folder, size);
    addRow<RemovingEach>(rows, growthName("remove", size), Runs::once, folder, size);
  }
}

}  // namespace bench
