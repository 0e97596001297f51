// Full walks over the typical set, through the library's exports, through the ranges of the C++ layer,
// and through the exports of plain structs.
#include <memory>
#include <optional>
#include <stdexcept>

#include "host.h"
#include "rows/plain_copy.h"
#include "rows/rows.h"
#include "rows/walk.h"
#include "rows/walk_api.h"
#include "rows/walk_ranges.h"

namespace bench {
namespace {

// Read when it is first walked, and shared by all walks.
class WalkedSet {
 public:
  explicit WalkedSet(std::filesystem::path directory) : directory_(std::move(directory)) {}

  void load() {
    if (host_) return;
    host_.emplace(directory_);
    host_->read();
    plain_.emplace(host_->manager());
  }
  KoStyleManager* styles(LibraryApi) { return host_->manager(); }
  PlainStyles* styles(PlainApi) { return plain_->styles(); }

 private:
  std::filesystem::path directory_;
  std::optional<Host> host_;
  std::optional<PlainCopy> plain_;
};

enum class By { index, next };

template <class Api, By by>
class Walking : public Workload {
 public:
  explicit Walking(std::shared_ptr<WalkedSet> set) : set_(std::move(set)) {}

  void prepare() override { set_->load(); }
  Done run() override {
    Walk<Api> walk;
    if constexpr (by == By::index) {
      walk.byIndex(set_->styles(Api()));
    } else {
      walk.byNext(set_->styles(Api()));
    }
    if (walk.sum() == 0) throw std::runtime_error("nothing was walked");
    return {walk.calls()};
  }

 private:
  std::shared_ptr<WalkedSet> set_;
};

// The calls are those of the walk by index, but that styles are walked by next.
class WalkingRanges : public Workload {
 public:
  explicit WalkingRanges(std::shared_ptr<WalkedSet> set) : set_(std::move(set)) {}

  void prepare() override {
    set_->load();
    Walk<LibraryApi> walk;
    walk.byIndex(set_->styles(LibraryApi()));
    calls_ = walk.calls();
  }
  Done run() override {
    RangeWalk walk;
    walk.styles(kostyle::ManagerView(set_->styles(LibraryApi())));
    if (walk.sum() == 0) throw std::runtime_error("nothing was walked");
    return {calls_};
  }

 private:
  std::shared_ptr<WalkedSet> set_;
  std::size_t calls_ = 0;
};

}  // namespace

void addWalkingRows(Rows& rows, const Settings& settings) {
  const auto set = std::make_shared<WalkedSet>(settings.data / "sets" / "typical");
  addRow<Walking<LibraryApi, By::index>>(rows, "walking/index/library", Runs::many, set);
  addRow<Walking<LibraryApi, By::next>>(rows, "walking/next/library", Runs::many, set);
  addRow<WalkingRanges>(rows, "walking/ranges/library", Runs::many, set);
  addRow<Walking<PlainApi, By::index>>(rows, "walking/index/plain", Runs::many, set);
  addRow<Walking<PlainApi, By::next>>(rows, "walking/next/plain", Runs::many, set);
}

}  // namespace bench
