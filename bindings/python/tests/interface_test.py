"""The package agrees with the released interface and with the C headers' own words."""
import ctypes
import enum
import json
import os
import pathlib
import random
import re
import unittest
from typing import Dict, Iterator, List, Tuple

import kostyle
from kostyle import codes, functions, records, text

from support import SOURCE

INTERFACE = (SOURCE / "tests" / "host" / "interface.txt").read_text(encoding="ascii")
PACKAGE = SOURCE / "bindings" / "python" / "src" / "kostyle"

ENCODINGS = ["utf-8", "utf-8-sig", "utf-16-le", "utf-16-be", "utf-16", "utf-32-le", "utf-32-be", "utf-32"]
MARKS = [b"", b"\xff\xfe", b"\xfe\xff\0", b"\xef\xbb\xbf", b"\0\0\xfe\xff", b"\xff\xfe\0\0"]

# What the C types are to ctypes, as results and as arguments.
TYPES = {"void": None, "bool": ctypes.c_bool, "int": ctypes.c_int, "float": ctypes.c_float, "size_t": ctypes.c_size_t,
         "int*": functions.INT_PLACE, "const KoStyleChar* const*": functions.TEXTS_ARGUMENT}

# Indexing sequences does what these are for; the others are second names.
NOT_USED = re.compile(r"\w+_(next|prev)$|\w+_parent$|Module_\w+$|Effect_hasParameter$|HasStyleManager$"
                      r"|StyleManager_hasMutableStyle$|Style_(min|max)LangID$|Style_singerIDLength$")
USED_ALTHOUGH = {"StyleCreationResult_next", "SystemStyle_next"}


def signatures() -> Iterator[Tuple[str, str, List[str]]]:
    """Name, type of the result and types of the arguments of each function."""
    for result, name, arguments in re.findall(r"^([\w ]+?\**) (\w+)\((.*)\);", INTERFACE, re.M):
        given = [] if arguments == "void" else [re.sub(r" ?\w+$", "", each) for each in arguments.split(", ")]
        yield name, result, given


def as_ctypes(c_type: str, is_result: bool) -> object:
    if c_type == "const KoStyleChar*":
        return functions.TEXT if is_result else functions.TEXT_ARGUMENT
    return functions.HANDLE if re.fullmatch(r"KoStyle\w+\*", c_type) else TYPES[c_type]


class FunctionsTest(unittest.TestCase):
    def test_have_the_signatures_of_the_interface(self) -> None:
        expected = {name: (as_ctypes(result, True), *[as_ctypes(each, False) for each in arguments])
                    for name, result, arguments in signatures()}
        self.assertEqual(len(expected), 124)
        self.assertEqual(functions.SIGNATURES, expected)

    def test_are_all_there(self) -> None:
        for name in functions.SIGNATURES:
            self.assertTrue(callable(getattr(functions.c, name)))
        with self.assertRaises(AttributeError):
            functions.c.Style_none

    def test_are_all_used_but_those_that_sequences_replace(self) -> None:
        sources = "".join(path.read_text(encoding="utf-8") for path in PACKAGE.glob("*.py"))
        used = set(re.findall(r"\bc\.(\w+)", sources))
        self.assertEqual(used - set(functions.SIGNATURES), set())
        idle = {name for name in functions.SIGNATURES if NOT_USED.match(name)} - USED_ALTHOUGH
        self.assertEqual(set(functions.SIGNATURES) - used, idle)

    def test_answer_the_limits_of_the_headers(self) -> None:
        limits = (functions.c.Style_minLangID(), functions.c.Style_maxLangID(), functions.c.Style_singerIDLength())
        self.assertEqual(limits, (codes.Limit.MIN_LANGUAGE, codes.Limit.MAX_LANGUAGE, codes.Limit.SINGER_ID_LENGTH))


class CodesTest(unittest.TestCase):
    def test_are_those_of_the_interface(self) -> None:
        expected = {name: int(value) for name, value in re.findall(r"^(KOSTYLE_\w+) = (\d+)$", INTERFACE, re.M)}
        prefixes = {codes.Code: "ERROR_", codes.ParseError: "PARSE_", codes.Kind: "KIND_",
                    codes.EffectKind: "EFFECT_", codes.ParameterType: "PARAMETER_", codes.Limit: ""}
        found: Dict[str, int] = {}
        for enumeration, prefix in prefixes.items():
            for name, member in enumeration.__members__.items():
                own = "" if member is codes.Code.OK else prefix
                found[f"KOSTYLE_{own}{name}"] = member.value
        self.assertEqual(found, expected)

    def test_have_the_version_of_the_headers(self) -> None:
        header = (SOURCE / "include" / "kostyle" / "version.h").read_text(encoding="utf-8")
        numbers = re.findall(r"VERSION_(?:MAJOR|MINOR|PATCH) (\d+)$", header, re.M)
        self.assertEqual(kostyle.__version__.split("."), numbers)

    def test_of_problems_are_those_of_cpp(self) -> None:
        header = (SOURCE / "include" / "kostyle" / "cpp" / "problem.hpp").read_text(encoding="utf-8")
        sentences = re.findall(r"ProblemKind::(\w+):\s*return (.*);", header)
        self.assertEqual(sentences.pop([kind for kind, _ in sentences].index("refused")),
                         ("refused", "KoStyle_codeText(code)"))  # a CodeError here
        self.assertEqual([(kind.value, kostyle.problem_text(kind)) for kind in codes.ProblemKind],
                         [(kind, json.loads(sentence)) for kind, sentence in sentences])

    def test_have_words_in_their_documentation(self) -> None:
        for enumeration in (codes.Code, codes.ParseError, codes.Kind, codes.Limit, codes.ProblemKind):
            self.assertRegex(enumeration.__doc__ or "", r"^\w.*\.$")


class HelpersTest(unittest.TestCase):
    """Compared with the compiled functions of helpers.h."""

    def setUp(self) -> None:
        self.helpers = ctypes.CDLL(os.environ["KOSTYLE_HELPERS"])
        self.helpers.codeText.restype = self.helpers.parseErrorText.restype = ctypes.c_char_p
        self.helpers.findLine.argtypes = [ctypes.c_char_p, ctypes.c_size_t, ctypes.c_uint64] + [
            ctypes.POINTER(ctypes.c_size_t)] * 2
        self.helpers.findLine.restype = None

    def test_have_the_same_sentences(self) -> None:
        for number in range(-2, 300):
            self.assertEqual(kostyle.code_text(number), self.helpers.codeText(number).decode())
            self.assertEqual(kostyle.parse_error_text(number), self.helpers.parseErrorText(number).decode())

    @unittest.skipIf(os.name == "nt", "paths are no bytes there")
    def test_have_the_same_text_for_paths(self) -> None:
        generator = random.Random(9)
        alphabet = b"a/\xc3\xa9\xe2\x82\xac\xf0\x9f\x8e\xb5\xed\xa0\xff\xf4"
        for _ in range(2000):
            sample = bytes(generator.choices(alphabet, k=generator.randrange(12)))
            units = (ctypes.c_uint16 * 32)()
            self.helpers.textFromPath(sample, units, 32)
            expected = bytes(units)[:2 * (list(units).index(0) + 1)]
            self.assertEqual(text.encode(os.fsdecode(sample)), expected, sample)

    def find_line(self, content: bytes, offset: int) -> Tuple[int, int]:
        line, column = ctypes.c_size_t(), ctypes.c_size_t()
        self.helpers.findLine(content, len(content), offset, line, column)
        return line.value, column.value

    def test_find_the_same_lines(self) -> None:
        generator = random.Random(7)
        characters = ["a", " ", "\n", "\r", "\r\n", "\u00e9", "\u0100", "\u0a0d", "\u0d0a", "\u2028", "\U0001f3b5"]
        for trial in range(300):
            line = "{\"" + "".join(generator.choices(characters, k=generator.randrange(30)))
            content = line.encode(generator.choice(ENCODINGS))
            self.compare(content)
            self.compare(content[:generator.randrange(len(content) + 1)])

    def test_find_the_same_lines_in_what_is_no_text(self) -> None:
        generator = random.Random(8)
        for trial in range(300):
            alphabet = generator.choice([b"\0\r\nab\xd8\xdc", b"a\x80\xbf\xc1\xc2\xe0\xf0\xff\r\n", bytes(range(256))])
            self.compare(generator.choice(MARKS) + bytes(generator.choices(alphabet, k=generator.randrange(24))))

    def compare(self, content: bytes) -> None:
        for offset in [*range(len(content) + 2), 2 ** 64 - 1]:
            with self.subTest(content=content, offset=offset):
                expected = self.find_line(content, offset)
                self.assertEqual(kostyle.find_line(content, offset), expected)
                self.assertEqual(kostyle.find_line(content[:offset + records._BEHIND], offset), expected)
