"""Saving, overwriting, editing and removing, without further care."""
import json
import pathlib
from typing import Any, Callable, List

import kostyle

from support import StyleTest, document


def content(path: pathlib.Path) -> Any:
    return json.loads(path.read_text(encoding="utf-8"))


class SaveTest(StyleTest):
    def test_makes_a_user_style(self) -> None:
        style = self.mutable("Saved")
        saved = style.save()
        self.assertEqual((saved.name, saved.kind, saved.path.parent), ("Saved", kostyle.Kind.USER, self.user))
        self.assertIs(self.manager.user_styles[-1], saved)
        self.assertEqual(content(saved.path), {"id": saved.id, "name": "Saved",
                                               "audioEffect": {"Gate": {"parameter": {"hold": 40}}}})

    def test_is_indented_or_not(self) -> None:
        self.assertIn(b"\n    ", self.mutable().save().path.read_bytes())
        self.assertNotIn(b"\n", self.mutable().save(pretty=False).path.read_bytes())

    def test_is_refused_with_a_code_and_ends_nothing(self) -> None:
        nameless = self.manager.create_mutable_style()
        effectless = self.manager.create_mutable_style()
        effectless.name = "x"
        for style, code in [(nameless, kostyle.Code.ARGUMENT_MISSING), (effectless, kostyle.Code.NO_EFFECT)]:
            with self.subTest(code=code), self.assertRaises(kostyle.CodeError) as caught:
                style.save()
            self.assertEqual(caught.exception.code, code)
            self.assertFalse(style.ended)
        self.assertEqual(list(self.user.iterdir()), [])

    def test_survives_an_ended_with(self) -> None:
        with self.mutable() as style:
            saved = style.save()
        self.assertEqual(saved.name, "Mutable")


class OverwriteTest(StyleTest):
    def overwrites(self) -> List[Callable[..., Any]]:
        return [self.mutable().overwrite, self.mutable().overwrite_safely]

    def test_gives_a_style_another_content(self) -> None:
        style = self.read_one(document(vendor="Maker"))
        self.assertIs(self.mutable("New").overwrite(style), style)
        self.assertEqual((style.id, style.name, style.path), ("one", "New", self.user / "one.kostyle"))
        self.assertEqual(content(style.path)["name"], "New")
        self.assertNotIn("vendor", content(style.path))

    def test_is_refused_with_a_code(self) -> None:
        style = self.read_one(document())
        nameless = self.manager.create_mutable_style()
        with self.assertRaises(kostyle.CodeError) as caught:
            nameless.overwrite(style)
        self.assertEqual(caught.exception.code, kostyle.Code.WRITE_EMPTY_NAME)
        style.path.unlink()
        with self.assertRaises(kostyle.CodeError) as caught:
            self.mutable().overwrite(style)
        self.assertEqual((caught.exception.code, caught.exception.subject),
                         (kostyle.Code.TARGET_NOT_REPLACEABLE, str(style.path)))
        with self.make_manager("other") as other:
            self.write(self.user / "two.kostyle", document("two"))
            other.read()
            for overwrite in self.overwrites():
                with self.assertRaises(kostyle.CodeError) as caught:
                    overwrite(other.user_styles[0])
                self.assertEqual(caught.exception.code, kostyle.Code.USER_STYLE_NOT_FOUND)


    def test_takes_user_styles_alone(self) -> None:
        style = self.read_one(document())
        wrong: Any
        for wrong in (style.audio_effects[0], self.mutable(), None, style.id):
            for overwrite in self.overwrites():
                with self.assertRaises(TypeError):
                    overwrite(wrong)
            if not isinstance(wrong, kostyle.MutableStyle):
                with self.assertRaises(TypeError):
                    kostyle.record_of(wrong)


class PropertyEditorTest(StyleTest):
    def test_replaces_name_sub_genres_and_colors(self) -> None:
        style = self.read_one(document(filter={"genres": ["Pop"], "subGenres": ["old"], "colors": ["old"]}))
        effect = style.audio_effects[0]
        with style.property_editor() as editor:
            editor.name = "New"
            editor.add_sub_genre("b")
            editor.add_sub_genre("a")
            editor.save()
            self.assertEqual((editor.name, editor.sub_genres, editor.colors), ("New", ("b", "a"), ()))
        self.assertEqual((style.name, style.genres, style.sub_genres, style.colors), ("New", ("Pop",), ("a", "b"), ()))
        self.assertFalse(effect.ended)
        self.assertEqual(content(style.path)["filter"], {"genres": ["Pop"], "subGenres": ["a", "b"]})

    def test_refuses_values(self) -> None:
        with self.read_one(document()).property_editor() as editor:
            with self.assertRaises(kostyle.RefusedError):
                editor.name = ""
            for add in (editor.add_color, editor.add_sub_genre):
                for wrong in ("", "a\0"):
                    with self.assertRaises(kostyle.RefusedError):
                        add(wrong)
            editor.add_color("red")
            with self.assertRaises(kostyle.RefusedError):
                editor.add_color("red")
            self.assertEqual(editor.colors, ("red",))

    def test_refuses_to_save_without_a_name_that_fits(self) -> None:
        style = self.read_one(document())
        before = style.path.read_bytes()
        with style.property_editor() as editor:
            for name in (None, "x" * 101):
                if name:
                    editor.name = name
                for save in (editor.save, editor.save_safely):
                    with self.assertRaises(kostyle.RefusedError):
                        save()
        self.assertEqual(style.path.read_bytes(), before)

    def test_says_when_the_file_cannot_be_opened(self) -> None:
        style = self.read_one(document())
        style.path.unlink()
        self.user.rmdir()
        with style.property_editor() as editor:
            editor.name = "New"
            with self.assertRaises(kostyle.CodeError) as caught:
                editor.save()
        self.assertEqual(caught.exception.code, kostyle.Code.OPEN_FAILED)
        self.assertEqual(style.name, "One")


class RemoveTest(StyleTest):
    def test_deletes_the_file(self) -> None:
        style = self.read_one(document())
        path = style.path
        style.remove()
        self.assertFalse(path.exists())
        self.assertTrue(style.ended)

    def test_is_refused_when_the_file_is_gone(self) -> None:
        style = self.read_one(document())
        style.path.unlink()
        with self.assertRaises(kostyle.CodeError) as caught:
            style.remove()
        self.assertEqual(caught.exception.code, kostyle.Code.DELETE_FAILED)
        self.assertEqual(style.name, "One")
