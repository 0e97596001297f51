"""Objects that outlive what they stand for raise an exception, and nothing else happens."""
import contextlib
import gc
import pickle
import signal
import threading
import unittest
from typing import Any, Callable, Iterator, List
from unittest import mock

import kostyle
from kostyle.functions import c

from support import StyleTest, document


def properties(thing: Any) -> List[str]:
    return [name for name in dir(type(thing)) if isinstance(getattr(type(thing), name), property) and name != "ended"
            and not name.startswith("_")]


class EndedTest(StyleTest):
    def all_kinds(self) -> List[Any]:
        """One of each kind of object."""
        style = self.read_one(document())
        mutable = self.mutable()
        effects = [style.audio_effects[0], mutable.audio_effects[0]]
        parameters = [effect.parameter_list[0] for effect in effects]
        return [style, mutable, *effects, *parameters, self.manager.user_styles.creation_results[0],
                style.property_editor()]

    def expect_ended(self, thing: Any, reason: str) -> None:
        self.assertTrue(thing.ended)
        self.assertIn("ended", repr(thing))
        for name in properties(thing):
            with self.subTest(type=type(thing).__name__, property=name):
                with self.assertRaises(kostyle.EndedError) as caught:
                    list(getattr(thing, name))
                self.assertIn(reason, str(caught.exception))

    def test_after_the_manager_was_closed(self) -> None:
        things = self.all_kinds()
        self.manager.close()
        for thing in [self.manager, *things]:
            if thing is not self.manager:
                self.expect_ended(thing, "its manager was closed")
        with self.assertRaises(kostyle.EndedError):
            len(self.manager.system_styles)
        with self.assertRaises(kostyle.EndedError):
            self.manager.read()

    def test_after_the_set_was_read_again(self) -> None:
        style, mutable, effect, _, parameter, _, result, editor = self.all_kinds()
        system = self.manager.system_styles
        self.manager.read_user_styles()
        for thing in (style, effect, parameter, result, editor):
            self.expect_ended(thing, "its style set was read again")
        self.assertFalse(mutable.ended)
        self.assertEqual(len(system), 0)

    def test_after_the_system_set_was_read_again(self) -> None:
        self.write(self.system / "x.kostyle", document())
        self.manager.read()
        style = self.manager.system_styles[0]
        self.manager.read_system_styles()
        self.expect_ended(style, "its style set was read again")

    def test_only_in_the_set_that_was_read(self) -> None:
        style = self.read_one(document())
        self.manager.read_system_styles()
        self.assertEqual(style.name, "One")

    def test_after_the_style_was_removed(self) -> None:
        style = self.read_one(document())
        effect = style.audio_effects[0]
        style.remove()
        self.expect_ended(effect, "it was removed")
        self.assertEqual(len(self.manager.user_styles), 0)

    def test_after_the_style_was_saved(self) -> None:
        style = self.mutable()
        parameter = style.audio_effects[0].parameter_list[0]
        saved = style.save()
        self.expect_ended(parameter, "it was saved")
        self.assertIn(saved, self.manager.user_styles)

    def test_after_an_overwrite_only_the_effects(self) -> None:
        style = self.read_one(document())
        effect, editor = style.audio_effects[0], style.property_editor()
        self.mutable("Other").overwrite(style)
        self.expect_ended(effect, "its style was overwritten")
        self.assertEqual(style.name, "Other")
        editor.name = "lives"
        self.assertIsNot(style.audio_effects[0], effect)

    def test_after_destroying(self) -> None:
        style = self.mutable()
        effect = style.audio_effects[0]
        parameter = effect.parameter_list[0]
        parameter.destroy()
        self.expect_ended(parameter, "it was destroyed")
        effect.destroy()
        self.expect_ended(effect, "it was destroyed")
        style.destroy()
        self.expect_ended(style, "it was destroyed")
        style.destroy()

    def test_behind_with(self) -> None:
        with self.manager.create_mutable_style() as style:
            pass
        self.assertTrue(style.ended)

    def test_of_an_editor_when_there_is_another(self) -> None:
        style = self.read_one(document())
        first = style.property_editor()
        with style.property_editor() as second:
            with self.assertRaises(kostyle.EndedError):
                first.name = "x"
            first.destroy()
            second.name = "y"
        self.assertTrue(second.ended)

    def test_never_mistakes_a_new_object_for_an_old_one(self) -> None:
        ended = []
        for _ in range(200):
            style = self.manager.create_mutable_style()
            self.assertFalse(style.ended)
            ended.append(style)
            style.destroy()
        self.assertTrue(all(style.ended for style in ended))

    def test_lets_go_of_what_nobody_keeps(self) -> None:
        style = self.read_one(document())
        address = id(style.audio_effects[0])
        del address
        gc.collect()
        self.assertEqual(len(style._children or ()), 0)


@contextlib.contextmanager
def interrupted_behind(name: str) -> Iterator[None]:
    """Ctrl-C during the call of a function, which Python raises behind it."""
    real = getattr(c, name)

    def interrupted(*arguments: Any) -> None:
        real(*arguments)
        raise KeyboardInterrupt

    with mock.patch.object(c, name, interrupted):
        yield


class InterruptedTest(StyleTest):
    """What was interrupted may have been done."""

    def setUp(self) -> None:
        super().setUp()
        self.style = self.read_one(document())
        self.stored_effect = self.style.audio_effects[0]
        self.made = self.mutable()
        self.effect = self.made.audio_effects[0]
        self.parameter = self.effect.parameter_list[0]

    def expect_ended(self, function: str, call: Callable[[], Any], *things: Any) -> None:
        with interrupted_behind(function), self.assertRaises(KeyboardInterrupt):
            call()
        for thing in things:
            self.assertTrue(thing.ended, thing)
        self.made.destroy()  # as behind "with"
        self.manager = self.make_manager()  # another one when that was closed
        self.manager.read()

    def test_saving(self) -> None:
        self.expect_ended("MutableStyle_save", self.made.save, self.made, self.parameter)

    def test_overwriting(self) -> None:
        self.expect_ended("MutableStyle_overwrite", lambda: self.made.overwrite(self.style), self.made,
                          self.stored_effect)

    def test_removing(self) -> None:
        self.expect_ended("UserStyle_remove", self.style.remove, self.style, self.stored_effect)

    def test_destroying(self) -> None:
        things: List[Any] = [self.parameter, self.effect, self.made]
        for kind, thing in zip(("Parameter", "Effect", "Style"), things):
            with interrupted_behind(f"Mutable{kind}_destroy"), self.assertRaises(KeyboardInterrupt):
                thing.destroy()
            self.assertTrue(thing.ended)
        self.assertEqual(list(self.made._living(kostyle.Effect)), [])

    def test_closing(self) -> None:
        self.expect_ended("StyleManager_destroy", self.manager.close, self.manager, self.style, self.made)

    @unittest.skipUnless(hasattr(signal, "setitimer"), "there are no timers")
    def test_closing_by_a_handler_of_signals(self) -> None:
        destroy = c.StyleManager_destroy

        def destroy_and_be_interrupted(manager: int) -> None:
            destroy(manager)
            signal.raise_signal(signal.SIGALRM)

        before = signal.signal(signal.SIGALRM, lambda *_: self.manager.close())
        self.addCleanup(signal.signal, signal.SIGALRM, before)
        with self.make_manager("another") as other, mock.patch.object(c, "StyleManager_destroy",
                                                                      destroy_and_be_interrupted):
            other.close()
        self.assertTrue(self.manager.ended)

    def test_only_when_it_is_not_refused(self) -> None:
        nameless = self.manager.create_mutable_style()
        self.style.path.unlink()
        refused: List[Callable[[], Any]] = [nameless.save, lambda: nameless.overwrite(self.style), self.style.remove,
                                            lambda: self.made.overwrite(self.style)]
        for call in refused:
            with self.assertRaises(kostyle.CodeError):
                call()
        things = (nameless, self.made, self.effect, self.style, self.stored_effect)
        self.assertEqual([thing.ended for thing in things], [False] * 5)
        self.assertIs(self.style.audio_effects[0], self.stored_effect)


class ProcessTest(StyleTest):
    def test_objects_stay_in_their_process(self) -> None:
        style = self.read_one(document())
        with self.assertRaises(TypeError):
            pickle.dumps(style)

    def test_records_leave_it(self) -> None:
        record = kostyle.record_of(self.read_one(document()))
        self.assertEqual(pickle.loads(pickle.dumps(record)), record)

    def test_managers_of_several_threads(self) -> None:
        self.write(self.system / "one.kostyle", document())
        names: List[str] = []

        def work(number: int) -> None:
            for turn in range(20):
                with self.make_manager(f"thread-{number}-{turn}") as manager:
                    manager.read()
                    names.extend(style.name for style in manager.system_styles)

        threads = [threading.Thread(target=work, args=(number,)) for number in range(4)]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        self.assertEqual(names, ["One"] * 80)
