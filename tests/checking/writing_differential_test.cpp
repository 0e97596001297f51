// The check beside the library's writer: nothing at all is found exactly when the style, written again,
// gives the same document.
#include <gmock/gmock.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "checking/file_check.h"
#include "checking/json_value.h"
#include "checking/one_change.h"
#include "checking/style_document.h"
#include "format/document_generator.h"
#include "format/document_reader.h"
#include "format/style_serializer.h"
#include "model/system_style.h"
#include "support/file_reader.h"

namespace {

using namespace Tesk::KoStyle;
using test::DocumentGenerator;
using test::Random;
using tool::FileReport;
using tool::Finding;
using tool::JsonDocument;
using tool::JsonKind;
using tool::JsonNode;
using tool::SourceText;

// The parser may miss a number by the last bit of its double precision.
bool isNear(double a, double b) { return std::abs(a - b) <= 1e-15 * std::abs(b); }

// Whether a number is a float, or the shortest decimal of one.
bool isFloat(double number) {
  const auto single = static_cast<float>(number);
  if (isNear(number, static_cast<double>(single))) return true;
  for (int digits = 0; digits < 9; ++digits) {
    char text[64];
    std::snprintf(text, sizeof text, "%.*e", digits, static_cast<double>(single));
    if (std::strtof(text, nullptr) == single) return isNear(number, std::strtod(text, nullptr));
  }
  return false;
}

bool isSame(const JsonDocument& a, const JsonNode& one, const JsonDocument& b, const JsonNode& other);

// What holds nothing need not be written.
bool isNothing(const JsonDocument& document, const JsonNode& node) {
  const Text key(document.key(node));
  if (document.member(*node.parent(), key) != &node) return false;
  const bool inRoot = !node.parent()->parent();
  if (inRoot && key == KOSTYLE_TEXT("vendor")) return node.isString() && document.text(node).empty();
  const bool isChain = key == KOSTYLE_TEXT("audioEffect") || key == KOSTYLE_TEXT("midiEffect");
  if (inRoot && key == KOSTYLE_TEXT("filter")) {
    for (const JsonNode& list : node) {
      if (!isNothing(document, list)) return false;
    }
    return node.isObject();
  }
  if (inRoot) return isChain && node.isObject() && node.numChildren == 0;
  const bool inFilter = Text(document.key(*node.parent())) == KOSTYLE_TEXT("filter");
  bool isList = key == KOSTYLE_TEXT("languages");
  for (const auto& list : test::textLists()) isList = isList || key == test::text(list.name);
  return inFilter && !node.parent()->parent()->parent() && isList && node.isArray() &&
         node.numChildren == 0;
}

std::vector<const JsonNode*> childrenOf(const JsonDocument& document, const JsonNode& node) {
  std::vector<const JsonNode*> children;
  for (const JsonNode& child : node) {
    if (!child.isMember() || !isNothing(document, child)) children.push_back(&child);
  }
  return children;
}

bool isSame(const JsonDocument& a, const JsonNode& one, const JsonDocument& b, const JsonNode& other) {
  if (one.kind != other.kind || a.key(one) != b.key(other) || a.text(one) != b.text(other))
    return false;
  const bool sameNumber =
      one.kind == JsonKind::real
          ? isFloat(one.number) && static_cast<float>(one.number) == static_cast<float>(other.number)
          : one.number == other.number;
  if (!sameNumber) return false;
  const auto ones = childrenOf(a, one);
  const auto others = childrenOf(b, other);
  return std::equal(ones.begin(), ones.end(), others.begin(), others.end(),
                    [&](const JsonNode* x, const JsonNode* y) { return isSame(a, *x, b, *y); });
}

// The file that the library writes of a document's style; empty when it cannot.
std::string writtenAgain(const JsonDocument& document, const test::fs::path& path) {
  json::ThrowingAllocator allocator;
  json::Pool pool(65536, &allocator);
  const json::Value root = tool::jsonValueOf(document, document.root(), pool);
  DocumentReader<Unobserved> reader;
  SystemStyle style(nullptr);
  StyleReadOutcome outcome;
  if (!reader.read(root, {}, style, outcome)) return {};
  std::FILE* const file = std::fopen(path.string().c_str(), "wb");
  if (!file) throw std::runtime_error("cannot write " + path.string());
  writeStyleFile(StyleDocument(style), false, file);
  std::fclose(file);
  return test::readFile(path);
}

bool staysTheSame(const std::string& bytes, const test::fs::path& path) {
  const SourceText source(bytes);
  const JsonDocument document(source);
  if (document.error() || document.parsedEnd() < source.end()) return false;
  const SourceText after(writtenAgain(document, path));
  const JsonDocument written(after);
  const bool sameEncoding = source.encoding().unitSize == 1 && source.begin() == 0;
  return sameEncoding && !written.error() && isSame(document, document.root(), written, written.root());
}

// A text with U+0000 is written whole.
bool changesSomething(const Finding& finding) { return finding.rule != &tool::rule::textCut; }

TEST(WritingDifferential, FindsNothingExactlyWhenTheDocumentStaysTheSame) {
  const test::TemporaryDirectory directory;
  const test::FileReader reader;
  int same = 0;
  int other = 0;
  constexpr int documents = 1500;
  for (std::uint64_t seed = 6000000; seed < 6000000 + documents && !HasFailure(); ++seed) {
    Random random(seed);
    DocumentGenerator generator(random);
    test::Reading reading = reader.read(encoded(generator.document(), test::Encoding::utf8, false));
    if (!reading.style) continue;
    reading.style->vendor.clear();
    std::string bytes = test::documentOf(*reading.style);
    auto root = test::reference::Parser({bytes.begin(), bytes.end()}).parse();
    if (root && random.oneIn(2)) {
      test::reference::OneChange(random).to(*root);
      bytes = test::reference::writtenJson(*root);
    }
    const FileReport report = tool::checkContent("style", bytes);
    const bool found = std::any_of(report.findings.begin(), report.findings.end(), changesSomething);
    const bool stays = staysTheSame(bytes, directory / "style.kostyle");
    ++(stays ? same : other);
    EXPECT_EQ(found, !stays) << seed << ": " << bytes;
    for (const Finding& finding : report.findings) {
      if (found == stays)
        ADD_FAILURE() << finding.rule->id << ' ' << finding.path << ' ' << finding.found;
    }
  }
  EXPECT_GT(same, documents / 20);
  EXPECT_GT(other, documents / 10);
}

}  // namespace
