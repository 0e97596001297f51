"""Saving with care: nothing is lost unsaid, and a failure leaves all as it was."""
import contextlib
import math
import os
import random
import shutil
import tempfile
import unittest
from typing import Any, Callable, Iterator, List, Tuple
from unittest import mock

import kostyle
from kostyle import ProblemKind, safe_save

from support import StyleTest, document

# How a style comes to hold something that does not come back, and what is said about it.
PROBLEMS: List[Tuple[str, ProblemKind, Callable[[kostyle.MutableStyle], Any]]] = [
    ("midi/Empty", ProblemKind.EFFECT_WITHOUT_PARAMETERS, lambda style: style.midi_effects.append("Empty")),
    ("audio/Gate/p", ProblemKind.INFINITE, lambda style: style.audio_effects[0].add_parameter("p", math.inf)),
    ("audio/Gate/p", ProblemKind.INFINITE, lambda style: style.audio_effects[0].add_parameter("p", -math.inf)),
    ("audio/Gate/p", ProblemKind.NOT_A_NUMBER, lambda style: style.audio_effects[0].add_parameter("p", math.nan)),
    ("audio/Gate/Tarn", ProblemKind.PARAMETER_RENAMED,
     lambda style: style.audio_effects[0].add_parameter("Tarn", 1)),
    ("audio/Gate/hold", ProblemKind.PARAMETER_REPEATED,
     lambda style: setattr(style.audio_effects[0].add_parameter("p", 1), "name", "hold")),
    ("audio/Gate/p", ProblemKind.LONE_SURROGATE, lambda style: style.audio_effects[0].add_parameter("p", "\ud83c")),
    ("audio/Gate/\ufffd", ProblemKind.LONE_SURROGATE,
     lambda style: style.audio_effects[0].add_parameter("\udfb5", 1)),
    ("midi/\ufffd", ProblemKind.LONE_SURROGATE,
     lambda style: style.midi_effects.append("\udfb5").add_parameter("p", 1)),
    ("name", ProblemKind.LONE_SURROGATE, lambda style: setattr(style, "name", "x\ud83c")),
    ("genres/\ufffd", ProblemKind.LONE_SURROGATE, lambda style: style.genres.add("\udfb5")),
    ("singerIDs/" + "\ufffd" * 16, ProblemKind.LONE_SURROGATE, lambda style: style.singer_ids.add("\udfb5" * 16)),
    ("", ProblemKind.NO_EFFECT, lambda style: style.audio_effects[0].destroy()),
]


@contextlib.contextmanager
def full_disk(room: int) -> Iterator[None]:
    """Files cannot grow beyond so many bytes, as on a disk that is full."""
    import resource
    limits = resource.getrlimit(resource.RLIMIT_FSIZE)
    resource.setrlimit(resource.RLIMIT_FSIZE, (room, limits[1]))
    try:
        yield
    finally:
        resource.setrlimit(resource.RLIMIT_FSIZE, limits)


class SafeTest(StyleTest):
    def setUp(self) -> None:
        super().setUp()
        self.target = self.read_one(document(filter={"genres": ["Old"]}))
        self.expected = kostyle.record_of(self.target)
        self.before = self.target.path.read_bytes()

    def expect_all_as_it_was(self) -> None:
        """On the disk, and of the target in memory."""
        self.assertEqual([path.name for path in self.user.iterdir()], ["one.kostyle"])
        self.assertEqual(self.target.path.read_bytes(), self.before)
        self.assertEqual(kostyle.record_of(self.target), self.expected)
        self.assertEqual(list(self.manager.user_styles), [self.target])

    def saves(self, style: kostyle.MutableStyle) -> List[Callable[[], Any]]:
        return [style.save_safely, lambda: style.overwrite_safely(self.target)]


class FindProblemsTest(SafeTest):
    def test_finds_each_before_anything_is_written(self) -> None:
        for where, kind, spoil in PROBLEMS:
            style = self.mutable()
            spoil(style)
            for save in self.saves(style):
                with self.subTest(where=where, kind=kind), self.assertRaises(kostyle.UnsafeError) as caught:
                    save()
                self.assertEqual(caught.exception.problems, (kostyle.Problem(kind, where),))
                self.assertEqual(caught.exception.problems, kostyle.find_problems(style))
            self.assertFalse(style.ended)
        self.expect_all_as_it_was()

    def test_finds_that_all_is_missing(self) -> None:
        with self.manager.create_mutable_style() as style:
            self.assertEqual(list(map(str, kostyle.find_problems(style))),
                             ["name: the style has no name", "the style has no effect with a parameter"])

    def test_finds_a_name_that_repeats_when_it_is_read(self) -> None:
        style = self.mutable()
        style.audio_effects[0].parameters.update({"Tarn": 1, "Tarn630": 2})
        self.assertEqual([problem.kind for problem in kostyle.find_problems(style)],
                         [ProblemKind.PARAMETER_RENAMED, ProblemKind.PARAMETER_REPEATED])

    def test_finds_nothing_else(self) -> None:
        style = self.mutable("\U0001f3b5 \u00e9 \" \\ \n")
        style.audio_effects[0].parameters.update({"Tarn630": 1, "tarn": 2})
        self.assertEqual(kostyle.find_problems(style), ())

    def test_finds_no_repetition_in_names_that_only_look_alike(self) -> None:
        style = self.read_one(document(audioEffect={"A": {"parameter": {"x": 1, "x\0y": 2}}}))
        self.assertEqual(kostyle.find_problems(style), ())

    def test_tells_of_a_stored_style_that_its_file_cannot_be_written_again(self) -> None:
        style = self.read_one(document(vendor="Maker", audioEffect={
            "A": {"parameter": {"x": 1e300}}, "B": {"parameter": {"x": None}}, "C": {"parameter": {"x": "\udfb5"}}}))
        before = style.path.read_bytes()
        self.assertEqual([problem.where for problem in kostyle.find_problems(style)],
                         ["vendor", "audio/A/x", "audio/B", "audio/C/x"])
        with style.property_editor() as editor:
            editor.name = "New"
            with self.assertRaises(kostyle.UnsafeError):
                editor.save_safely()
        self.assertEqual((style.path.read_bytes(), style.name), (before, "One"))

    def test_tells_of_a_target_on_another_file_system(self) -> None:
        shared = "/dev/shm"
        if not os.path.isdir(shared) or os.stat(shared).st_dev == os.stat(self.user).st_dev:
            self.skipTest("there is one file system only")
        with tempfile.TemporaryDirectory(dir=shared) as other:
            file = self.write(self.folder / "x", document("far"))
            shutil.copy(file, os.path.join(other, "far.kostyle"))
            with kostyle.Manager("far", self.system, self.user, user_directories=[other]) as manager:
                manager.read()
                far = manager.user_styles.find("far")
                assert far is not None
                before = far.path.read_bytes()
                with far.mutable_copy() as copy, self.assertRaises(kostyle.UnsafeError) as caught:
                    copy.overwrite_safely(far)
                self.assertEqual([problem.kind for problem in caught.exception.problems],
                                 [ProblemKind.NOT_REPLACEABLE])
                self.assertEqual(far.path.read_bytes(), before)
        self.expect_all_as_it_was()


class SuccessTest(SafeTest):
    def test_of_saving(self) -> None:
        style = self.mutable("New")
        saved = style.save_safely(pretty=False)
        self.assertTrue(style.ended)
        self.assertEqual(kostyle.scan([saved.path])[0].style, kostyle.record_of(saved))
        self.assertNotIn(b"\n", saved.path.read_bytes())
        self.assertEqual(len(list(self.user.iterdir())), 2)

    def test_of_overwriting(self) -> None:
        style = self.mutable("New")
        self.assertIs(style.overwrite_safely(self.target), self.target)
        self.assertTrue(style.ended)
        self.assertEqual(self.target.name, "New")
        [record] = kostyle.scan([self.target.path])
        assert record.style is not None
        self.assertEqual((record.style.name, record.style.vendor), ("New", ""))
        self.assertEqual([path.name for path in self.user.iterdir()], ["one.kostyle"])

    def test_of_overwriting_a_style_with_its_copy(self) -> None:
        with self.target.mutable_copy() as copy:
            copy.genres.add("New")
            copy.overwrite_safely(self.target)
        self.assertEqual(self.target.genres, ("New", "Old"))

    def test_accepts_losses_when_told_to(self) -> None:
        style = self.mutable()
        style.audio_effects[0].add_parameter("Tarn", 1)
        style.audio_effects[0].add_parameter("Tarn630", 2)
        style.midi_effects.append("Empty")
        saved = style.save_safely(accept_losses=True)
        [record] = kostyle.scan([saved.path])
        assert record.style is not None
        self.assertEqual(dict(record.style.audio_effects[0].parameters)["Tarn630"], 1)
        self.assertEqual(record.style.midi_effects, ())

    def test_accepts_nothing_that_cannot_be_written(self) -> None:
        style = self.mutable()
        style.audio_effects[0].parameters["x"] = math.inf
        with self.assertRaises(kostyle.UnsafeError):
            style.save_safely(accept_losses=True)
        with self.assertRaises(kostyle.UnsafeError):
            style.overwrite_safely(self.target, accept_losses=True)
        self.expect_all_as_it_was()

    def test_of_overwriting_keeps_the_vendor_unless_its_loss_is_accepted(self) -> None:
        target = self.read_one(document(vendor="Maker"))
        before = target.path.read_bytes()
        style = self.mutable("New")
        with self.assertRaises(kostyle.UnsafeError) as caught:
            style.overwrite_safely(target)
        self.assertEqual([problem.where for problem in caught.exception.problems], ["vendor"])
        self.assertEqual(target.path.read_bytes(), before)
        style.overwrite_safely(target, accept_losses=True)
        self.assertEqual(target.name, "New")

    def test_of_editing_tells_of_the_vendor(self) -> None:
        self.target = self.read_one(document(vendor="Maker"))
        with self.target.property_editor() as editor:
            editor.name = "New"
            editor.add_color("red")
            self.assertEqual([problem.where for problem in editor.save_safely()], ["vendor"])
        self.assertEqual((self.target.name, self.target.colors), ("New", ("red",)))
        self.assertEqual([path.name for path in self.user.iterdir()], ["one.kostyle"])

    def test_of_any_style(self) -> None:
        generator = random.Random(3)
        values: List[kostyle.ParameterValue] = [0, -1, 2 ** 31 - 1, 0.1, 3.0, -0.0, 1e-45, 3.4e38, "", "x",
                                                "\U0001f3b5", "\u2028\"\\/\n\x01"]
        for trial in range(30):
            style = self.mutable(f"Trial {trial}")
            for chain in (style.audio_effects, style.midi_effects):
                for number in range(generator.randrange(4)):
                    chain.append(f"E{number}").parameters.update(
                        {f"p{place}\u00e9": generator.choice(values) for place in range(generator.randrange(1, 6))})
            style.languages.update(generator.sample(range(5), 3))
            style.colors.update(generator.sample(["a", "\ue000", "\U0001f3b5", "\uffff"], 3))
            expected = kostyle.record_of(style)
            saved = style.save_safely()
            expected.id = saved.id
            self.assertEqual(repr(kostyle.scan([saved.path])[0].style), repr(expected))


class FailureTest(SafeTest):
    def expect_not_saved(self, save: Callable[[], Any]) -> kostyle.NotSavedError:
        with self.assertRaises(kostyle.NotSavedError) as caught:
            save()
        self.assertIsNone(caught.exception.backup)
        return caught.exception

    def assert_kinds(self, failure: kostyle.NotSavedError, *kinds: ProblemKind) -> None:
        self.assertEqual([problem.kind for problem in failure.problems], list(kinds))

    def big(self) -> kostyle.MutableStyle:
        style = self.mutable("Big")
        style.genres.update([f"genre {number}" for number in range(2000)])
        return style

    @unittest.skipIf(os.name == "nt", "files cannot be bounded there")
    def test_on_a_full_disk_leaves_all_as_it_was(self) -> None:
        for room in (0, 1000, 10_000):
            style = self.big()
            for save in self.saves(style):
                with self.subTest(room=room), full_disk(room):
                    failure = self.expect_not_saved(save)
                self.assertIn("not valid JSON", str(failure))
                self.assertEqual((style.ended, style.name, len(style.genres)), (False, "Big", 2000))
                self.expect_all_as_it_was()

    @unittest.skipIf(os.name == "nt", "files cannot be bounded there")
    def test_on_a_full_disk_does_not_begin_to_edit(self) -> None:
        with self.target.property_editor() as editor, full_disk(10):
            editor.name = "New"
            self.assert_kinds(self.expect_not_saved(editor.save_safely), ProblemKind.BACKUP_FAILED)
        self.expect_all_as_it_was()

    @unittest.skipIf(os.name == "nt", "files cannot be bounded there")
    def test_of_editing_puts_the_file_back(self) -> None:
        effect = self.target.audio_effects[0]
        with self.target.property_editor() as editor:
            self.fill(editor)
            with full_disk(len(self.before) + 50):
                self.expect_not_saved(editor.save_safely)
            self.expect_all_as_it_was()
            self.assertFalse(effect.ended)
            editor.save_safely()
        self.assertEqual((self.target.name, len(self.target.colors)), ("New", 100))

    @staticmethod
    def fill(editor: kostyle.PropertyEditor) -> None:
        editor.name = "New"
        for number in range(100):
            editor.add_color(f"color {number}")

    @unittest.skipIf(os.name == "nt", "files cannot be bounded there")
    def test_of_editing_puts_back_what_links_lead_to(self) -> None:
        for name in ("symlink", "link"):
            elsewhere = self.folder / name
            self.target.path.rename(elsewhere)
            getattr(os, name)(elsewhere, self.target.path)
            known = os.lstat(self.target.path).st_ino
            with self.target.property_editor() as editor, full_disk(len(self.before) + 50):
                self.fill(editor)
                self.expect_not_saved(editor.save_safely)
            self.assertEqual((elsewhere.read_bytes(), os.lstat(self.target.path).st_ino), (self.before, known))
            self.expect_all_as_it_was()

    def test_to_begin_with_editing_leaves_the_file_alone(self) -> None:
        known = self.target.path.stat()
        with self.target.property_editor() as editor:
            with self.assertRaises(kostyle.RefusedError):
                editor.save_safely()
        after = self.target.path.stat()
        self.assertEqual((after.st_ino, after.st_mtime_ns), (known.st_ino, known.st_mtime_ns))
        self.expect_all_as_it_was()

    def test_to_write_back_what_was_edited_exchanges_the_file(self) -> None:
        with self.target.property_editor() as editor:
            editor.name = "New"
            with mock.patch.object(safe_save, "scan", side_effect=OSError(5, "Input/output error")), \
                    mock.patch("shutil.copy2", lambda file, backup: backup.write_bytes(file.read_bytes())), \
                    mock.patch("shutil.copyfile", side_effect=OSError):
                self.expect_not_saved(editor.save_safely)
        self.expect_all_as_it_was()

    def test_of_editing_a_style_without_a_name_puts_the_file_back(self) -> None:
        style = self.read_one(document(name="x" * 101))
        before = style.path.read_bytes()
        with style.property_editor() as editor, mock.patch.object(safe_save, "scan", side_effect=OSError(5, "broken")):
            editor.name = "New"
            self.expect_not_saved(editor.save_safely)
        self.assertEqual(style.path.read_bytes(), before)

    def test_to_find_the_same_identifier_leaves_all_as_it_was(self) -> None:
        def another(paths: List[Any]) -> List[kostyle.FileRecord]:
            [file] = kostyle.scan(paths)
            assert file.style is not None
            file.style.id += "x"
            return [file]

        style = self.mutable()
        with self.target.property_editor() as editor, mock.patch.object(safe_save, "scan", another):
            editor.name = "New"
            for save in (*self.saves(style), editor.save_safely):
                self.assert_kinds(self.expect_not_saved(save), ProblemKind.READ_BACK_DIFFERS)
                self.expect_all_as_it_was()

    def test_to_delete_the_new_file_tells_where_it_is(self) -> None:
        def vanished(paths: List[Any]) -> List[kostyle.FileRecord]:
            os.unlink(*paths)
            return kostyle.scan(paths)

        with mock.patch.object(safe_save, "scan", vanished):
            failure = self.expect_not_saved(self.mutable().save_safely)
        self.assertEqual(failure.path.parent, self.user)
        self.assert_kinds(failure, ProblemKind.NOT_READ_BACK, ProblemKind.NOT_RESTORED)
        self.assertEqual([problem.where for problem in failure.problems], [str(failure.path)] * 2)
        self.assertEqual(failure.problems[0].cause, os.strerror(2))

    def test_to_read_back_by_a_code_is_the_same(self) -> None:
        style = self.mutable()
        broken = kostyle.CodeError(kostyle.Code.DIRECTORY_MISSING, "x")
        for save in self.saves(style):
            with mock.patch.object(safe_save, "scan", side_effect=broken):
                self.assert_kinds(self.expect_not_saved(save), ProblemKind.NOT_READ_BACK)
            self.expect_all_as_it_was()

    def test_to_read_back_leaves_all_as_it_was(self) -> None:
        for failure in (OSError(28, "No space left on device"), KeyboardInterrupt()):
            style = self.mutable()
            editor = self.target.property_editor()
            editor.name = "New"
            for save in (*self.saves(style), editor.save_safely):
                with mock.patch.object(safe_save, "scan", side_effect=failure):
                    with self.assertRaises((kostyle.NotSavedError, KeyboardInterrupt)):
                        save()
                self.assertFalse(style.ended)
                self.expect_all_as_it_was()

    def test_to_find_the_same_leaves_all_as_it_was(self) -> None:
        [other] = kostyle.scan([self.target.path])
        style = self.mutable()
        for save in self.saves(style):
            with mock.patch.object(safe_save, "scan", return_value=[other]):
                self.assert_kinds(self.expect_not_saved(save), ProblemKind.READ_BACK_DIFFERS)
            self.expect_all_as_it_was()

    def test_to_put_the_file_back_tells_where_it_is(self) -> None:
        style = self.mutable()
        with mock.patch.object(safe_save, "scan", side_effect=OSError(5, "Input/output error")), \
                mock.patch("os.replace", side_effect=OSError), self.assertRaises(kostyle.NotSavedError) as caught:
            style.overwrite_safely(self.target)
        backup = caught.exception.backup
        assert backup is not None
        self.assertEqual(backup.read_bytes(), self.before)
        self.assertNotEqual(backup.suffix, ".kostyle")
        self.assert_kinds(caught.exception, ProblemKind.NOT_READ_BACK, ProblemKind.NOT_RESTORED)
        self.assertEqual(caught.exception.problems[1].where, str(backup))

    def test_of_the_library_leaves_all_as_it_was(self) -> None:
        refused = kostyle.CodeError(kostyle.Code.OPEN_FAILED, "x")
        style = self.mutable()
        for save, name in zip(self.saves(style), ("save", "overwrite")):
            with mock.patch.object(kostyle.MutableStyle, name, side_effect=refused):
                with self.assertRaises(kostyle.CodeError):
                    save()
            self.assertFalse(style.ended)
            self.expect_all_as_it_was()

    def test_when_the_target_is_gone(self) -> None:
        self.expect_not_replaceable(self.target.path.unlink, os.strerror(2))
        self.expect_not_replaceable(self.target.path.mkdir, "it is no regular file")

    def expect_not_replaceable(self, spoil: Callable[[], None], cause: str) -> None:
        spoil()
        style = self.mutable()
        with self.assertRaises(kostyle.UnsafeError) as caught:
            style.overwrite_safely(self.target)
        self.assertEqual(caught.exception.problems,
                         (kostyle.Problem(ProblemKind.NOT_REPLACEABLE, str(self.target.path), cause),))
        self.assertFalse(style.ended)

    @unittest.skipIf(os.name == "nt", "files cannot be bounded there")
    def test_without_room_for_a_copy_does_not_begin_to_overwrite(self) -> None:
        with mock.patch("os.link", side_effect=OSError), full_disk(10):
            failure = self.expect_not_saved(lambda: self.mutable().overwrite_safely(self.target))
        self.assert_kinds(failure, ProblemKind.BACKUP_FAILED)
        self.expect_all_as_it_was()

    @unittest.skipIf(os.name == "nt", "links are made by os.link() there")
    def test_without_links_makes_a_copy(self) -> None:
        with mock.patch("os.link", side_effect=OSError):
            self.mutable("New").overwrite_safely(self.target)
            self.assertEqual(self.target.name, "New")
            self.assertEqual([path.name for path in self.user.iterdir()], ["one.kostyle"])
