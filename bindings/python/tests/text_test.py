"""Text between Python and the library."""
import ctypes
import ntpath
import os
import random
import subprocess
import sys
import unittest
from unittest import mock

import kostyle
from kostyle import text

from support import StyleTest

SAMPLES = ["", "a", "Ab", "\u00e9", "\u0100\u0200", "\U0001f3b5", "\ud83c", "\udfb5x", "x\udfb5\ud83c", "\uffff\ufeff"]


AT_THE_END_OF_A_PAGE = """
import ctypes, mmap
from kostyle import text
memory = mmap.mmap(-1, 2 * mmap.PAGESIZE)
start = ctypes.addressof(ctypes.c_char.from_buffer(memory))
for length in [*range(300), 2000]:
    units = text.encode("x" * length)
    memory[mmap.PAGESIZE - len(units):mmap.PAGESIZE] = units
    libc = ctypes.CDLL(None, use_errno=True)
    protect = lambda rights: libc.mprotect(ctypes.c_void_p(start + mmap.PAGESIZE), mmap.PAGESIZE, rights)
    assert protect(0) == 0
    assert text.decode(start + mmap.PAGESIZE - len(units)) == "x" * length
    protect(mmap.PROT_READ | mmap.PROT_WRITE)
"""


def buffer_of(units: bytes, shift: int) -> "tuple[ctypes.Array[ctypes.c_char], int]":
    """Units with a NUL somewhere in memory; what follows is no text."""
    buffer = ctypes.create_string_buffer(b"\1" * shift + units + b"\0\0" + b"\1\1" * 3)
    return buffer, ctypes.addressof(buffer) + shift


class TextTest(unittest.TestCase):
    def test_is_utf16_of_sixteen_bits_on_every_platform(self) -> None:
        for sample in SAMPLES:
            with self.subTest(sample=ascii(sample)):
                self.assertEqual(text.encode(sample), sample.encode("utf-16-le", "surrogatepass") + b"\0\0")

    def test_comes_back_from_memory_at_any_address(self) -> None:
        for shift in range(0, 520, 2):
            for sample in SAMPLES:
                buffer, address = buffer_of(text.encode(sample)[:-2], shift)
                self.assertEqual(text.decode(address), sample)

    def test_comes_back_at_any_length(self) -> None:
        generator = random.Random(1)
        for length in [*range(0, 300), 1000, 5000, 100_000]:
            sample = "".join(chr(generator.choice([0x41, 0x100, 0x4200, 0xD800, 0x1F3B5])) for _ in range(length))
            joined = sample.encode("utf-16-le", "surrogatepass").decode("utf-16-le", "surrogatepass")
            buffer, address = buffer_of(text.encode(joined)[:-2], 0)
            self.assertEqual(text.decode(address), joined)

    @unittest.skipIf(os.name == "nt", "memory is protected in another way there")
    def test_is_never_read_beyond_the_memory_page_of_its_end(self) -> None:
        subprocess.run([sys.executable, "-c", AT_THE_END_OF_A_PAGE], check=True)

    def test_of_a_null_address_is_empty(self) -> None:
        self.assertEqual(text.decode(None), "")

    def test_with_a_nul_is_refused(self) -> None:
        with self.assertRaises(kostyle.RefusedError):
            text.encode("a\0b")

    def test_is_as_long_as_it_has_units(self) -> None:
        for sample in SAMPLES:
            self.assertEqual(text.units(sample), len(text.encode(sample)) // 2 - 1)

    def test_of_a_path_on_windows_is_absolute_and_plain(self) -> None:
        with mock.patch("sys.platform", "win32"), mock.patch("os.path.abspath", ntpath.normpath):
            self.assertEqual(text.encode_path("C:/styles//user/./new/"), text.encode("C:\\styles\\user\\new"))


class TextOfTheLibraryTest(StyleTest):
    def test_comes_back_as_it_was_given(self) -> None:
        style = self.mutable()
        parameters = style.audio_effects[0].parameters
        for sample in SAMPLES:
            parameters["text"] = sample
            self.assertEqual(parameters["text"], sample)

    def test_of_a_path_stands_for_bytes_that_are_no_utf8(self) -> None:
        name = b"caf\xe9 \xf0\x9f\x8e\xb5.kostyle"
        if os.name == "nt":
            self.skipTest("paths are UTF-16 there")
        file = self.user / os.fsdecode(name)
        self.write(file, b"{}")
        self.manager.read()
        [result] = self.manager.user_styles.creation_results
        self.assertEqual(os.fsencode(result.path.name), name)
