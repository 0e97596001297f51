#include "peers/lilv_presets.h"

#include <lv2/presets/presets.h>
#include <lv2/urid/urid.h>

#include <unordered_map>

namespace bench {
namespace {

// Numbers for URIs, as a host hands them out.
using Numbers = std::unordered_map<std::string, LV2_URID>;

LV2_URID numberOf(LV2_URID_Map_Handle handle, const char* uri) {
  auto& numbers = *static_cast<Numbers*>(handle);
  return numbers.emplace(uri, static_cast<LV2_URID>(numbers.size() + 1)).first->second;
}

}  // namespace

LilvPresets::LilvPresets(const std::filesystem::path& bundles) {
  for (const auto& entry : std::filesystem::directory_iterator(bundles)) {
    bundles_.push_back(entry.path().string() + "/");
  }
}

std::size_t LilvPresets::read() {
  Numbers numbers;
  LV2_URID_Map map{&numbers, numberOf};
  world_.reset(lilv_world_new());
  LilvWorld* const world = world_.get();
  for (const std::string& bundle : bundles_) {
    const Owned<LilvNode> uri(lilv_new_file_uri(world, nullptr, bundle.c_str()));
    lilv_world_load_bundle(world, uri.get());
  }
  const Owned<LilvNode> type(lilv_new_uri(world, LILV_NS_RDF "type"));
  const Owned<LilvNode> preset(lilv_new_uri(world, LV2_PRESETS__Preset));
  const Owned<LilvNodes> presets(lilv_world_find_nodes(world, nullptr, type.get(), preset.get()));
  std::size_t values = 0;
  LILV_FOREACH(nodes, i, presets.get()) {
    const LilvNode* const node = lilv_nodes_get(presets.get(), i);
    lilv_world_load_resource(world, node);
    states_.emplace_back(lilv_state_new_from_world(world, &map, node));
    if (!states_.back()) return 0;
    values += lilv_state_get_num_properties(states_.back().get());
  }
  return values ? states_.size() : 0;
}

}  // namespace bench
