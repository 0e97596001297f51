// lilv, loading presets: each bundle's manifest, then each preset with the values of its ports and
// properties.
#pragma once

#include <lilv/lilv.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace bench {

class LilvPresets {
 public:
  explicit LilvPresets(const std::filesystem::path& bundles);

  std::size_t read();

 private:
  struct Release {
    void operator()(LilvWorld* world) const { lilv_world_free(world); }
    void operator()(LilvState* state) const { lilv_state_free(state); }
    void operator()(LilvNode* node) const { lilv_node_free(node); }
    void operator()(LilvNodes* nodes) const { lilv_nodes_free(nodes); }
  };
  template <class Type>
  using Owned = std::unique_ptr<Type, Release>;

  std::vector<std::string> bundles_;
  Owned<LilvWorld> world_;
  std::vector<Owned<LilvState>> states_;
};

}  // namespace bench
