#include "editing/edited_document.h"

#include <fmt/core.h>

#include <algorithm>
#include <array>
#include <optional>

#include "basics/failure.h"
#include "editing/container_edit.h"
#include "editing/counting_members.h"
#include "format/style_keys.h"

namespace tool {
namespace {

namespace key = Tesk::KoStyle::key;
using Tesk::KoStyle::EffectKind;
using Tesk::KoStyle::textAttributes;

bool changesNothing(const StyleChange& change) {
  const auto isEmpty = [](const auto& list) { return list.removed.empty() && list.added.empty(); };
  return isEmpty(change.languages) && std::all_of(change.texts.begin(), change.texts.end(), isEmpty);
}

class DocumentEditor {
 public:
  DocumentEditor(const std::string& file, const JsonDocument& document)
      : file_(file),
        document_(document),
        layout_(document),
        root_(document, layout_, document.root()) {}

  std::string edited(const StyleChange& change) {
    changeText(key::id, change.id);
    changeText(key::name, change.name);
    if (!changesNothing(change)) changeFilter(change);
    changeChain(EffectKind::audio, change.chains[0]);
    changeChain(EffectKind::midi, change.chains[1]);
    root_.writeTo(edits_);
    return edits_.applyTo(document_.source());
  }

 private:
  bool onlyAscii() const { return layout_.onlyAscii(); }

  const JsonNode* rootMember(TextView name) const { return document_.member(document_.root(), name); }

  void changeText(TextView name, const std::optional<Text>& text) {
    if (text) edits_.replace(rootMember(name)->span, jsonString(*text, onlyAscii()));
  }

  void require(const JsonNode& node, JsonKind kind) const {
    if (node.kind == kind) return;
    const Position at = document_.source().position(node.span.begin);
    throw Refused(fmt::format("{}:{}:{}: {} is not {}, so that nothing can be put into it", file_,
                              at.line, at.column, document_.path(node),
                              kind == JsonKind::array ? "a list" : "an object"));
  }

  // Where the library would write a new member: behind those that it writes before.
  template <std::size_t count>
  const JsonNode* lastOf(const std::array<TextView, count>& names) const {
    const JsonNode* last = nullptr;
    for (const TextView name : names) {
      const JsonNode* const member = rootMember(name);
      if (member && (!last || last->place < member->place)) last = member;
    }
    return last;
  }

  NewJson jsonOfElement(int language) const { return jsonOf(Value(language), onlyAscii()); }
  NewJson jsonOfElement(const Text& text) const { return jsonOf(Value(text), onlyAscii()); }

  bool isElement(const JsonNode& node, int language) const {
    return node.kind == JsonKind::integer && node.number == language;
  }
  bool isElement(const JsonNode& node, const Text& text) const {
    return node.isString() && asSeen(document_.text(node)) == text;
  }

  // `filter` is null when the document has none: what is to be in it is then put into `made`.
  template <typename Element>
  void changeList(const ListChange<Element>& change, TextView name, const JsonNode* filter,
                  ContainerEdit* filterEdit, NewJson& made) {
    if (change.removed.empty() && change.added.empty()) return;
    const JsonNode* const list = filter ? document_.member(*filter, name) : nullptr;
    if (!list) {
      NewJson array{JsonKind::array};
      for (const Element& element : change.added)
        array.children.push_back({{}, jsonOfElement(element)});
      if (filterEdit) return filterEdit->add(name, std::move(array));
      made.children.push_back({jsonString(name, onlyAscii()), std::move(array)});
      return;
    }
    require(*list, JsonKind::array);
    ContainerEdit edit(document_, layout_, *list);
    for (const JsonNode& node : *list)
      for (const Element& element : change.removed)
        if (isElement(node, element)) edit.remove(node);
    for (const Element& element : change.added) edit.add(jsonOfElement(element));
    edit.writeTo(edits_);
  }

  void changeFilter(const StyleChange& change) {
    const JsonNode* const filter = rootMember(key::filter);
    if (filter) require(*filter, JsonKind::object);
    std::optional<ContainerEdit> edit;
    if (filter) edit.emplace(document_, layout_, *filter);
    NewJson made{JsonKind::object};
    ContainerEdit* const filterEdit = edit ? &*edit : nullptr;
    changeList(change.languages, key::languages, filter, filterEdit, made);
    for (const auto attribute : textAttributes)
      changeList(change.texts[static_cast<std::size_t>(attribute)], key::list(attribute), filter,
                 filterEdit, made);
    if (edit) return edit->writeTo(edits_);
    root_.add(key::filter, std::move(made), lastOf(std::array{key::id, key::name, key::vendor}));
  }

  NewJson parametersOf(const EffectContent& effect) const {
    NewJson parameters{JsonKind::object};
    for (const ParameterContent& parameter : effect.parameters)
      parameters.children.push_back(
          {jsonString(parameter.name, onlyAscii()), jsonOf(parameter.value, onlyAscii())});
    return parameters;
  }

  NewJson jsonOfEffect(const EffectContent& effect) const {
    NewJson object{JsonKind::object};
    object.children.push_back({jsonString(key::parameter, onlyAscii()), parametersOf(effect)});
    return object;
  }

  void changeChain(EffectKind kind, const ChainChange& change) {
    if (change.removed.empty() && change.changed.empty() && change.added.empty()) return;
    const JsonNode* const chain = rootMember(key::chain(kind));
    if (!chain) {
      NewJson made{JsonKind::object};
      for (const EffectContent& effect : change.added)
        made.children.push_back({jsonString(effect.id, onlyAscii()), jsonOfEffect(effect)});
      const auto before =
          std::array{key::id, key::name, key::vendor, key::filter, key::chain(EffectKind::audio)};
      return root_.add(key::chain(kind), std::move(made), lastOf(before));
    }
    require(*chain, JsonKind::object);
    ContainerEdit edit(document_, layout_, *chain);
    for (const Text& id : change.removed)
      for (const JsonNode* effect : effectsCalled(document_, *chain, id)) edit.remove(*effect);
    for (const EffectChange& effect : change.changed) changeEffect(*chain, effect);
    for (const EffectContent& effect : change.added) addEffect(*chain, edit, effect);
    edit.writeTo(edits_);
  }

  // An object that lacks nothing but parameters is given them.
  void addEffect(const JsonNode& chain, ContainerEdit& edit, const EffectContent& effect) {
    for (const JsonNode& member : chain) {
      if (asSeen(document_.key(member)) != effect.id || !member.isObject()) continue;
      if (document_.member(member, key::parameter)) continue;
      ContainerEdit inner(document_, layout_, member);
      inner.add(key::parameter, parametersOf(effect));
      return inner.writeTo(edits_);
    }
    edit.add(effect.id, jsonOfEffect(effect));
  }

  void changeEffect(const JsonNode& chain, const EffectChange& change) {
    const JsonNode& effect = *effectsCalled(document_, chain, change.id).front();
    const JsonNode& parameters = *document_.member(effect, key::parameter);
    require(parameters, JsonKind::object);
    ContainerEdit edit(document_, layout_, parameters);
    for (const Text& name : change.removed)
      for (const JsonNode* member : parametersCalled(document_, parameters, name)) edit.remove(*member);
    for (const ParameterContent& parameter : change.replaced)
      edits_.replace(parametersCalled(document_, parameters, parameter.name).front()->span,
                     jsonOf(parameter.value, onlyAscii()).text);
    for (const ParameterContent& parameter : change.added) {
      const NewJson value = jsonOf(parameter.value, onlyAscii());
      // A member of the name that is no parameter becomes one.
      if (const JsonNode* const member = memberCalled(document_, parameters, parameter.name)) {
        edits_.replace(member->span, value.text);
      } else {
        edit.add(parameter.name, value);
      }
    }
    edit.writeTo(edits_);
  }

  const std::string& file_;
  const JsonDocument& document_;
  const Layout layout_;
  ContainerEdit root_;
  TextEdits edits_;
};

}  // namespace

std::string editedDocument(const std::string& file, const std::string& bytes,
                           const StyleChange& change) {
  const SourceText source(bytes);
  const JsonDocument document(source);
  if (document.error()) throw Refused(fmt::format("{}: not valid JSON", file));
  return DocumentEditor(file, document).edited(change);
}

}  // namespace tool
