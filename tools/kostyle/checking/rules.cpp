#include "checking/rules.h"

#include <array>

namespace tool {
namespace rule {

constexpr Severity error = Severity::error;
constexpr Severity warning = Severity::warning;
constexpr Severity note = Severity::note;
constexpr Stage reading = Stage::reading;
constexpr Stage writing = Stage::writing;

const Rule unreadableFile = {"unreadable-file", error, reading,
                             "a style is a regular file that can be read"};
const Rule jsonSyntax = {"json-syntax", error, reading, "a style file is one JSON document"};
const Rule rootType = {"root-type", error, reading, "the root of a style is an object"};
const Rule memberMissing = {"member-missing", error, reading,
                            R"(a style has the members "id" and "name")"};
const Rule memberType = {"member-type", error, reading, R"("id" and "name" are strings)"};
const Rule memberEmpty = {"member-empty", error, reading, R"("id" and "name" are not empty)"};
const Rule noEffect = {"no-effect", error, reading,
                       "a style has at least one effect that can be taken"};
const Rule repeatedIdentifier = {
    "repeated-identifier", error, reading,
    "an identifier belongs to one file among all that an application reads"};

const Rule fileExtension = {"file-extension", warning, reading,
                            "an application reads only files whose name ends in .kostyle"};
const Rule unknownMember = {"unknown-member", warning, reading,
                            "objects have the members of the format alone"};
const Rule repeatedMember = {"repeated-member", warning, reading,
                             "of members with one name the first counts"};
const Rule repeatedEffect = {"repeated-effect", warning, reading,
                             "of effects with one name in a chain the first that can be taken counts"};
const Rule repeatedParameter = {
    "repeated-parameter", warning, reading,
    "of parameters with one name in an effect the first that can be taken counts"};
const Rule repeatedValue = {"repeated-value", warning, reading, "a value that repeats counts once"};
const Rule wrongType = {"wrong-type", warning, reading, "a value has the type of its place"};
const Rule emptyName = {"empty-name", warning, reading, "effects and parameters have a name"};
const Rule emptyValue = {"empty-value", warning, reading, "the texts of a list are not empty"};
const Rule nameLength = {"name-length", warning, reading, "a name has 1 to 100 UTF-16 units"};
const Rule singerIdLength = {"singer-id-length", warning, reading,
                             "a singer identifier has exactly 16 UTF-16 units"};
const Rule languageRange = {"language-range", warning, reading, "a language is an integer from 0 to 4"};
const Rule integerRange = {"integer-range", warning, reading,
                           "an integer parameter lies between -2147483648 and 2147483647"};
const Rule floatRange = {"float-range", warning, reading, "a float parameter has 32 bits"};
const Rule effectWithoutParameter = {"effect-without-parameter", warning, reading,
                                     R"(an effect has the member "parameter")"};
const Rule midiScript = {"midi-script", warning, reading, "no style keeps the script of a MIDI effect"};
const Rule textCut = {"text-cut", warning, reading, "an application sees a text end at U+0000"};
const Rule behindEnd = {"behind-end", warning, reading, "a document ends at U+0000"};
const Rule parameterRenamed = {"parameter-renamed", note, reading,
                               R"(the parameter "Tarn" is read as "Tarn630")"};

const Rule effectLost = {"effect-lost", warning, writing,
                         R"(an effect without parameters is written without "parameter")"};
const Rule loneSurrogate = {"lone-surrogate", warning, writing,
                            "half of a surrogate pair cannot be written"};
const Rule vendorLost = {"vendor-lost", note, writing, "the vendor is not written"};
const Rule floatPrecision = {"float-precision", note, writing, "a float parameter has 32 bits"};
const Rule encodingChanged = {"encoding-changed", note, writing,
                              "a style is written as UTF-8 without a byte-order mark"};
const Rule memberOrder = {"member-order", note, writing,
                          "the members of root and filter have their own order"};
const Rule parameterOrder = {"parameter-order", note, writing, "parameters are sorted by name"};
const Rule valueOrder = {"value-order", note, writing, "the values of a list are sorted"};

}  // namespace rule

namespace {

constexpr std::array all = {&rule::unreadableFile,
                            &rule::jsonSyntax,
                            &rule::rootType,
                            &rule::memberMissing,
                            &rule::memberType,
                            &rule::memberEmpty,
                            &rule::noEffect,
                            &rule::repeatedIdentifier,
                            &rule::fileExtension,
                            &rule::unknownMember,
                            &rule::repeatedMember,
                            &rule::repeatedEffect,
                            &rule::repeatedParameter,
                            &rule::repeatedValue,
                            &rule::wrongType,
                            &rule::emptyName,
                            &rule::emptyValue,
                            &rule::nameLength,
                            &rule::singerIdLength,
                            &rule::languageRange,
                            &rule::integerRange,
                            &rule::floatRange,
                            &rule::effectWithoutParameter,
                            &rule::midiScript,
                            &rule::textCut,
                            &rule::behindEnd,
                            &rule::parameterRenamed,
                            &rule::effectLost,
                            &rule::loneSurrogate,
                            &rule::vendorLost,
                            &rule::floatPrecision,
                            &rule::encodingChanged,
                            &rule::memberOrder,
                            &rule::parameterOrder,
                            &rule::valueOrder};

}  // namespace

Rules allRules() { return {all.data(), all.size()}; }

const char* severityName(Severity severity) {
  constexpr const char* names[] = {"note", "warning", "error"};
  return names[static_cast<int>(severity)];
}

const char* stageName(Stage stage) { return stage == Stage::reading ? "reading" : "writing"; }

}  // namespace tool
