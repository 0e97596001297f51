// The random steps that a host takes with stored styles and their files.
#pragma once

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "support/kostyle.h"
#include "support/mutable_style_steps.h"

namespace test {

class StoredStyleSteps : public MutableStyleSteps {
 protected:
  using MutableStyleSteps::MutableStyleSteps;

  StoredReference* anyUser() {
    auto& users = sets[KOSTYLE_KIND_USER].styles;
    return users.empty() ? nullptr : &users[random_.below(users.size())];
  }

  // Saving and overwriting.

  void save() {
    MutableReference* const style = anyMutable();
    if (!style) return;
    log("save");
    KoStyleStyle* const handle = style->handle;
    if (random_.oneIn(8)) {
      EXPECT_EQ(MutableStyle_save(handle, true, nullptr), nullptr);
      return;
    }
    int error = -1;
    KoStyleStyle* const saved = MutableStyle_save(handle, random_.oneIn(2), &error);
    const int expected = style->attributes.name.empty() ? KOSTYLE_ERROR_ARGUMENT_MISSING
                         : style->hasEffect()           ? KOSTYLE_OK
                                                        : KOSTYLE_ERROR_NO_EFFECT;
    ASSERT_EQ(error, expected);
    ASSERT_EQ(saved != nullptr, expected == KOSTYLE_OK);
    if (!saved) return;
    const Text id = Style_id(saved);
    const std::string name = utf8(id) + ".kostyle";
    const StyleValue value = style->value();
    users().files[name] = FileReference::of(id, value);
    users().styles.push_back({saved, name, id, {}, asStored(value), std::nullopt});
    forgetConsumed(*style);
    noteFilesChanged();
  }

  void overwrite() {
    MutableReference* const style = anyMutable();
    if (!style) return;
    const StoredReference* const user = anyUser();
    const Text id = user && !random_.oneIn(6) ? user->id : pooledID();
    const bool null = random_.oneIn(20);
    log("overwrite ") << (null ? "null" : utf8(id));
    int error = -1;
    KoStyleStyle* const result =
        MutableStyle_overwrite(style->handle, null ? nullptr : id.c_str(), random_.oneIn(2), &error);
    StoredReference* const target = users().find(id);
    const int expected = expectedOverwrite(*style, target, null);
    ASSERT_EQ(error, expected);
    ASSERT_EQ(result, expected == KOSTYLE_OK ? target->handle : nullptr);
    if (!result) return;
    const StyleValue value = style->value();
    users().files[target->fileName] = FileReference::of(target->id, value);
    target->value = asStored(value);
    forgetConsumed(*style);
    noteFilesChanged();
  }

  void forgetConsumed(const MutableReference& style) {
    EXPECT_FALSE(StyleManager_hasMutableStyle(manager(), style.handle));
    forget(style);
  }

  int expectedOverwrite(const MutableReference& style, const StoredReference* target, bool nullID) {
    if (nullID) return KOSTYLE_ERROR_ARGUMENT_MISSING;
    if (!target) return KOSTYLE_ERROR_USER_STYLE_NOT_FOUND;
    if (style.attributes.name.empty()) return KOSTYLE_ERROR_WRITE_EMPTY_NAME;
    if (!style.hasEffect()) return KOSTYLE_ERROR_NO_EFFECT;
    if (!users().files.count(target->fileName)) return KOSTYLE_ERROR_TARGET_NOT_REPLACEABLE;
    return KOSTYLE_OK;
  }

  void removeUser() {
    StoredReference* const user = anyUser();
    if (!user) return;
    log("removeUser ") << utf8(user->id);
    const bool hasFile = users().files.count(user->fileName) != 0;
    KoStyleStyle* const handle = user->handle;
    ASSERT_EQ(UserStyle_remove(handle), hasFile ? KOSTYLE_OK : KOSTYLE_ERROR_DELETE_FAILED);
    if (!hasFile) return;
    users().files.erase(user->fileName);
    users().styles.erase(users().styles.begin() + (user - users().styles.data()));
    EXPECT_FALSE(StyleManager_hasUserStyle(manager(), handle));
    noteFilesChanged();
  }

  // Property editors.

  void createEditor() {
    StoredReference* const user = anyUser();
    if (!user) return;
    log("createEditor of ") << utf8(user->id);
    KoStylePropertyEditor* const editor = UserStyle_createPropertyEditor(user->handle);
    ASSERT_NE(editor, nullptr);
    user->editor = EditorReference{editor, {}, {}, {}};
  }

  void destroyEditor() {
    StoredReference* const user = anyUser();
    if (!user || !random_.oneIn(4)) return;
    log("destroyEditor of ") << utf8(user->id);
    UserStyle_destroyPropertyEditor(user->handle);
    user->editor.reset();
  }

  /// A random user style that has an editor.
  StoredReference* anyEdited() {
    std::vector<StoredReference*> edited;
    for (StoredReference& user : users().styles) {
      if (user.editor) edited.push_back(&user);
    }
    return edited.empty() ? nullptr : random_.of(edited);
  }

  void setEditorName() {
    StoredReference* const user = anyEdited();
    if (!user) return;
    const Text name = random_.oneIn(8) ? Text(100 + random_.below(2), KoStyleChar('e')) : word();
    log("setEditorName ") << utf8(name);
    EXPECT_EQ(PropertyEditor_setStyleName(user->editor->handle, orNull(name)), !name.empty());
    if (!name.empty()) user->editor->name = name;
  }

  void addToEditor() {
    StoredReference* const user = anyEdited();
    if (!user) return;
    const Text value = word();
    const bool color = random_.oneIn(2);
    log(color ? "addColor " : "addSubGenre ") << utf8(value);
    auto& pending = color ? user->editor->colors : user->editor->subGenres;
    EXPECT_EQ((color ? PropertyEditor_addColor : PropertyEditor_addSubGenre)(user->editor->handle,
                                                                             orNull(value)),
              !value.empty() && pending.insert(value).second);
  }

  void saveEditor() {
    StoredReference* const user = anyEdited();
    if (!user) return;
    log("saveEditor of ") << utf8(user->id);
    const EditorReference& editor = *user->editor;
    const bool saved = !editor.name.empty() && editor.name.size() <= KOSTYLE_MAX_NAME_LENGTH;
    ASSERT_EQ(PropertyEditor_save(editor.handle, random_.oneIn(2)), saved);
    if (!saved) return;
    user->value.name = editor.name;
    user->value.lists[subGenres].assign(editor.subGenres.begin(), editor.subGenres.end());
    user->value.lists[colors].assign(editor.colors.begin(), editor.colors.end());
    users().files[user->fileName] = FileReference::of(user->id, user->value);
    noteFilesChanged();
  }

  // Reading, and changing files behind the library's back.

  void readUser() {
    if (!random_.oneIn(2)) return;
    log("readUser");
    read(KOSTYLE_KIND_USER);
  }

  void readSystem() {
    if (!random_.oneIn(2)) return;
    log("readSystem");
    read(KOSTYLE_KIND_SYSTEM);
  }

  /// An identifier of a few, so that they meet again.
  Text pooledID() { return text("id" + std::to_string(random_.below(4))); }

  std::string pooledFileName() { return "file" + std::to_string(random_.below(4)) + ".kostyle"; }

  void putFile() {
    const std::size_t kind = random_.below(2);
    const std::string name = pooledFileName();
    const Text id = pooledID();
    const std::string styleName(random_.oneIn(4) ? 101 : 5, 'f');
    log("putFile ") << kind << ' ' << name << ' ' << utf8(id);
    writeFile(folder(kind) / name, R"({"vendor":"V","id":")" + utf8(id) + R"(","name":")" + styleName +
                                       R"(","midiEffect":{"M":{"parameter":{"p":1}}}})");
    FileReference file{KOSTYLE_OK, id, text("V"), {}};
    if (styleName.size() <= KOSTYLE_MAX_NAME_LENGTH) file.value.name = text(styleName);
    file.value.chains[1] = {{text("M"), {ParameterValue::ofInt(text("p"), 1)}}};
    sets[kind].files[name] = std::move(file);
    noteFilesChanged();
  }

  void putBadFile() {
    if (!random_.oneIn(4)) return;
    const std::size_t kind = random_.below(2);
    const std::string name = pooledFileName();
    log("putBadFile ") << kind << ' ' << name;
    writeFile(folder(kind) / name, "{");
    sets[kind].files[name] = {KOSTYLE_ERROR_JSON_SYNTAX, {}, {}, {}};
    noteFilesChanged();
  }

  void deleteFile() {
    const std::size_t kind = random_.below(2);
    if (sets[kind].files.empty() || !random_.oneIn(3)) return;
    auto file = sets[kind].files.begin();
    std::advance(file, random_.below(sets[kind].files.size()));
    log("deleteFile ") << kind << ' ' << file->first;
    ASSERT_TRUE(fs::remove(folder(kind) / file->first));
    sets[kind].files.erase(file);
    noteFilesChanged();
  }

 private:
  SetReference& users() { return sets[KOSTYLE_KIND_USER]; }
};

}  // namespace test
