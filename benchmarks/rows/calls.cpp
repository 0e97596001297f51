// Single calls, again and again on one object: what each shape of an export costs.
#include <cstdint>
#include <memory>
#include <optional>
#include <stdexcept>

#include "host.h"
#include "plain/bare_virtual.h"
#include "rows/rows.h"

namespace bench {
namespace {

// One object of each family.
struct Objects {
  KoStyleStyle* style;
  KoStyleEffect* effect;
  KoStyleParameter* parameter;
  KoStyleStyle* mutableStyle;
  KoStyleEffect* mutableEffect;
  KoStyleParameter* mutableParameter;
  BareVirtual* bare;
};

// Makes the objects when the first of the calls is measured.
class Owner {
 public:
  explicit Owner(std::filesystem::path directory) : directory_(std::move(directory)) {}

  void load() {
    if (host_) return;
    host_.emplace(directory_);
    host_->read();
    objects_.style = StyleManager_systemStyle(host_->manager(), 0);
    objects_.effect = Style_audioEffect(objects_.style, 0);
    objects_.parameter = Effect_parameter(objects_.effect, 0);
    objects_.mutableStyle = StyleManager_createMutableStyle(host_->manager());
    objects_.mutableEffect =
        MutableStyle_insertAudioEffect(objects_.mutableStyle, 0, KOSTYLE_TEXT("effect"));
    objects_.mutableParameter =
        MutableEffect_addParameter(objects_.mutableEffect, KOSTYLE_TEXT("parameter"));
    objects_.bare = Plain_bareVirtual();
  }
  const Objects& objects() const { return objects_; }

 private:
  std::filesystem::path directory_;
  std::optional<Host> host_;
  Objects objects_{};
};

template <class Call>
class Calls : public Workload {
 public:
  Calls(std::shared_ptr<Owner> owner, Call call) : owner_(std::move(owner)), call_(call) {}

  void prepare() override { owner_->load(); }
  Done run() override {
    constexpr std::size_t calls = 100'000;
    const Objects objects = owner_->objects();
    std::uintptr_t sum = 0;
    for (std::size_t i = 0; i < calls; ++i) sum += reinterpret_cast<std::uintptr_t>(call_(objects));
    if (sum == 0) throw std::runtime_error("nothing was answered");
    return {calls};
  }

 private:
  std::shared_ptr<Owner> owner_;
  Call call_;
};

}  // namespace

void addCallRows(Rows& rows, const Settings& settings) {
  const auto owner = std::make_shared<Owner>(settings.data / "sets" / "small");
  const auto add = [&](const char* name, auto call) {
    addRow<Calls<decltype(call)>>(rows, std::string("calls/") + name, Runs::many, owner, call);
  };
  add("virtual", [](const Objects& o) { return o.bare->name(); });

  add("direct/Style_name", [](const Objects& o) { return Style_name(o.style); });
  add("direct/Effect_id", [](const Objects& o) { return Effect_id(o.effect); });
  add("direct/Parameter_name", [](const Objects& o) { return Parameter_name(o.parameter); });
  add("direct/Effect_id-mutable", [](const Objects& o) { return Effect_id(o.mutableEffect); });
  add("direct/Parameter_name-mutable",
      [](const Objects& o) { return Parameter_name(o.mutableParameter); });

  add("checked/Style_vendor", [](const Objects& o) { return Style_vendor(o.style); });

  add("converting/Effect_parent", [](const Objects& o) { return Effect_parent(o.effect); });
  add("converting/Parameter_parent", [](const Objects& o) { return Parameter_parent(o.parameter); });
  add("converting/MutableEffect_parent",
      [](const Objects& o) { return MutableEffect_parent(o.mutableEffect); });
  add("converting/MutableParameter_parent",
      [](const Objects& o) { return MutableParameter_parent(o.mutableParameter); });
}

}  // namespace bench
