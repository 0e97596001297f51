// The parser beside RapidJSON's own streams: the same documents, the same errors at the same offsets.
#include "format/style_parser.h"

#include <gmock/gmock.h>
#include <rapidjson/encodedstream.h>
#include <rapidjson/filereadstream.h>
#include <rapidjson/stringbuffer.h>

#include <cstdint>
#include <cstdio>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "format/document_generator.h"
#include "format/inside/countable_numbers.h"
#include "support/encodings.h"
#include "support/temporary_directory.h"

namespace {

using namespace Tesk::KoStyle;
using test::DocumentGenerator;
using test::Random;

constexpr int documentsPerTest = 1500;

struct Parsed {
  int code = 0;
  std::size_t offset = 0;
  Text document;

  friend bool operator==(const Parsed& a, const Parsed& b) {
    return a.code == b.code && a.offset == b.offset && a.document == b.document;
  }
};

Text written(const json::Value& document) {
  using Buffer = rapidjson::GenericStringBuffer<json::Encoding>;
  Buffer buffer;
  rapidjson::Writer<Buffer, json::Encoding, json::Encoding> writer(buffer);
  document.Accept(writer);
  return {buffer.GetString(), buffer.GetSize() / sizeof(Char)};
}

Parsed parsedByStockStreams(std::FILE* file) {
  using Bytes = rapidjson::FileReadStream;
  char block[256];
  Bytes bytes(file, block, sizeof block);
  test::CountableNumbers<rapidjson::AutoUTFInputStream<unsigned, Bytes>> characters(bytes);
  json::Document document;
  rapidjson::GenericReader<rapidjson::AutoUTF<unsigned>, json::Encoding> reader;
  rapidjson::ParseResult result;
  auto parse = [&](json::Document& target) {
    result = reader.Parse<rapidjson::kParseDefaultFlags>(characters, target);
    return !result.IsError();
  };
  document.Populate(parse);
  return {result.Code(), result.Offset(), result.IsError() ? Text() : written(document)};
}

class StyleParserTest : public testing::Test {
 protected:
  // Gives the code.
  int compare(const std::string& bytes) {
    test::writeFile(path_, bytes);
    const Parsed expected = parsedByStockStreams(File(path_).get());
    const File file(path_);
    const rapidjson::ParseResult result = parser_.parse(file.get());
    const Parsed parsed{result.Code(), result.Offset(),
                        result.IsError() ? Text() : written(parser_.document())};
    EXPECT_TRUE(parsed == expected) << "code " << parsed.code << " at " << parsed.offset
                                    << ", expected " << expected.code << " at " << expected.offset;
    return expected.code;
  }

  template <class Make>
  std::map<int, int> compareMade(std::uint64_t firstSeed, Make make) {
    std::map<int, int> codes;
    for (std::uint64_t seed = firstSeed; seed < firstSeed + documentsPerTest && !HasFailure(); ++seed) {
      Random random(seed);
      DocumentGenerator generator(random);
      ++codes[compare(make(random, generator))];
      if (HasFailure()) ADD_FAILURE() << "seed " << seed;
    }
    return codes;
  }

  void compareInAllEncodings(std::string_view utf8) {
    for (const test::Encoding encoding : test::allEncodings()) {
      for (const bool mark : {false, true}) compare(encoded(utf8, encoding, mark));
    }
  }

 private:
  class File {
   public:
    explicit File(const test::fs::path& path) : file_(std::fopen(path.string().c_str(), "rb")) {}
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    ~File() { std::fclose(file_); }
    std::FILE* get() const { return file_; }

   private:
    std::FILE* file_;
  };

  test::TemporaryDirectory directory_;
  test::fs::path path_ = directory_ / "document";
  StyleParser parser_;
};

std::string encodedSomehow(const std::u32string& document, Random& random) {
  return encoded(document, test::allEncodings()[random.below(test::allEncodings().size())],
                 random.oneIn(2));
}

TEST_F(StyleParserTest, ParsesDocumentsAsTheStockStreamsDo) {
  const auto codes = compareMade(4000000, [](Random& random, DocumentGenerator& generator) {
    return encodedSomehow(generator.document(), random);
  });
  EXPECT_GT(codes.at(rapidjson::kParseErrorNone), documentsPerTest / 3);
}

TEST_F(StyleParserTest, ParsesMutatedFilesAsTheStockStreamsDo) {
  const auto codes = compareMade(5000000, [](Random& random, DocumentGenerator& generator) {
    return generator.mutated(encodedSomehow(generator.document(), random));
  });
  EXPECT_GT(codes.size(), 8U);
}

TEST_F(StyleParserTest, ParsesEveryFrontPartAsTheStockStreamsDo) {
  const std::string document =
      R"({ "a\u00e9\ud834\udd1e": [ 1, -2.5e+10, true, null, "Ã©å¤" ], "b": {"c": "d"} })";
  for (const test::Encoding encoding : test::allEncodings()) {
    const std::string whole = encoded(document, encoding, true);
    for (std::size_t size = 0; size <= whole.size(); ++size) compare(whole.substr(0, size));
  }
}

// Whatever stands across the end of a block reads like anywhere else.
TEST_F(StyleParserTest, ParsesAcrossBlocksAsTheStockStreamsDo) {
  const std::string values[] = {R"("text \" \\ \n Ã©ð")",
                                "-123456.789e-12",
                                "true",
                                "1e0000000000012",
                                "\t\n  ",
                                "0.1e99999999999",
                                "1e12345678901"};
  for (const std::string& value : values) {
    for (std::size_t before = 230; before <= 260; ++before) {
      compare("[" + std::string(before, ' ') + value + ", 1]");
      compare("[\"" + std::string(before, 'x') + "\"," + value + "]");
      if (before % 8 == 0) compareInAllEncodings("[" + std::string(before / 2, ' ') + value + "]");
    }
  }
}

TEST_F(StyleParserTest, HoldsBackTheSameDigits) {
  const std::string many(600, '7');
  const std::string zeros(600, '0');
  const std::vector<std::string> numbers = {"1e-" + many,
                                            "1e+" + many,
                                            "1e" + many,
                                            "0." + many + "e-" + many,
                                            "1e-" + zeros + "5",
                                            "1e" + zeros + "5",
                                            many,
                                            "-" + many,
                                            "1." + many,
                                            "1e-123456789",
                                            "1e-1234567890",
                                            "1e-123456789" + many + ".5",
                                            "1e-1234567890x",
                                            "1e-1234567890e5"};
  for (const std::string& number : numbers) {
    compareInAllEncodings("[" + number + "]");
    compareInAllEncodings(number);
    compareInAllEncodings("{\"n\":" + number + ",\"after\":1}");
  }
}

TEST_F(StyleParserTest, ReadsTextsOfAnyLength) {
  for (std::size_t length = 0; length <= 40; ++length) {
    const std::string plain(length, 'p');
    for (const char* end : {"", "\xC3\xA9", "\\n", "\n", "\x80", "\x7F", "\x1F"})
      compare("[\"" + plain + end + "\", \"" + end + plain + "\"]");
  }
  compare('"' + std::string(100000, 'x') + '"');
}

}  // namespace
