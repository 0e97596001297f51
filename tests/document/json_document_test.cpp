// The tree of a JSON text and the places of its parts.
#include "document/json_document.h"

#include <gmock/gmock.h>

#include "format/document_generator.h"
#include "format/style_parser.h"
#include "support/encodings.h"
#include "support/temporary_directory.h"

namespace {

using test::encoded;
using test::Encoding;
using testing::ElementsAre;
using tool::JsonDocument;
using tool::JsonKind;
using tool::JsonNode;
using tool::SourceText;

// Every node in document order, as its path and what stands in the file, the key in front.
std::vector<std::string> nodesOf(const JsonDocument& document) {
  std::vector<std::string> nodes;
  const JsonNode* const root = &document.root();
  for (const JsonNode* node = root; node != root + root->treeSize; ++node) {
    const std::string key = document.source().utf8(node->keySpan);
    nodes.push_back(document.path(*node) + ' ' + key + '=' + document.source().utf8(node->span));
  }
  return nodes;
}

TEST(JsonDocument, KnowsWhereEverythingStands) {
  const std::u32string text =
      U" {\"a\" : [ 1 , -2.5e3,\"\\u00e9\U0001F3B5\"],\n\"\U0001F3B5\":{},\"a\":null , "
      U"\"t\":[true,false,{\"x/~\":[]}]}\n";
  for (const Encoding encoding : test::allEncodings()) {
    for (const bool mark : {false, true}) {
      SCOPED_TRACE(test::nameOf(encoding));
      const SourceText source(encoded(text, encoding, mark));
      const JsonDocument document(source);
      ASSERT_FALSE(document.error());
      EXPECT_EQ(document.parsedEnd(), source.end());
      auto nodes = nodesOf(document);
      EXPECT_EQ(nodes.front(), "/ =" + encoded(text.substr(1, text.size() - 2), Encoding::utf8, false));
      nodes.erase(nodes.begin());
      EXPECT_THAT(nodes, ElementsAre("/a \"a\"=[ 1 , -2.5e3,\"\\u00e9\xF0\x9F\x8E\xB5\"]", "/a/0 =1",
                                     "/a/1 =-2.5e3", "/a/2 =\"\\u00e9\xF0\x9F\x8E\xB5\"",
                                     "/\xF0\x9F\x8E\xB5 \"\xF0\x9F\x8E\xB5\"={}", "/a \"a\"=null",
                                     "/t \"t\"=[true,false,{\"x/~\":[]}]", "/t/0 =true", "/t/1 =false",
                                     "/t/2 ={\"x/~\":[]}", "/t/2/x~1~0 \"x/~\"=[]"));
    }
  }
}

TEST(JsonDocument, KnowsKindsAndValues) {
  const SourceText source(
      "[null,true,false,0,-2147483648,2147483647,2147483648,-2147483649,18446744073709551615,"
      "18446744073709551616,1.0,1e2,\"\\u0041\\n\",{},[]]");
  const JsonDocument document(source);
  std::vector<JsonKind> kinds;
  for (const JsonNode& node : document.root()) kinds.push_back(node.kind);
  EXPECT_THAT(kinds,
              ElementsAre(JsonKind::null, JsonKind::boolean, JsonKind::boolean, JsonKind::integer,
                          JsonKind::integer, JsonKind::integer, JsonKind::wideInteger,
                          JsonKind::wideInteger, JsonKind::wideInteger, JsonKind::real, JsonKind::real,
                          JsonKind::real, JsonKind::string, JsonKind::object, JsonKind::array));
  std::vector<double> numbers;
  for (const JsonNode& node : document.root()) numbers.push_back(node.number);
  EXPECT_THAT(numbers, ElementsAre(0, 1, 0, 0, -2147483648.0, 2147483647.0, 2147483648.0, -2147483649.0,
                                   18446744073709551615.0, 18446744073709551616.0, 1, 100, 0, 0, 0));
  const JsonNode& text = *std::next(&document.root(), 13);
  EXPECT_EQ(document.text(text), KOSTYLE_TEXT("A\n"));
  EXPECT_EQ(text.parent(), &document.root());
  EXPECT_EQ(text.place, 12u);
}

TEST(JsonDocument, TheFirstMemberWithAKeyIsFound) {
  const SourceText source("{\"a\":1,\"b\":{\"c\":2},\"a\":3}");
  const JsonDocument document(source);
  const JsonNode& root = document.root();
  EXPECT_EQ(root.numChildren, 3u);
  EXPECT_EQ(document.member(root, KOSTYLE_TEXT("a"))->number, 1);
  EXPECT_EQ(document.member(*document.member(root, KOSTYLE_TEXT("b")), KOSTYLE_TEXT("c"))->number, 2);
  EXPECT_EQ(document.member(root, KOSTYLE_TEXT("c")), nullptr);
  EXPECT_EQ(document.member(*(&root + 1), KOSTYLE_TEXT("a")), nullptr);
}

TEST(JsonDocument, SaysWhereAnErrorIs) {
  struct Case {
    const char32_t* text;
    const char* place;
  };
  for (const Case& each :
       {Case{U"", "1:1"}, Case{U"{\n  \"a\": tru\n}", "2:11"}, Case{U"[1,\n2", "2:2"},
        Case{U"[1,]", "1:4"}, Case{U"[\"\U0001F3B5\\x\"]", "1:4"}, Case{U"[1] 2", "1:5"},
        Case{U"{\"a\"=1}", "1:5"}, Case{U"[\"abc", "1:6"}, Case{U"[1e999]", "1:2"}}) {
    for (const Encoding encoding : test::allEncodings()) {
      if (*each.text == 0 && encoding != Encoding::utf8) continue;
      SCOPED_TRACE(encoded(each.text, Encoding::utf8, false) + test::nameOf(encoding));
      const SourceText source(encoded(each.text, encoding, *each.text != 0));
      const JsonDocument document(source);
      ASSERT_TRUE(document.error());
      const tool::Position position = source.position(document.error()->place);
      EXPECT_EQ(std::to_string(position.line) + ':' + std::to_string(position.column), each.place);
    }
  }
}

TEST(JsonDocument, EndsAtAUnitOfZero) {
  const SourceText source(std::string("{\"a\":1}\0 more", 13));
  const JsonDocument document(source);
  EXPECT_FALSE(document.error());
  EXPECT_EQ(document.parsedEnd(), 7u);
}

// Compares the tree with the library's document.
void expectSame(const JsonDocument& document, const JsonNode& node,
                const Tesk::KoStyle::json::Value& value) {
  namespace json = Tesk::KoStyle::json;
  EXPECT_EQ(node.isString(), value.IsString());
  EXPECT_EQ(node.kind == JsonKind::integer, value.IsInt());
  EXPECT_EQ(node.kind == JsonKind::real, value.IsDouble());
  EXPECT_EQ(node.isNumber(), value.IsNumber());
  if (value.IsString()) {
    EXPECT_EQ(document.text(node), json::view(value));
  }
  if (value.IsNumber()) {
    EXPECT_EQ(node.number, value.GetDouble());
  }
  ASSERT_EQ(node.isArray(), value.IsArray());
  ASSERT_EQ(node.isObject(), value.IsObject());
  if (value.IsArray()) {
    ASSERT_EQ(node.numChildren, value.Size());
    for (const JsonNode& child : node) expectSame(document, child, value[child.place]);
  } else if (value.IsObject()) {
    ASSERT_EQ(node.numChildren, value.MemberCount());
    for (const JsonNode& child : node) {
      const auto& member = *(value.MemberBegin() + static_cast<std::ptrdiff_t>(child.place));
      EXPECT_EQ(document.key(child), json::view(member.name));
      expectSame(document, child, member.value);
    }
  }
}

std::string generated(std::uint64_t seed) {
  test::Random random(seed);
  test::DocumentGenerator generator(random);
  std::u32string document = generator.document();
  if (random.oneIn(4)) document = generator.spliced(document);
  const auto& encodings = test::allEncodings();
  std::string bytes = encoded(document, encodings[random.below(encodings.size())], random.oneIn(2));
  return random.oneIn(8) ? generator.mutated(bytes) : bytes;
}

TEST(JsonDocument, IsWhatTheLibraryReads) {
  const test::TemporaryDirectory directory;
  Tesk::KoStyle::StyleParser parser;
  int refused = 0;
  constexpr int documents = 3000;
  for (std::uint64_t seed = 5000000; seed < 5000000 + documents && !HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    const std::string bytes = generated(seed);
    const SourceText source(bytes);
    const JsonDocument document(source);
    const auto path = directory / "style.kostyle";
    test::writeFile(path, bytes);
    std::FILE* const file = std::fopen(path.string().c_str(), "rb");
    ASSERT_TRUE(file);
    const auto result = parser.parse(file);
    std::fclose(file);
    ASSERT_EQ(result.IsError(), document.error().has_value());
    if (result.IsError()) {
      ++refused;
      EXPECT_EQ(document.error()->code, static_cast<int>(result.Code()));
      EXPECT_EQ(document.error()->offset, result.Offset());
    } else {
      expectSame(document, document.root(), parser.document());
    }
  }
  EXPECT_GT(refused, documents / 10);
  EXPECT_LT(refused, documents / 2);
}

}  // namespace
