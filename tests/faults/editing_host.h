// A manager with user styles on disk, for tests that make their files fail.
#pragma once

#include <gmock/gmock.h>

#include <memory>
#include <string>

#include "manager/style_manager.h"
#include "model/mutable_effect.h"
#include "model/mutable_style.h"
#include "support/temporary_directory.h"
#include "support/text.h"

namespace test {

using Tesk::KoStyle::IUserStyle;
using Tesk::KoStyle::MutableStyle;
using Tesk::KoStyle::StyleKind;
using Tesk::KoStyle::StyleManager;

struct EditingHost {
  TemporaryDirectory directory;
  fs::path system = directory.folder("system");
  fs::path user = directory.folder("user");
  StyleManager manager{KOSTYLE_TEXT("faults"), pathText(system), pathText(user), {}, {}};

  /// Puts a user style into the file `id`.kostyle.
  void writeStyle(const std::string& id) const {
    writeFile(user / (id + ".kostyle"), R"({"id":")" + id + R"(","name":"Old )" + id +
                                            R"(","audioEffect":{"E":{"parameter":{"p":1}}}})");
  }

  IUserStyle* find(const std::string& id) const {
    return dynamic_cast<IUserStyle*>(manager.styles(StyleKind::user).findKey(text(id)));
  }

  /// A mutable style that can be written.
  MutableStyle* draft(const std::string& name = "New") {
    auto* style = dynamic_cast<MutableStyle*>(manager.createMutableStyle());
    style->setName(text(name).c_str());
    style->insertAudioEffect(0, KOSTYLE_TEXT("F"))->addParameter(KOSTYLE_TEXT("q"));
    return style;
  }

  std::string bytes(const std::string& id) const { return readFile(user / (id + ".kostyle")); }
};

}  // namespace test
