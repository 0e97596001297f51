"""Building styles in memory."""
import math
import random
import struct
from typing import Any, Dict, List
from unittest import mock

import kostyle
from kostyle.functions import c

from support import StyleTest, document


class AttributesTest(StyleTest):
    def test_are_sets_in_the_order_of_the_library(self) -> None:
        style = self.mutable()
        for name in ("singer_groups", "genres", "sub_genres", "colors"):
            values = getattr(style, name)
            values.update(["b", "a", "b"])
            self.assertEqual(list(values), ["a", "b"])
            values.discard("x")
            values.remove("a")
            with self.assertRaises(KeyError):
                values.remove("a")
            self.assertEqual((list(values), "b" in values, len(values)), (["b"], True, 1))
            values.clear()
            self.assertEqual(len(values), 0)

    def test_work_with_the_operators_of_sets(self) -> None:
        genres = self.mutable().genres
        genres.update(["a", "b"])
        self.assertEqual((genres | {"c"}, genres & {"b"}, genres - {"b"}), ({"a", "b", "c"}, {"b"}, {"a"}))
        genres -= {"a", "x"}
        self.assertEqual(list(genres), ["b"])

    def test_know_what_they_hold(self) -> None:
        texts = ["", "a", "ab", "b", "\ue000", "\U0001f3b5", "\ud83c", "\uffff", "a\0", "x" * 200]
        held = texts[1::2]
        genres = self.mutable().genres
        genres.update(text for text in held if "\0" not in text)
        wrong: List[object] = [None, 1, b"a"]
        self.assertEqual([text for text in [*texts, *wrong] if text in genres], held)

    def test_discard_what_no_file_has(self) -> None:
        style = self.mutable()
        style.languages.add(1)
        bad: Any
        for bad in ("a\0", None, "1", 1.5, 9):
            style.genres.discard(bad)
            style.languages.discard(bad)
        self.assertEqual(list(style.languages), [1])

    def test_take_values_of_their_type(self) -> None:
        style = self.mutable()
        wrong: Any
        for wrong in (None, 1.5, b"a", ["a"]):
            with self.subTest(wrong=wrong), self.assertRaises(TypeError):
                style.languages.add(wrong)
            with self.subTest(wrong=wrong), self.assertRaises(TypeError):
                style.colors.add(wrong)

    def test_refuse_what_no_file_has(self) -> None:
        style = self.mutable()
        for values, bad in [(style.genres, ""), (style.genres, "a\0"), (style.singer_ids, "short")]:
            with self.subTest(bad=bad), self.assertRaises(kostyle.RefusedError):
                values.add(bad)
        for number in (-1, 5, 2 ** 32, -2 ** 40):
            with self.subTest(number=number), self.assertRaises(kostyle.RefusedError):
                style.languages.add(number)
        style.languages.update([4, 0])
        style.singer_ids.add("\U0001f3b5" * 8)
        self.assertEqual((list(style.languages), list(style.singer_ids)), ([0, 4], ["\U0001f3b5" * 8]))


class NameTest(StyleTest):
    def test_has_at_most_100_units(self) -> None:
        style = self.manager.create_mutable_style()
        self.assertEqual(style.name, "")
        style.name = "\U0001f3b5" * 50
        for bad in ("", "x" * 101, "\U0001f3b5" * 50 + "x", "a\0"):
            with self.assertRaises(kostyle.RefusedError):
                style.name = bad
        self.assertEqual(style.name, "\U0001f3b5" * 50)


class ChainTest(StyleTest):
    def test_inserts_moves_and_destroys(self) -> None:
        chain = self.manager.create_mutable_style().midi_effects
        last = chain.append("c")
        chain.insert(0, "a")
        chain.insert(1, "b")
        chain.insert(99, "d")
        self.assertEqual([effect.id for effect in chain], ["a", "b", "c", "d"])
        last.move(0)
        chain[1].move(99)
        chain[1].destroy()
        self.assertEqual([effect.id for effect in chain], ["c", "d", "a"])
        self.assertIs(chain[0], last)
        self.assertIn(last, chain)
        self.assertEqual(last.kind, kostyle.EffectKind.MIDI)

    def test_takes_any_number_for_the_end(self) -> None:
        chain = self.manager.create_mutable_style().audio_effects
        first = chain.append("a")
        chain.insert(2 ** 64, "b")
        first.move(2 ** 64)
        self.assertEqual([effect.id for effect in chain], ["b", "a"])
        wrong: Any
        for wrong in (None, 0.0, "0"):
            with self.assertRaises(TypeError):
                first.move(wrong)
            with self.assertRaises(TypeError):
                chain.insert(wrong, "c")

    def test_refuses_identifiers(self) -> None:
        style = self.mutable()
        for bad in ("", "Gate", "x\0"):
            with self.assertRaises(kostyle.RefusedError):
                style.audio_effects.append(bad)
        style.midi_effects.append("Gate")
        for index in (-1, -2 ** 40):
            with self.assertRaises(IndexError):
                style.audio_effects.insert(index, "x")
            with self.assertRaises(IndexError):
                style.audio_effects[0].move(index)


class ParametersTest(StyleTest):
    def setUp(self) -> None:
        super().setUp()
        self.effect = self.mutable().midi_effects.append("Effect")
        self.parameters = self.effect.parameters

    def test_are_a_mapping(self) -> None:
        self.parameters.update(b=1, a="x")
        self.parameters["c"] = 0.5
        self.parameters["b"] = "now a text"
        self.assertEqual(dict(self.parameters), {"a": "x", "b": "now a text", "c": 0.5})
        self.assertEqual(self.parameters.pop("a"), "x")
        with self.assertRaises(KeyError):
            del self.parameters["a"]
        self.assertEqual(self.parameters.setdefault("d", 7), 7)
        self.parameters.clear()
        self.assertEqual((len(self.parameters), len(self.effect.parameter_list)), (0, 0))

    def test_keep_values_in_their_types(self) -> None:
        values: List[kostyle.ParameterValue] = [2 ** 31 - 1, -2 ** 31, 0, 0.1, -0.0, math.inf, math.nan, 3.4e38, "",
                                                "x" * 1000, "\ud83c"]
        for value in values:
            self.parameters["v"] = value
            stored = struct.unpack("f", struct.pack("f", value))[0] if isinstance(value, float) else value
            self.assertEqual(repr(self.parameters["v"]), repr(stored))

    def test_refuse_values_and_change_nothing(self) -> None:
        self.parameters["known"] = 1
        for value, error in [(2 ** 31, OverflowError), (-2 ** 31 - 1, OverflowError), (3.5e38, OverflowError),
                             (True, TypeError), (None, TypeError), (b"x", TypeError), ("a\0", ValueError)]:
            for name in ("known", "new"):
                with self.subTest(value=value, name=name), self.assertRaises(error):
                    self.parameters[name] = value  # type: ignore[assignment]
        self.assertEqual(dict(self.parameters), {"known": 1})

    def test_refuse_names(self) -> None:
        self.effect.add_parameter("known", 1)
        for name in ("", "known", "a\0"):
            with self.assertRaises(kostyle.RefusedError):
                self.effect.add_parameter(name, 1)
        with self.assertRaises(kostyle.RefusedError):
            self.parameters[""] = 1

    def test_are_known_while_they_come_and_go(self) -> None:
        generator = random.Random(5)
        expected: Dict[str, kostyle.ParameterValue] = {}
        for turn in range(300):
            name = generator.choice("abcdefgh")
            if name in expected and generator.random() < 0.5:
                del expected[name], self.parameters[name]
            else:
                expected[name] = self.parameters[name] = turn
            self.assertEqual(list(self.parameters.items()), sorted(expected.items()))

    def test_of_one_name_leave_the_other_behind(self) -> None:
        for gone in (0, 1):
            self.parameters.clear()
            self.parameters.update(a=0, b=1)
            self.effect.parameter_list[1].name = "a"
            self.assertEqual(dict(self.parameters), {"a": 0})
            self.effect.parameter_list[gone].destroy()
            self.assertEqual(dict(self.parameters), {"a": 1 - gone})

    def test_are_added_without_looking_at_all_others(self) -> None:
        calls = []
        real = c.Parameter_name
        with mock.patch.object(c, "Parameter_name", lambda address: calls.append(1) or real(address)):  # type: ignore
            self.parameters.update({f"p{number}": number for number in range(200)})
            for number in range(200):
                del self.parameters[f"p{number}"]
        self.assertLess(len(calls), 2000)

    def test_are_renamed(self) -> None:
        self.parameters.update(a=1, b=2)
        first, second = self.effect.parameter_list
        first.name = "z"
        self.assertEqual(list(self.parameters.items()), [("z", 1), ("b", 2)])
        second.name = "z"
        self.assertEqual(dict(self.parameters), {"z": 1})
        self.assertEqual([parameter.value for parameter in self.effect.parameter_list], [1, 2])
        with self.assertRaises(kostyle.RefusedError):
            first.name = ""
        second.value = "x"
        self.assertEqual((second.value, second.type), ("x", kostyle.ParameterType.STRING))
        first.destroy()
        self.assertEqual(dict(self.parameters), {"z": "x"})


class CopyTest(StyleTest):
    def test_has_all_but_the_vendor(self) -> None:
        style = self.read_one(document(
            vendor="Maker", filter={"languages": [1], "singerGroups": ["g"], "singerIDs": ["0123456789abcdef"],
                                    "genres": ["Pop"], "subGenres": ["s"], "colors": ["c"]},
            midiEffect={"Arp": {"parameter": {"rate": "1/16", "n": 3, "x": 0.5}}}))
        with style.mutable_copy() as copy:
            expected = kostyle.record_of(style)
            expected.id = expected.vendor = ""
            self.assertEqual(kostyle.record_of(copy), expected)
            self.assertEqual([problem.where for problem in copy.not_copied], ["vendor"])

    def test_of_a_mutable_style_is_another_one(self) -> None:
        style = self.mutable()
        copy = style.mutable_copy()
        copy.name = "Copy"
        self.assertEqual((style.name, copy.not_copied), ("Mutable", ()))

    def test_lists_a_name_that_is_too_long(self) -> None:
        with self.read_one(document(name="x" * 101)).mutable_copy() as copy:
            self.assertEqual(list(map(str, copy.not_copied)), ["name: the style has no name"])

    def test_lists_what_a_nul_of_the_file_spoils(self) -> None:
        style = self.read_one(document(
            filter={"genres": ["\0x", "a\0b", "a\0c"]},
            audioEffect={"E\0a": {"parameter": {"p\0a": 1, "p\0b": 2, "\0": 3}}, "E\0b": {"parameter": {"p": 1}}}))
        with style.mutable_copy() as copy:
            self.assertEqual([problem.where for problem in copy.not_copied],
                             ["genres/", "genres/a", "audio/E/", "audio/E/p", "audio/E"])
            self.assertEqual({problem.kind for problem in copy.not_copied}, {kostyle.ProblemKind.TEXT_LOST})
            self.assertEqual((list(copy.genres), dict(copy.audio_effects[0].parameters)), (["a"], {"p": 1}))
