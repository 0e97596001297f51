// Filling mutable styles with typical content, what they hold then, and destroying them.
#include <optional>

#include "heap.h"
#include "host.h"
#include "rows/mutable_styles.h"
#include "rows/rows.h"
#include "written_folder.h"

namespace bench {
namespace {

constexpr std::size_t styles = 100;

class EditingWorkload : public Workload {
 public:
  explicit EditingWorkload(const std::filesystem::path& scratch) : folder_(scratch / "editing") {}

 protected:
  void makeHost() { host_.emplace(folder_.path()); }
  void destroyHost() { host_.reset(); }
  void fillStyles() {
    for (const StyleContent& content : contents_) {
      handles_.push_back(makeMutableStyle(host_->manager(), content));
    }
  }
  void destroyStyles() {
    for (KoStyleStyle* style : handles_) MutableStyle_destroy(style);
    handles_.clear();
  }

 private:
  WrittenFolder folder_;
  std::vector<StyleContent> contents_ = typicalContents(styles);
  std::vector<KoStyleStyle*> handles_;
  std::optional<Host> host_;
};

class Filling : public EditingWorkload {
 public:
  using EditingWorkload::EditingWorkload;
  void prepare() override { makeHost(); }
  Done run() override {
    fillStyles();
    return {styles};
  }
  void tidy() override {
    destroyStyles();
    destroyHost();
  }
};

class HoldingMutable : public EditingWorkload {
 public:
  using EditingWorkload::EditingWorkload;
  void prepare() override { makeHost(); }
  Done run() override {
    const std::size_t before = memoryInUse();
    fillStyles();
    return {styles, memoryInUse() - before};
  }
  void tidy() override {
    destroyStyles();
    destroyHost();
  }
};

class DestroyingMutable : public EditingWorkload {
 public:
  using EditingWorkload::EditingWorkload;
  void prepare() override {
    makeHost();
    fillStyles();
  }
  Done run() override {
    destroyStyles();
    return {styles};
  }
  void tidy() override { destroyHost(); }
};

}  // namespace

void addEditingRows(Rows& rows, const Settings& settings) {
  addRow<Filling>(rows, "editing/filling", Runs::many, settings.scratch);
  addRow<HoldingMutable>(rows, "memory/mutable/library", Runs::once, settings.scratch);
  addRow<DestroyingMutable>(rows, "editing/destroying", Runs::many, settings.scratch);
}

}  // namespace bench
