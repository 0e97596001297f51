// Random documents with random changes, against a reference that changes a tree and prints it again.
#include <optional>

#include "support/encodings.h"
#include "support/host.h"
#include "support/random.h"
#include "support/style_value.h"
#include "tool/random_document.h"
#include "tool/tool.h"

namespace test {
namespace {

StoredValue readStyle(const std::string& bytes) {
  const Host host;
  writeFile(host.system / "s.kostyle", bytes);
  StyleManager_readSystemStyles(host.manager);
  return storedValueOf(StyleManager_systemStyle(host.manager, 0));
}

// The reference: which members count, and a change made in the tree of a document and in its style.
class Reference {
 public:
  Reference(JsonText root, StoredValue style, Random& random)
      : root_(std::move(root)), style_(std::move(style)), random_(random) {}

  // False when the change is not possible here.
  bool change() {
    switch (random_.below(8)) {
      case 0:
        return rename();
      case 1:
        return replaceParameter();
      case 2:
        return deleteParameter();
      case 3:
        return addParameter();
      case 4:
        return deleteEffect();
      case 5:
        return addEffect();
      case 6:
        return deleteGenre();
      default:
        return addGenre();
    }
  }

  const JsonText& root() const { return root_; }
  const StoredValue& style() const { return style_; }
  const Arguments& arguments() const { return arguments_; }

  // Where the change is made: the way to the value, by places among the children.
  const std::vector<std::size_t>& way() const { return way_; }

 private:
  static std::string nameOf(const JsonMember& member) {
    return member.name == "Tarn" ? "Tarn630" : member.name;
  }
  static bool isParameter(const JsonMember& member) {
    const JsonText::Kind kind = member.value.kind;
    return kind == JsonText::integer || kind == JsonText::real || kind == JsonText::string;
  }
  static bool isEffect(const JsonMember& member) {
    const auto& children = member.value.children;
    return member.value.kind == JsonText::object &&
           std::any_of(children.begin(), children.end(),
                       [](const JsonMember& child) { return child.name == "parameter"; });
  }

  // The value of the first member that is called so and, if it matters, can be what it is to be.
  template <typename Check>
  JsonText& enter(JsonText& object, const std::string& name, Check check) {
    for (std::size_t i = 0; i < object.children.size(); ++i) {
      JsonMember& member = object.children[i];
      if (nameOf(member) != name || !check(member)) continue;
      way_.push_back(i);
      return member.value;
    }
    throw std::runtime_error("the reference finds no " + name);
  }
  JsonText& enter(JsonText& object, const std::string& name) {
    return enter(object, name, [](const JsonMember&) { return true; });
  }

  template <typename Check>
  static void erase(JsonText& container, Check check) {
    auto& children = container.children;
    children.erase(std::remove_if(children.begin(), children.end(), check), children.end());
  }

  static JsonText number(const std::string& raw) { return {JsonText::integer, raw, {}}; }
  static JsonMember member(const std::string& name, JsonText value) {
    return {name, '"' + name + '"', std::move(value), "", "", "", ""};
  }

  JsonText& enterParameters(const EffectValue& effect) {
    JsonText& chain = enter(root_, "audioEffect");
    return enter(enter(chain, utf8(effect.id), isEffect), "parameter");
  }

  bool rename() {
    enter(root_, "name").raw = "\"new \xC3\xA9\"";
    style_.name = text("new \xC3\xA9");
    arguments_ = {"--name", "new \xC3\xA9"};
    return true;
  }

  EffectValue* anyEffect() { return &style_.chains[0][random_.below(style_.chains[0].size())]; }

  bool replaceParameter() {
    EffectValue* const effect = anyEffect();
    if (effect->parameters.empty()) return false;
    ParameterValue& parameter = effect->parameters[random_.below(effect->parameters.size())];
    const std::string name = utf8(parameter.name);
    std::string& raw = enter(enterParameters(*effect), name, isParameter).raw;
    std::string given;
    if (parameter.type == KOSTYLE_PARAMETER_INT) {
      parameter.integer = static_cast<int>(random_.bits());
      raw = given = std::to_string(parameter.integer);
    } else if (parameter.type == KOSTYLE_PARAMETER_FLOAT) {
      const std::vector<std::vector<std::string>> floats{
          {"1", "1.0"}, {"0.25", "0.25"}, {"2.50", "2.5"}, {"1e20", "1e+20"}, {".5", "0.5"}};
      const auto& chosen = random_.of(floats);
      const float before = parameter.real;
      parameter.real = std::stof(chosen[0]);
      given = chosen[0];
      if (parameter.real != before) raw = chosen[1];
    } else {
      parameter.string = text("x\"y");
      given = "x\"y";
      raw = R"("x\"y")";
    }
    arguments_ = {"--param", "audio:" + utf8(effect->id) + '.' + name + '=' + given};
    return true;
  }

  bool deleteParameter() {
    EffectValue* const effect = anyEffect();
    if (effect->parameters.empty()) return false;
    const auto parameter = effect->parameters.begin() +
                           static_cast<std::ptrdiff_t>(random_.below(effect->parameters.size()));
    const std::string name = utf8(parameter->name);
    erase(enterParameters(*effect),
          [&](const JsonMember& each) { return nameOf(each) == name && isParameter(each); });
    arguments_ = {"--delete-param", "audio:" + utf8(effect->id) + '.' + name};
    effect->parameters.erase(parameter);
    return true;
  }

  bool addParameter() {
    EffectValue* const effect = anyEffect();
    JsonText& parameters = enterParameters(*effect);
    parameters.children.push_back(member("zz", number("5")));
    effect->parameters.push_back(ParameterValue::ofInt(text("zz"), 5));
    arguments_ = {"--add", "--param", "audio:" + utf8(effect->id) + ".zz=5"};
    return true;
  }

  bool deleteEffect() {
    const std::size_t place = random_.below(style_.chains[0].size());
    const std::string id = utf8(style_.chains[0][place].id);
    erase(enter(root_, "audioEffect"),
          [&](const JsonMember& each) { return each.name == id && isEffect(each); });
    style_.chains[0].erase(style_.chains[0].begin() + static_cast<std::ptrdiff_t>(place));
    arguments_ = {"--delete-audio-effect", id};
    return true;
  }

  bool addEffect() {
    JsonText parameters{JsonText::object, "", {member("x", number("1"))}};
    JsonText effect{JsonText::object, "", {member("parameter", std::move(parameters))}};
    enter(root_, "audioEffect").children.push_back(member("Added", std::move(effect)));
    style_.chains[0].push_back({text("Added"), {ParameterValue::ofInt(text("x"), 1)}});
    arguments_ = {"--audio-effect", "Added", "--param", "Added.x=1"};
    return true;
  }

  // Of the genres, those of one letter behind a "g" are written with or without escapes.
  static bool isGenre(const JsonMember& member, char letter) {
    const std::string& raw = member.value.raw;
    if (member.value.kind != JsonText::string) return false;
    const std::string last = std::string("\\u006") + static_cast<char>('0' + letter - 0x60);
    const bool startsSo = raw.compare(0, 2, "\"g") == 0 || raw.compare(0, 7, "\"\\u0067") == 0;
    const std::string rest = raw.compare(0, 2, "\"g") == 0
                                 ? raw.substr(2)
                                 : raw.substr(std::min(raw.size(), std::size_t{7}));
    return startsSo && (rest == std::string{letter, '"'} || rest == last + '"');
  }

  bool deleteGenre() {
    std::vector<Text>& genres = style_.lists[test::genres];
    const char letter = static_cast<char>('a' + random_.below(3));
    const Text genre = text(std::string{'g', letter});
    const auto found = std::find(genres.begin(), genres.end(), genre);
    if (found == genres.end()) return false;
    genres.erase(found);
    erase(enter(enter(root_, "filter"), "genres"),
          [&](const JsonMember& each) { return isGenre(each, letter); });
    arguments_ = {"--delete-genre", utf8(genre)};
    return true;
  }

  bool addGenre() {
    JsonText& list = enter(enter(root_, "filter"), "genres");
    list.children.push_back({"", "", {JsonText::string, "\"zz\"", {}}, "", "", "", ""});
    style_.lists[test::genres].push_back(text("zz"));
    arguments_ = {"--add-genre", "zz"};
    return true;
  }

  JsonText root_;
  StoredValue style_;
  Random& random_;
  Arguments arguments_;
  std::vector<std::size_t> way_;
};

DocumentLayout randomLayout(Random& random) {
  const std::vector<std::string> steps{"  ", "    ", "\t"};
  return {static_cast<DocumentLayout::Kind>(random.below(4)), random.oneIn(3) ? "\r\n" : "\n",
          random.of(steps)};
}

// What stands outside of the value that was changed is as it was.
void expectSameOutside(const std::string& before, const std::string& after,
                       std::pair<std::size_t, std::size_t> place) {
  const std::size_t behind = before.size() - place.second;
  ASSERT_GE(after.size(), place.first + behind);
  EXPECT_EQ(after.substr(0, place.first), before.substr(0, place.first));
  EXPECT_EQ(after.substr(after.size() - behind), before.substr(place.second));
}

class SetRandom : public testing::Test {
 protected:
  std::string changed(const std::string& bytes, const Arguments& arguments) const {
    writeFile(file_, bytes);
    expectSuccess(runTool(Arguments{"set", "S", "--user", argument(user_)} + arguments));
    return readFile(file_);
  }

  // False when the change that was drawn is not possible.
  bool tryOne(Random& random) const {
    const DocumentLayout layout = randomLayout(random);
    JsonText document = DocumentMaker(random).style();
    layOut(document, layout, random);
    std::pair<std::size_t, std::size_t> place;
    Reference reference(document, readStyle(printed(document)), random);
    if (!reference.change()) return false;
    const JsonText* target = &document;
    for (const std::size_t step : reference.way()) target = &target->children[step].value;
    std::string before;
    print(document, before, target, &place);
    SCOPED_TRACE(before);
    SCOPED_TRACE(testing::PrintToString(reference.arguments()));

    const bool isRegular = layout.kind != DocumentLayout::anyhow;
    const Encoding encoding = isRegular ? random.of(allEncodings()) : Encoding::utf8;
    const std::string bytes = changed(encoded(before, encoding), reference.arguments());
    if (isRegular) {
      JsonText expected = reference.root();
      layOut(expected, layout, random);
      EXPECT_EQ(bytes, encoded(printed(expected), encoding)) << printed(expected);
    } else {
      EXPECT_EQ(withoutSpace(bytes), withoutSpace(reference.root()));
      expectSameOutside(before, bytes, place);
      if (!target->isContainer()) {
        EXPECT_EQ(bytes, printed(reference.root()));
      }
    }
    EXPECT_EQ(readStyle(bytes), sorted(reference.style()));
    return true;
  }

  // Lists and parameters have no order in a document.
  static StoredValue sorted(StoredValue style) {
    for (auto& list : style.lists) std::sort(list.begin(), list.end());
    for (auto& chain : style.chains)
      for (EffectValue& effect : chain)
        std::sort(effect.parameters.begin(), effect.parameters.end(),
                  [](const auto& a, const auto& b) { return a.name < b.name; });
    return style;
  }

  const TemporaryDirectory directory_;
  const fs::path user_ = directory_.folder("user");
  const fs::path file_ = user_ / "mine.kostyle";
};

TEST_F(SetRandom, ChangesWhatTheReferenceChanges) {
  int tried = 0;
  for (std::uint64_t seed = 0; tried < 120 && !HasFailure(); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Random random(seed);
    if (tryOne(random)) ++tried;
  }
}

}  // namespace
}  // namespace test
