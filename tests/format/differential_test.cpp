// The reader beside the reference of the format: they must agree about thousands of documents.
#include <gmock/gmock.h>

#include <map>
#include <vector>

#include "format/document_generator.h"
#include "format/reference_style.h"
#include "support/file_reader.h"

namespace {

using test::DocumentGenerator;
using test::Encoding;
using test::FileReader;
using test::Random;
using test::Reading;
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

// Compares what became of a file with what should have become of it. Gives the error.
int compare(std::string_view bytes, const Reading& reading) {
  const test::reference::Expectation expected = test::reference::expectationOf(bytes);
  EXPECT_EQ(reading.outcome.error, expected.error);
  EXPECT_EQ(reading.outcome.jsonPath, expected.jsonPath);
  if (reading.style && expected.error == KOSTYLE_OK) {
    EXPECT_EQ(*reading.style, expected.style);
  }
  if (expected.error == KOSTYLE_ERROR_JSON_SYNTAX) {
    EXPECT_GE(reading.outcome.parseError, KOSTYLE_PARSE_EMPTY);
    EXPECT_LE(reading.outcome.parseError, KOSTYLE_PARSE_OTHER);
    EXPECT_LE(reading.outcome.offset, bytes.size());
  } else {
    EXPECT_EQ(reading.outcome.parseError, KOSTYLE_PARSE_OK);
    EXPECT_EQ(reading.outcome.offset, 0u);
  }
  return expected.error;
}

// Reads files and compares each; counts the errors.
std::map<int, int> compareAll(const std::vector<std::string>& files) {
  const FileReader reader;
  std::map<int, int> errors;
  for (std::size_t i = 0; i < files.size(); ++i) {
    ++errors[compare(files[i], reader.read(files[i]))];
    if (testing::Test::HasFailure()) {
      ADD_FAILURE() << "file " << i << ": " << printable(files[i]);
      break;
    }
  }
  return errors;
}

// The same for the documents that `make` gives for as many seeds.
template <class Make>
std::map<int, int> compareMade(std::uint64_t firstSeed, Make make) {
  std::vector<std::string> files;
  for (std::uint64_t seed = firstSeed; seed < firstSeed + documentsPerTest; ++seed) {
    Random random(seed);
    DocumentGenerator generator(random);
    files.push_back(make(random, generator));
  }
  return compareAll(files);
}

std::string encodedSomehow(const std::u32string& document, Random& random) {
  const Encoding encoding = random.oneIn(2)
                                ? Encoding::utf8
                                : test::allEncodings()[random.below(test::allEncodings().size())];
  return encoded(document, encoding, random.oneIn(2));
}

TEST(Differential, DocumentsReadAsTheReferenceReadsThem) {
  const auto errors = compareMade(1000000, [](Random& random, DocumentGenerator& generator) {
    return encodedSomehow(generator.document(), random);
  });
  // So that the comparison says something, all outcomes come up often.
  EXPECT_GT(errors.at(KOSTYLE_OK), documentsPerTest / 3);
  for (const int error :
       {KOSTYLE_ERROR_JSON_SYNTAX, KOSTYLE_ERROR_MEMBER_MISSING, KOSTYLE_ERROR_WRONG_TYPE,
        KOSTYLE_ERROR_EMPTY_STRING, KOSTYLE_ERROR_NO_EFFECT})
    EXPECT_GT(errors.at(error), 50) << error;
}

TEST(Differential, SplicedDocumentsReadAsTheReferenceReadsThem) {
  const auto errors = compareMade(2000000, [](Random& random, DocumentGenerator& generator) {
    return encodedSomehow(generator.spliced(generator.document()), random);
  });
  EXPECT_GT(errors.at(KOSTYLE_OK), documentsPerTest / 20);
  EXPECT_GT(errors.at(KOSTYLE_ERROR_JSON_SYNTAX), documentsPerTest / 3);
}

TEST(Differential, MutatedFilesReadAsTheReferenceReadsThem) {
  const auto errors = compareMade(3000000, [](Random& random, DocumentGenerator& generator) {
    return generator.mutated(encodedSomehow(generator.document(), random));
  });
  EXPECT_GT(errors.at(KOSTYLE_OK), documentsPerTest / 20);
  EXPECT_GT(errors.at(KOSTYLE_ERROR_JSON_SYNTAX), documentsPerTest / 3);
}

TEST(Differential, SmallFilesReadAsTheReferenceReadsThem) {
  const std::string all = "\0\t 09-.eE\"\\{}[],:tnx\x7F\x80\xBB\xBF\xC3\xEF\xFE\xFF"s;
  const std::string few = "\0 1.-\"{}[]\xEF\xFE\xFF"s;
  std::vector<std::string> files;
  for (const char first : all) {
    for (const char second : all) files.push_back({first, second});
  }
  for (const char first : few) {
    for (const char second : few) {
      for (const char third : few) files.push_back({first, second, third});
    }
  }
  compareAll(files);
}

TEST(Differential, FilesOfFourBytesReadAsTheReferenceReadsThem) {
  const std::string interesting{'\0', '1', '[', ']', '\xFE', '\xFF'};
  std::vector<std::string> files;
  for (std::size_t i = 0; i < 6 * 6 * 6 * 6; ++i) {
    const std::string bytes{interesting[i % 6], interesting[i / 6 % 6], interesting[i / 36 % 6],
                            interesting[i / 216]};
    for (const char* rest : {"", "1", "]"}) files.push_back(bytes + rest);
  }
  compareAll(files);
}

}  // namespace
