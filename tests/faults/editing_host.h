// A manager with user styles on disk, for tests that make their files fail.
#pragma once

#include <gmock/gmock.h>

#include <string>

#include "support/host.h"

namespace test {

struct EditingHost : Host {
  /// Puts a user style of the name "Old `id`" into the file `id`.kostyle.
  void writeStyle(const std::string& id) const {
    writeFile(user / (id + ".kostyle"), document(id, "Old " + id));
  }
  void read() const { ASSERT_EQ(StyleManager_readUserStyles(manager), KOSTYLE_OK); }

  /// A mutable style of the name "New" that can be written.
  KoStyleStyle* createMutableStyle() const { return Host::createMutableStyle("New"); }

  std::string bytes(const std::string& id) const { return readFile(user / (id + ".kostyle")); }
};

}  // namespace test
