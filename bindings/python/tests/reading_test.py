"""Reading directories and walking what they hold."""
import math
import os
import pathlib
import shutil
import unittest

import kostyle
from kostyle.attributes import LISTS

from support import EXAMPLES, StyleTest, document


class ManagerTest(StyleTest):
    def test_tells_what_it_was_made_of(self) -> None:
        self.assertEqual(self.manager.app_id, f"test-{self.id()}")
        self.assertEqual((self.manager.system_directory, self.manager.user_directory), (self.system, self.user))

    def test_of_one_identifier_is_one_object(self) -> None:
        again = kostyle.Manager(self.manager.app_id, self.user, self.system)
        self.assertIs(again, self.manager)
        again.close()
        self.assertTrue(self.manager.ended)

    def test_of_a_closed_identifier_is_made_anew(self) -> None:
        self.manager.close()
        again = self.make_manager()
        self.addCleanup(again.close)
        self.assertIsNot(again, self.manager)

    def test_is_refused_with_a_code_and_a_sentence(self) -> None:
        self.write(self.folder / "file", b"")
        below = self.folder / "file" / "user"
        for code, app_id, system, user in [
                (kostyle.Code.APP_ID_MISSING, "", self.system, self.user),
                (kostyle.Code.SYSTEM_DIRECTORY_MISSING, "x", self.folder / "none", self.user),
                (kostyle.Code.USER_DIRECTORY_NOT_CREATABLE, "x", self.system, below)]:
            with self.subTest(code=code), self.assertRaises(kostyle.CodeError) as caught:
                kostyle.Manager(app_id, system, user)
            self.assertIs(caught.exception.code, code)
            self.assertEqual(caught.exception.sentence, kostyle.code_text(code))
            self.assertIn(caught.exception.sentence, str(caught.exception))

    def test_makes_the_user_directory(self) -> None:
        made = self.folder / "new" / "user"
        with kostyle.Manager("maker", self.system, made):
            self.assertTrue(made.is_dir())

    def test_reads_further_directories(self) -> None:
        for name in ("more", "other"):
            (self.folder / name).mkdir()
            self.write(self.folder / name / "x.kostyle", document(name))
        with kostyle.Manager("further", self.system, self.user, system_directories=[self.folder / "more"],
                             user_directories=[str(self.folder / "other")]) as manager:
            manager.read()
            self.assertEqual([style.id for style in manager.system_styles], ["more"])
            self.assertEqual([style.id for style in manager.user_styles], ["other"])

    def test_says_when_a_directory_is_gone(self) -> None:
        shutil.rmtree(self.user)
        with self.assertRaises(kostyle.CodeError) as caught:
            self.manager.read()
        self.assertEqual((caught.exception.code, caught.exception.subject),
                         (kostyle.Code.DIRECTORY_MISSING, str(self.user)))

    def test_is_closed_behind_with_also_by_an_exception(self) -> None:
        with self.assertRaises(RuntimeError):
            with kostyle.Manager("short", self.system, self.user) as manager:
                raise RuntimeError
        self.assertTrue(manager.ended)
        manager.close()


class StyleSetTest(StyleTest):
    def setUp(self) -> None:
        super().setUp()
        for number in range(5):
            self.write(self.system / f"{number}.kostyle", document(f"id{number}", f"Name {number}"))
        self.manager.read()
        self.styles = self.manager.system_styles

    def test_is_a_sequence(self) -> None:
        self.assertEqual(len(self.styles), 5)
        self.assertEqual({style.id for style in self.styles}, {f"id{number}" for number in range(5)})
        self.assertEqual(list(reversed(self.styles))[0], self.styles[-1])
        self.assertEqual(self.styles[1:3], [self.styles[1], self.styles[2]])
        for index in (5, -6):
            with self.assertRaises(IndexError):
                self.styles[index]

    def test_gives_one_object_for_one_style(self) -> None:
        self.assertIs(self.styles[2], self.styles[2])
        self.assertEqual(self.styles.index(self.styles[3]), 3)

    def test_finds_by_identifier(self) -> None:
        found = self.styles.find("id3")
        self.assertEqual(found and found.name, "Name 3")
        self.assertIsNone(self.styles.find("none"))

    def test_knows_what_it_holds(self) -> None:
        self.assertIn(self.styles[0], self.styles)
        self.assertNotIn(self.styles[0], self.manager.user_styles)
        self.assertNotIn("id3", self.styles)
        self.assertIs(self.styles[0].manager, self.manager)

    def test_leaves_a_result_for_each_file(self) -> None:
        results = self.styles.creation_results
        self.assertEqual([(result.path, result.id) for result in results],
                         [(style.path, style.id) for style in self.styles])
        self.assertTrue(all(result.taken and result.refusal is None for result in results))
        results[0].raise_for_refusal()


class StoredStyleTest(StyleTest):
    def test_has_all_that_its_file_has(self) -> None:
        style = self.read_one({
            "id": "\u00fcber", "name": "\U0001f3b5", "vendor": "Maker",
            "filter": {"languages": [3, 0, 9], "singerGroups": ["b", "a"], "singerIDs": ["0123456789abcdef"],
                       "genres": ["Pop"], "subGenres": ["Retro"], "colors": ["red"]},
            "audioEffect": {"Two": {"parameter": {"z": "text", "int": -5, "float": 0.1}},
                            "One": {"parameter": {"e": ""}}},
            "midiEffect": {"Arp": {"parameter": {"Tarn": 1, "huge": 1e300}}}})
        record = kostyle.record_of(style)
        single = 0.10000000149011612
        self.assertEqual(record, kostyle.StyleRecord(
            "\u00fcber", "\U0001f3b5", "Maker", (0, 3), ("a", "b"), ("0123456789abcdef",), ("Pop",), ("Retro",),
            ("red",),
            (kostyle.EffectRecord("Two", (("float", single), ("int", -5), ("z", "text"))),
             kostyle.EffectRecord("One", (("e", ""),))),
            (kostyle.EffectRecord("Arp", (("Tarn630", 1), ("huge", math.inf))),)))
        for name in ("id", "name", "vendor", *LISTS):
            self.assertEqual(getattr(style, name), getattr(record, name))
        self.assertEqual((style.path, style.kind), (self.user / "one.kostyle", kostyle.Kind.USER))

    def test_has_chains_of_effects(self) -> None:
        style = self.read_one(document(midiEffect={"Arp": {"parameter": {"rate": "1/16"}}}))
        [gate], [arp] = style.audio_effects, style.midi_effects
        self.assertEqual((gate.kind, arp.kind), (kostyle.EffectKind.AUDIO, kostyle.EffectKind.MIDI))
        self.assertIs(style.audio_effects.find("Gate"), gate)
        self.assertIsNone(style.midi_effects.find("Gate"))
        self.assertIn(gate, style.audio_effects)
        self.assertNotIn(gate, style.midi_effects)
        self.assertNotIn("Gate", style.audio_effects)

    def test_has_parameters_as_a_mapping(self) -> None:
        style = self.read_one(document(audioEffect={"E": {"parameter": {"b": 1, "a": 2.0, "c": "x"}}}))
        [effect] = style.audio_effects
        self.assertEqual(list(effect.parameters.items()), [("a", 2.0), ("b", 1), ("c", "x")])
        self.assertEqual([type(value) for value in effect.parameters.values()], [float, int, str])
        self.assertEqual([parameter.type.name for parameter in effect.parameter_list], ["FLOAT", "INT", "STRING"])
        self.assertNotIn("d", effect.parameters)
        with self.assertRaises(KeyError):
            effect.parameters["d"]

    def test_shows_parameters_that_look_repeated_in_the_list(self) -> None:
        style = self.read_one(document(audioEffect={"E": {"parameter": {"x\0a": 1, "x\0b": 2}}}))
        [effect] = style.audio_effects
        self.assertEqual(dict(effect.parameters), {"x": 1})
        self.assertEqual([parameter.value for parameter in effect.parameter_list], [1, 2])


class CreationResultTest(StyleTest):
    maxDiff = None

    def test_tells_why_each_broken_file_was_refused(self) -> None:
        shutil.copytree(EXAMPLES / "broken", self.user, dirs_exist_ok=True)
        shutil.copytree(EXAMPLES / "system", self.system, dirs_exist_ok=True)
        self.manager.read()
        refused = {result.path.name: str(result.refusal) for result in self.manager.user_styles.creation_results}
        self.assertEqual(refused, {
            "borrowed_id.kostyle": "another style has the same identifier",
            "bottomless.kostyle": "not valid JSON: the values nest too deep, line 1, column 565",
            "comma_too_many.kostyle": "not valid JSON: an object member has no name, line 2, column 54",
            "empty_file.kostyle": "not valid JSON: the file holds no value, line 1, column 1",
            "empty_id.kostyle": "required string is empty at /id",
            "gain_too_big.kostyle": "not valid JSON: a number is too large for double precision, line 1, column 95",
            "half_a_file.kostyle": "not valid JSON: a string has no closing quotation mark, line 1, column 33",
            "list_of_styles.kostyle": "value has the wrong type at /",
            "nameless.kostyle": "required member is missing at /name",
            "no_effect.kostyle": "the style has no effect at /",
            "number_as_name.kostyle": "value has the wrong type at /name"})

    def test_raises_for_a_refusal(self) -> None:
        self.write(self.user / "x.kostyle", b"{")
        self.manager.read()
        [result] = self.manager.user_styles.creation_results
        with self.assertRaises(kostyle.CodeError) as caught:
            result.raise_for_refusal()
        self.assertEqual(caught.exception.code, kostyle.Code.JSON_SYNTAX)

    def test_does_without_the_line_when_the_file_is_gone(self) -> None:
        file = self.write(self.user / "x.kostyle", b"{\n?")
        self.manager.read()
        [result] = self.manager.user_styles.creation_results
        file.unlink()
        self.assertEqual(str(result.refusal), "not valid JSON: an object member has no name, byte offset 3")
