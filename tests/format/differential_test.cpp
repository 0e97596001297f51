// The reader beside the model of the format: they must agree about thousands of documents.
#include <gmock/gmock.h>

#include <map>

#include "format/document_generator.h"
#include "format/model_style.h"
#include "format/sample_documents.h"

namespace {

using test::DocumentGenerator;
using test::Encoding;
using test::Random;
using test::Reading;
using test::StyleFile;
using namespace std::string_literals;

constexpr int documentsPerTest = 6000;

std::string printable(std::string_view bytes) {
  std::string text;
  for (const char byte : bytes) {
    const auto value = static_cast<unsigned char>(byte);
    const char* digits = "0123456789ABCDEF";
    if (value >= 0x20 && value < 0x7F && byte != '\\') {
      text += byte;
    } else {
      text += {'\\', 'x', digits[value >> 4], digits[value & 0xF]};
    }
  }
  return text;
}

// Reads a file both ways and compares all that can be seen of it. Gives the error.
unsigned compare(const StyleFile& file, std::string_view bytes) {
  const Reading reading = file.read(bytes);
  const test::model::Expectation expected = test::model::expectationOf(bytes);
  EXPECT_EQ(reading.outcome.error, expected.error);
  EXPECT_EQ(test::utf8(reading.outcome.jsonPath), expected.jsonPath);
  EXPECT_EQ(reading.style != nullptr, expected.error == 0);
  if (reading.style && expected.error == 0) {
    EXPECT_EQ(test::snapshot(*reading.style), expected.style);
  }
  if (expected.error == KOSTYLE_ERROR_JSON_SYNTAX) {
    EXPECT_GE(reading.outcome.parseError, unsigned{KOSTYLE_PARSE_EMPTY});
    EXPECT_LE(reading.outcome.parseError, unsigned{KOSTYLE_PARSE_OTHER});
    EXPECT_LE(reading.outcome.parseErrorOffset, bytes.size());
  } else {
    EXPECT_EQ(reading.outcome.parseError, 0u);
    EXPECT_EQ(reading.outcome.parseErrorOffset, 0u);
  }
  return expected.error;
}

// Compares the documents that `make` gives for as many seeds; counts the errors.
template <class Make>
std::map<unsigned, int> compareAll(std::uint64_t firstSeed, Make make) {
  const StyleFile file;
  std::map<unsigned, int> errors;
  for (std::uint64_t seed = firstSeed; seed < firstSeed + documentsPerTest; ++seed) {
    Random random(seed);
    DocumentGenerator generator(random);
    const std::string bytes = make(random, generator);
    ++errors[compare(file, bytes)];
    if (testing::Test::HasFailure()) {
      ADD_FAILURE() << "seed " << seed << ": " << printable(bytes);
      break;
    }
  }
  return errors;
}

std::string encodedSomehow(const std::u32string& document, Random& random) {
  const Encoding encoding = random.oneIn(2)
                                ? Encoding::utf8
                                : test::allEncodings()[random.below(test::allEncodings().size())];
  return encoded(document, encoding, random.oneIn(2));
}

TEST(Differential, DocumentsReadAsTheModelReadsThem) {
  const auto errors = compareAll(1000000, [](Random& random, DocumentGenerator& generator) {
    return encodedSomehow(generator.document(), random);
  });
  // So that the comparison says something, all outcomes come up often.
  EXPECT_GT(errors.at(0), documentsPerTest / 3);
  for (const unsigned error : {17u, 19u, 20u, 21u, 23u}) EXPECT_GT(errors.at(error), 50) << error;
}

TEST(Differential, SplicedDocumentsReadAsTheModelReadsThem) {
  const auto errors = compareAll(2000000, [](Random& random, DocumentGenerator& generator) {
    return encodedSomehow(generator.spliced(generator.document()), random);
  });
  EXPECT_GT(errors.at(0), documentsPerTest / 20);
  EXPECT_GT(errors.at(17), documentsPerTest / 3);
}

TEST(Differential, MutatedFilesReadAsTheModelReadsThem) {
  const auto errors = compareAll(3000000, [](Random& random, DocumentGenerator& generator) {
    return generator.mutated(encodedSomehow(generator.document(), random));
  });
  EXPECT_GT(errors.at(0), documentsPerTest / 20);
  EXPECT_GT(errors.at(17), documentsPerTest / 3);
}

TEST(Differential, SmallFilesReadAsTheModelReadsThem) {
  const StyleFile file;
  const std::string all = "\0\t 09-.eE\"\\{}[],:tnx\x7F\x80\xBB\xBF\xC3\xEF\xFE\xFF"s;
  const std::string few = "\0 1.-\"{}[]\xEF\xFE\xFF"s;
  const auto compareThis = [&](const std::string& bytes) {
    compare(file, bytes);
    ASSERT_FALSE(HasFailure()) << printable(bytes);
  };
  for (const char first : all) {
    for (const char second : all) compareThis({first, second});
  }
  for (const char first : few) {
    for (const char second : few) {
      for (const char third : few) compareThis({first, second, third});
    }
  }
}

TEST(Differential, FilesOfFourBytesReadAsTheModelReadsThem) {
  const StyleFile file;
  const std::string interesting{'\0', '1', '[', ']', '\xFE', '\xFF'};
  for (std::size_t i = 0; i < 6 * 6 * 6 * 6; ++i) {
    const std::string bytes{interesting[i % 6], interesting[i / 6 % 6], interesting[i / 36 % 6],
                            interesting[i / 216]};
    for (const char* rest : {"", "1", "]"}) {
      compare(file, bytes + rest);
      if (HasFailure()) FAIL() << printable(bytes + rest);
    }
  }
}

}  // namespace
