// The check beside what a host sees: nothing is found in reading a document exactly when all of it is
// in the style that the library made.
#include <gmock/gmock.h>

#include <algorithm>
#include <map>

#include "checking/file_check.h"
#include "checking/one_change.h"
#include "checking/reference_facts.h"
#include "checking/style_document.h"
#include "format/document_generator.h"
#include "support/file_reader.h"

namespace {

using test::DocumentGenerator;
using test::Encoding;
using test::Random;
using test::Reading;
using tool::FileReport;
using tool::Finding;
using tool::Severity;
using tool::Stage;

constexpr int documentsPerTest = 2000;

bool isLoss(const Finding& finding) {
  return finding.rule->stage == Stage::reading && finding.rule->severity != Severity::note;
}

bool isError(const Finding& finding) { return finding.rule->severity == Severity::error; }

bool holds(const FileReport& report, bool (*what)(const Finding&)) {
  return std::any_of(report.findings.begin(), report.findings.end(), what);
}

std::string listed(const FileReport& report) {
  std::string list;
  for (const Finding& finding : report.findings)
    list += std::string(finding.rule->id) + ' ' + finding.path + ": " + finding.found + '\n';
  return list;
}

// Whether the style says all that the document says.
bool holdsAll(std::string_view bytes, const test::StoredValue& style) {
  std::string_view rest = bytes;
  const Encoding encoding = test::reference::detect(rest);
  const std::size_t size = test::reference::unitsOf(rest, encoding).size() * unitSize(encoding);
  const auto root = test::reference::Parser(test::reference::charactersOf(bytes)).parse();
  return size >= rest.size() && test::reference::factsOf(*root) == test::reference::factsOf(style);
}

std::string encodedSomehow(const std::u32string& document, Random& random) {
  const Encoding encoding = random.oneIn(2)
                                ? Encoding::utf8
                                : test::allEncodings()[random.below(test::allEncodings().size())];
  return encoded(document, encoding, random.oneIn(2));
}

void expectPlaces(const FileReport& report, std::size_t size) {
  for (const Finding& finding : report.findings) {
    ASSERT_TRUE(finding.place);
    EXPECT_LE(finding.place->span.begin, finding.place->span.end);
    EXPECT_LE(finding.place->span.end, size);
    EXPECT_GE(finding.place->begin.line, 1u);
    EXPECT_GE(finding.place->begin.column, 1u);
  }
}

struct Counted {
  int refused = 0;
  int whole = 0;
  int inPart = 0;
  std::map<std::string, int> rules;
};

template <class Make>
Counted compareMade(std::uint64_t firstSeed, Make make) {
  const test::FileReader reader;
  Counted counted;
  for (std::uint64_t seed = firstSeed; seed < firstSeed + documentsPerTest; ++seed) {
    Random random(seed);
    DocumentGenerator generator(random);
    const std::string bytes = make(random, generator);
    const FileReport report = tool::checkContent("style", bytes);
    const Reading reading = reader.read(bytes);
    for (const Finding& finding : report.findings) ++counted.rules[finding.rule->id];
    expectPlaces(report, bytes.size());
    EXPECT_EQ(holds(report, isError), !reading.style);
    if (!reading.style) {
      ++counted.refused;
    } else {
      const bool all = holdsAll(bytes, *reading.style);
      ++(all ? counted.whole : counted.inPart);
      EXPECT_EQ(holds(report, isLoss), !all);
      EXPECT_EQ(report.id, reading.style->id);
    }
    if (testing::Test::HasFailure()) {
      ADD_FAILURE() << "seed " << seed << ":\n" << bytes << '\n' << listed(report);
      break;
    }
  }
  return counted;
}

TEST(CheckDifferential, FindsNothingExactlyWhenTheStyleHoldsAll) {
  const Counted counted = compareMade(7000000, [](Random& random, DocumentGenerator& generator) {
    return encodedSomehow(generator.document(), random);
  });
  EXPECT_GT(counted.whole, 5);
  EXPECT_GT(counted.inPart, documentsPerTest / 4);
  EXPECT_GT(counted.refused, documentsPerTest / 8);
  // So that the comparison says something, the rules come up.
  for (const tool::Rule* rule :
       {&tool::rule::unknownMember, &tool::rule::repeatedMember, &tool::rule::repeatedEffect,
        &tool::rule::repeatedParameter, &tool::rule::repeatedValue, &tool::rule::wrongType,
        &tool::rule::emptyName, &tool::rule::emptyValue, &tool::rule::nameLength,
        &tool::rule::singerIdLength, &tool::rule::languageRange, &tool::rule::integerRange,
        &tool::rule::floatRange, &tool::rule::effectWithoutParameter, &tool::rule::midiScript,
        &tool::rule::textCut, &tool::rule::parameterRenamed, &tool::rule::effectLost})
    EXPECT_GT(counted.rules.count(rule->id) ? counted.rules.at(rule->id) : 0, 5) << rule->id;
}

// The style of a random document, written as a document, mostly with one change in it.
TEST(CheckDifferential, FindsTheOneThingThatIsNotInTheStyle) {
  const test::FileReader reader;
  const Counted counted = compareMade(7500000, [&](Random& random, DocumentGenerator& generator) {
    const Reading reading = reader.read(encodedSomehow(generator.document(), random));
    if (!reading.style) return std::string();
    const std::string document = test::documentOf(*reading.style);
    auto root = test::reference::Parser({document.begin(), document.end()}).parse();
    if (random.oneIn(4) || !root) return document;
    test::reference::OneChange(random).to(*root);
    return test::reference::writtenJson(*root);
  });
  EXPECT_GT(counted.whole, documentsPerTest / 10);
  EXPECT_GT(counted.inPart, documentsPerTest / 10);
}

TEST(CheckDifferential, FindsTheSameInBrokenDocuments) {
  compareMade(8000000, [](Random& random, DocumentGenerator& generator) {
    return encodedSomehow(generator.spliced(generator.document()), random);
  });
  compareMade(9000000, [](Random& random, DocumentGenerator& generator) {
    return generator.mutated(encodedSomehow(generator.document(), random));
  });
}

}  // namespace
