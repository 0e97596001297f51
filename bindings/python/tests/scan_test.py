"""Scanning files without a manager."""
import concurrent.futures
import errno
import importlib
import os
import pathlib
import pickle
import random
import shutil
import tempfile
import threading
import unittest
from typing import Any, List, Optional
from unittest import mock

import kostyle
from kostyle.functions import c

from support import EXAMPLES, StyleTest, document

module = importlib.import_module("kostyle.scan")


class ScanTest(StyleTest):
    def scan_one(self, path: "os.PathLike[str]") -> kostyle.FileRecord:
        [record] = kostyle.scan([path])
        return record

    @staticmethod
    def ids(records: List[kostyle.FileRecord]) -> List[Optional[str]]:
        return [record.style.id if record.style else None for record in records]

    def expect_refusal(self, path: pathlib.Path, sentence: str, code: Optional[int] = None) -> None:
        record = self.scan_one(path)
        assert record.refusal is not None
        self.assertIsNone(record.style)
        self.assertEqual((record.refusal.code, str(record.refusal)), (code, sentence))

    def test_gives_what_a_manager_gives(self) -> None:
        shutil.copytree(EXAMPLES / "system", self.system, dirs_exist_ok=True)
        shutil.copytree(EXAMPLES / "broken", self.user, dirs_exist_ok=True)
        self.manager.read()
        paths = sorted(str(path) for folder in (self.system, self.user) for path in folder.iterdir())
        scanned = {record.path: record for record in kostyle.scan(paths)}
        self.assertEqual(list(scanned), paths)
        for style in self.manager.system_styles:
            self.assertEqual(scanned[str(style.path)].style, kostyle.record_of(style))
        for result in self.manager.user_styles.creation_results:
            record = scanned[str(result.path)]
            if result.path.name == "borrowed_id.kostyle":
                self.assertIsNotNone(record.style)
            else:
                self.assertEqual((record.style, record.refusal), (None, result.refusal))

    def test_of_nothing_is_empty(self) -> None:
        self.assertEqual(kostyle.scan([]), [])

    def test_takes_every_file_of_one_identifier(self) -> None:
        paths = []
        for number in range(60):
            paths.append(self.write(self.folder / f"{number}.kostyle", document(f"id{number % 7}", f"Name {number}")))
        with mock.patch.object(module, "_scan_round", wraps=module._scan_round) as rounds:
            records = kostyle.scan(paths)
        self.assertEqual([record.style and record.style.name for record in records],
                         [f"Name {number}" for number in range(60)])
        read = sum(len(call.args[0]) for call in rounds.call_args_list)
        self.assertLessEqual(read, 2 * 60)

    def test_takes_a_path_that_is_given_twice(self) -> None:
        path = self.write(self.folder / "x.kostyle", document())
        self.assertEqual(self.ids(kostyle.scan([path, str(path), path])), ["one"] * 3)

    def test_looks_at_no_name(self) -> None:
        for name in ("x", "x.KOSTYLE", "a.kostyle.json", " 1.kostyle", "caf\u00e9 \U0001f3b5"):
            record = self.scan_one(self.write(self.folder / name, document()))
            self.assertIsNotNone(record.style, name)

    @unittest.skipIf(os.name == "nt", "names are UTF-16 there")
    def test_takes_names_that_are_no_utf8(self) -> None:
        path = self.write(self.folder / os.fsdecode(b"\xff\xfe"), document())
        self.assertEqual(self.scan_one(path).path, str(path))
        self.assertIsNotNone(self.scan_one(path).style)

    def test_takes_relative_paths(self) -> None:
        self.write(self.folder / "x.kostyle", document())
        before = os.getcwd()
        os.chdir(self.folder)
        try:
            record = self.scan_one(pathlib.Path("x.kostyle"))
        finally:
            os.chdir(before)
        self.assertEqual((record.path, record.style and record.style.id), ("x.kostyle", "one"))

    @unittest.skipIf(os.name == "nt", "the system has another rule")
    def test_takes_the_folder_above_as_the_system_does(self) -> None:
        (self.folder / "far" / "below").mkdir(parents=True)
        self.write(self.folder / "far" / "x", document("right"))
        self.write(self.folder / "x", document("wrong"))
        (self.folder / "link").symlink_to(self.folder / "far" / "below")
        before = os.getcwd()
        os.chdir(self.folder)
        try:
            records = kostyle.scan(["link/../x", str(self.folder / "link" / ".." / "x"), "./far/../x"])
        finally:
            os.chdir(before)
        self.assertEqual(self.ids(records), ["right", "right", "wrong"])

    def test_takes_paths_and_not_one(self) -> None:
        path = str(self.write(self.folder / "x", document()))
        for one in (path, os.fsencode(path)):
            with self.assertRaises(TypeError):
                kostyle.scan(one)  # type: ignore[arg-type]
        [record] = kostyle.scan([os.fsencode(path)])  # type: ignore[list-item]
        self.assertEqual((record.path, record.style is not None), (path, True))

    @unittest.skipIf(os.name == "nt", "links are hard links there")
    def test_is_no_fault_of_the_files_when_there_is_no_room(self) -> None:
        path = self.write(self.folder / "x", document())
        for failing in ("os.symlink", "shutil.copyfile"):
            with mock.patch("os.symlink", side_effect=OSError), \
                    mock.patch(failing, side_effect=OSError(errno.ENOSPC, "No space left on device")), \
                    self.assertRaises(OSError):
                kostyle.scan([path])

    def test_says_why_a_file_cannot_be_read(self) -> None:
        self.expect_refusal(self.folder / "none", os.strerror(errno.ENOENT))
        self.expect_refusal(self.folder, "it is a directory")
        self.expect_refusal(pathlib.Path("a\0b"), "the system has no such paths")
        link = self.folder / "link"
        link.symlink_to(self.folder / "none")
        self.expect_refusal(link, os.strerror(errno.ENOENT))
        circle = self.folder / "circle"
        circle.symlink_to(circle)
        self.expect_refusal(circle, os.strerror(errno.ELOOP))

    @unittest.skipUnless(hasattr(os, "mkfifo"), "there are no pipes")
    def test_does_not_wait_for_a_pipe(self) -> None:
        os.mkfifo(self.folder / "pipe.kostyle")
        self.expect_refusal(self.folder / "pipe.kostyle", "it is no regular file")

    def test_follows_links(self) -> None:
        link = self.folder / "link"
        link.symlink_to(self.write(self.folder / "x", document()))
        self.assertIsNotNone(self.scan_one(link).style)

    def test_says_where_a_file_is_wrong(self) -> None:
        path = self.write(self.folder / "x", b'{\r\n "id": "a",\r\n  ?}')
        refusal = self.scan_one(path).refusal
        assert refusal is not None
        self.assertEqual((refusal.code, refusal.parse_error, refusal.offset, refusal.line, refusal.column),
                         (kostyle.Code.JSON_SYNTAX, kostyle.ParseError.OBJECT_NAME_MISSING, 19, 3, 3))

    def test_says_where_a_file_is_wrong_without_reading_all_of_it(self) -> None:
        path = self.write(self.folder / "x", b'{\n ?}' + b" " * 1_000_000)
        with mock.patch("kostyle.records.find_line", wraps=kostyle.find_line) as found:
            refusal = self.scan_one(path).refusal
        assert refusal is not None
        self.assertEqual((refusal.line, refusal.column), (2, 2))
        self.assertLess(len(found.call_args.args[0]), 100)

    def test_says_when_a_file_vanishes_meanwhile(self) -> None:
        paths = [self.write(self.folder / f"{number}", document(f"id{number}")) for number in range(3)]
        show = module._show

        def vanishing(path: str, link: str) -> None:
            show(path, link)
            if path.endswith("1"):
                os.unlink(path)

        with mock.patch.object(module, "_show", vanishing):
            records = kostyle.scan(paths)
        self.assertEqual([record.style is not None for record in records], [True, False, True])
        self.assertEqual(str(records[1].refusal), os.strerror(errno.ENOENT))

    def test_ends_when_files_change_between_the_rounds(self) -> None:
        paths = [self.write(self.folder / f"{number}", document("same")) for number in range(8)]
        scan_round = module._scan_round

        def changing(records: List[kostyle.FileRecord]) -> object:
            for path in paths:
                self.write(path, document(random.choice(["same", "other"])))
            return scan_round(records)

        with mock.patch.object(module, "_scan_round", changing):
            self.assertTrue(all(record.style for record in kostyle.scan(paths)))

    @unittest.skipIf(os.name == "nt", "links are hard links there")
    def test_does_without_links(self) -> None:
        paths = [self.write(self.folder / "x", document()), self.folder / "none", self.folder]
        with mock.patch("os.symlink", side_effect=OSError):
            records = kostyle.scan(paths)
        self.assertEqual([record.style is not None for record in records], [True, False, False])
        reasons = [str(record.refusal) for record in records[1:]]
        self.assertEqual(reasons, [os.strerror(errno.ENOENT), "it is a directory"])

    @unittest.skipIf(os.name == "nt", "that is how it is there")
    def test_makes_hard_links_or_copies_as_on_windows(self) -> None:
        path = str(self.write(self.folder / "x", document()))
        for failure in (None, OSError):
            with mock.patch("sys.platform", "win32"), mock.patch("os.link", side_effect=failure, wraps=os.link) as link:
                shown = self.folder / f"shown {failure}"
                module._show(path, str(shown))
            self.assertEqual(link.call_count, 1)
            self.assertFalse(shown.is_symlink())
            if failure:
                self.assertEqual(shown.read_bytes(), pathlib.Path(path).read_bytes())
        with mock.patch("sys.platform", "win32"), mock.patch("os.access", return_value=False), \
                mock.patch("os.link") as link:
            module._show(path, str(self.folder / "read-only"))
        self.assertEqual((link.call_count, (self.folder / "read-only").exists()), (0, True))

    def test_leaves_nothing_behind(self) -> None:
        seen: List[str] = []

        def interrupted(style: int) -> kostyle.StyleRecord:
            seen.extend(os.listdir(temporary))
            raise KeyboardInterrupt

        path = self.write(self.folder / "x", document())
        temporary = self.folder / "temporary"
        temporary.mkdir()
        with mock.patch.dict(os.environ, TMPDIR=str(temporary)), mock.patch("tempfile.tempdir", None):
            kostyle.scan([path, self.folder / "none"])
            with mock.patch.object(module, "read_style", interrupted), self.assertRaises(KeyboardInterrupt):
                kostyle.scan([path])
        self.assertEqual((len(seen), list(temporary.iterdir())), (1, []))

    def test_makes_its_folder_in_memory_where_there_is_such_a_place(self) -> None:
        path = self.write(self.folder / "x", document())
        real = tempfile.mkdtemp
        places: List[Optional[str]] = []

        def elsewhere(prefix: str, dir: Optional[str] = None) -> str:
            places.append(dir)
            if dir:
                raise OSError
            return real(prefix=prefix)

        with mock.patch.dict(os.environ), mock.patch("tempfile.mkdtemp", elsewhere):
            os.environ.pop("TMPDIR", None)
            self.assertIsNotNone(self.scan_one(path).style)
            self.assertEqual(places, ["/dev/shm", None])

    def test_needs_several_folders_for_many_files(self) -> None:
        paths = [self.write(self.folder / f"{number}", document(f"id{number}")) for number in range(25)]
        with mock.patch.object(module, "_BATCH", 10):
            records = kostyle.scan(iter(paths))
        self.assertEqual(self.ids(records), [f"id{number}" for number in range(25)])


class SharedOutTest(StyleTest):
    def setUp(self) -> None:
        super().setUp()
        self.paths = [str(self.write(self.folder / f"{number}", document(f"id{number % 50}"))) for number in range(200)]
        self.batches = [self.paths[start:start + 20] for start in range(0, 200, 20)]
        self.expected = kostyle.scan(self.paths)

    def test_by_threads_beside_a_manager(self) -> None:
        self.write(self.system / "x.kostyle", document())
        self.manager.read()
        with concurrent.futures.ThreadPoolExecutor(4) as pool:
            records = [record for batch in pool.map(kostyle.scan, self.batches) for record in batch]
        self.assertEqual(records, self.expected)
        self.assertEqual(self.manager.system_styles[0].id, "one")

    @unittest.skipUnless(hasattr(os, "fork"), "processes do not fork there")
    def test_by_a_process_that_forks_while_a_manager_is_made(self) -> None:
        """The library's lock is held then, and nobody would open it in the new process."""
        inside, go_on = threading.Event(), threading.Event()
        create = c.CreateStyleManager

        def slow(*arguments: Any) -> Any:
            inside.set()
            go_on.wait(10)
            return create(*arguments)

        with mock.patch.object(c, "CreateStyleManager", slow):
            other = threading.Thread(target=kostyle.scan, args=(self.paths[:1],))
            other.start()
            inside.wait(10)
            forked_while_inside: List[bool] = []
            os.register_at_fork(after_in_parent=lambda: forked_while_inside.append(not go_on.is_set()))
            threading.Timer(0.1, go_on.set).start()
            child = os.fork()
            if child == 0:
                os._exit(0)
            os.waitpid(child, 0)
            other.join()
        self.assertEqual(forked_while_inside[:1], [False])

    def test_by_processes(self) -> None:
        pickle.loads(pickle.dumps(kostyle.scan))
        with concurrent.futures.ProcessPoolExecutor(2) as pool:
            records = [record for batch in pool.map(kostyle.scan, self.batches) for record in batch]
        self.assertEqual(records, self.expected)
