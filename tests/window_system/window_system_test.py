#!/usr/bin/python3
"""The desktop program under a real window system: the focus, keys, and what a screen reader hears.

usage: dbus-run-session -- window_system_test.py BUILD_FOLDER [OPTION_OF_UNITTEST...]

Brings its own screen and window manager. A screen reader's part is done through AT-SPI, the user's
hands are xdotool's.
"""

import contextlib
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PROJECT = pathlib.Path(__file__).resolve().parents[2]
sys.dont_write_bytecode = True
sys.path.insert(0, str(PROJECT / "demo"))

from service import running_service  # noqa: E402

BUILD = pathlib.Path(sys.argv.pop(1)).resolve()
PATIENCE = 30  # seconds
BUYER_ILN = "9520002000019"
MAIN_TITLE = "Подтверждение отгрузки"

ROLE = Atspi.Role
ACTED_ON = {
    ROLE.PUSH_BUTTON, ROLE.TOGGLE_BUTTON, ROLE.CHECK_BOX, ROLE.RADIO_BUTTON, ROLE.COMBO_BOX,
    ROLE.TEXT, ROLE.ENTRY, ROLE.PASSWORD_TEXT, ROLE.SPIN_BUTTON, ROLE.LIST, ROLE.TABLE, ROLE.TREE,
    ROLE.TREE_TABLE, ROLE.SLIDER, ROLE.MENU_ITEM, ROLE.PAGE_TAB, ROLE.LINK,
}
# What they hold is read by its own text, and an order has thousands of them.
HOLD_TEXTS = {ROLE.LIST, ROLE.TABLE, ROLE.TREE, ROLE.TREE_TABLE}

# Keys by their places, whatever the layout has there.
KEY_O, KEY_F, KEY_S = 32, 41, 39


def wait_for(what, condition):
    """What the condition gives once that is something; fails the test when patience runs out."""
    end = time.monotonic() + PATIENCE
    while True:
        with contextlib.suppress(GLib.Error):  # What is asked may just have gone.
            found = condition()
            if found:
                return found
        if time.monotonic() > end:
            raise AssertionError(f"waited in vain for {what}")
        time.sleep(0.02)


def xdotool(*arguments):
    ran = subprocess.run(["xdotool", *map(str, arguments)], capture_output=True, encoding="utf-8",
                         check=False)
    return ran.stdout.strip()


def press(*keys):
    xdotool("key", *keys)


def active_title():
    return xdotool("getactivewindow", "getwindowname")


def layout(name):
    subprocess.run(["setxkbmap", name], check=True)


def has(thing, state):
    return thing.get_state_set().contains(state)


def children(thing):
    for index in range(thing.get_child_count()):
        child = thing.get_child_at_index(index)
        if child is not None:
            yield child


def within(thing):
    yield thing
    if thing.get_role() not in HOLD_TEXTS:
        for child in children(thing):
            yield from within(child)


def heard_name(thing):
    """A list says its value where others say their name; its name is that of its label."""
    if thing.get_role() != ROLE.COMBO_BOX:
        return thing.get_name()
    labels = [relation.get_target(0).get_name() for relation in thing.get_relation_set()
              if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY]
    return labels[0] if labels else ""


def acted_on(form):
    """The controls on which a user can act now."""
    for thing in within(form):
        # A list's rows hang below its box, where they are no control of their own.
        is_rows = thing.get_role() == ROLE.LIST and thing.get_parent().get_role() == ROLE.COMBO_BOX
        if thing.get_role() in ACTED_ON and not is_rows and has(thing, Atspi.StateType.VISIBLE):
            yield thing


class Editor:
    """The program, in a home of its own."""

    def __init__(self, *arguments):
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="awizo-window-"))
        self.home.chmod(0o700)
        self.folder = self.home / "VIRD"
        shutil.copytree(PROJECT / "demo/folder", self.folder)
        self.programs = []
        self.start(*arguments)

    def command(self, *arguments):
        return [BUILD / "hosts/desktop/program/awizo", "--offline-path", self.folder, *arguments]

    def environment(self):
        return dict(os.environ, HOME=str(self.home), XDG_RUNTIME_DIR=str(self.home),
                    XDG_DATA_HOME=str(self.home / "data"), XDG_CONFIG_HOME=str(self.home / "config"),
                    QT_QPA_PLATFORM="xcb", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")

    def start(self, *arguments):
        program = subprocess.Popen(self.command(*arguments), env=self.environment(),
                                   stdin=subprocess.DEVNULL)
        self.programs.append(program)
        return program

    def end(self):
        for program in self.programs:
            program.kill()
            program.wait()
        shutil.rmtree(self.home)

    def application(self):
        desktop = Atspi.get_desktop(0)
        # Nothing is remembered of what was heard before.
        desktop.set_cache_mask(Atspi.Cache.NONE)
        for application in children(desktop):
            if application.get_process_id() == self.programs[0].pid:
                return application
        return None

    def windows(self):
        application = self.application()
        return [window for window in children(application) if has(window, Atspi.StateType.VISIBLE)
                ] if application is not None else []

    def active_window(self):
        active = [window for window in self.windows() if has(window, Atspi.StateType.ACTIVE)]
        return active[0] if active and active[0].get_name() == active_title() else None

    def wait_for_window(self, title):
        def shown():
            window = self.active_window()
            return window if window is not None and window.get_name().startswith(title) else None
        return wait_for(f"the window «{title}»", shown)

    def parts(self):
        window = self.active_window()
        return within(window) if window is not None else ()

    def find(self, role, name):
        return wait_for(f"{role} «{name}»", lambda: next(
            (thing for thing in self.parts()
             if thing.get_role() == role and heard_name(thing) == name), None))

    def focused(self):
        return next((thing for thing in self.parts() if has(thing, Atspi.StateType.FOCUSED)), None)

    def tab_to(self, name):
        for _ in range(60):
            if self.is_at(name):
                return
            before = self.focused()
            press("Tab")
            wait_for("another focus", lambda: self.focused() not in (None, before))
        raise AssertionError(f"no Tab leads to «{name}»")

    def is_at(self, name):
        focused = self.focused()
        return focused is not None and heard_name(focused) == name


class WindowSystemTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        ends = contextlib.ExitStack()
        cls.addClassCleanup(ends.close)
        reading, writing = os.pipe()
        screen = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", "1280x1024x24", "-nolisten", "tcp",
             "-noreset"],
            pass_fds=[writing], stderr=subprocess.DEVNULL)
        ends.callback(cls.stop, screen)
        os.close(writing)
        with os.fdopen(reading) as said:
            os.environ["DISPLAY"] = f":{said.readline().strip()}"
        manager = subprocess.Popen(["openbox"], stderr=subprocess.DEVNULL)
        ends.callback(cls.stop, manager)
        # A window that comes before it is never the active one.
        wait_for("the window manager", lambda: xdotool("get_desktop"))

    @staticmethod
    def stop(program):
        program.terminate()
        program.wait()

    def setUp(self):
        layout("us")

    def editor(self, *arguments):
        editor = Editor(*arguments)
        self.addCleanup(editor.end)
        return editor

    def off_line(self):
        editor = self.editor("--property", "OnLine=Off", "--property", f"PartnerILN={BUYER_ILN}")
        editor.wait_for_window(MAIN_TITLE)
        return editor

    def launch_file(self):
        """For a session off line with the demo's buyer, since a portal may name that too."""
        page = self.enterContext(running_service(BUILD, tempfile.mkdtemp(prefix="awizo-posted-")))
        file = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory())) / "demo.awizo"
        file.write_text("\n".join([
            f"page-url={page}", "cookie=demo", "PartnerName=Demo", f"PartnerILN={BUYER_ILN}",
            "PartnerURL=partner", ""]), encoding="utf-8")
        return file

    def with_order(self):
        """An order is in the window; the user has agreed to the service's address."""
        editor = self.editor(self.launch_file())
        self.trust(editor)
        editor.wait_for_window("Без номера")
        return editor

    @staticmethod
    def trust(editor, answer="Да"):
        """Answers the question whether the service's address may be talked to."""
        editor.wait_for_window("VIRD")
        editor.find(ROLE.PUSH_BUTTON, answer).do_action(0)

    def enterContext(self, context):  # Python 3.11 has it.
        entered = context.__enter__()
        self.addCleanup(context.__exit__, None, None, None)
        return entered

    def expect_names(self, form):
        controls = list(acted_on(form))
        self.assertGreater(len(controls), 0, form.get_name())
        nameless = [f"{control.get_role_name()} {control.get_attributes()}"
                    for control in controls if not heard_name(control)]
        self.assertEqual(nameless, [], form.get_name())

    def test_no_control_of_any_form_is_nameless(self):
        editor = self.with_order()
        main = editor.active_window().get_name()
        self.expect_names(editor.active_window())
        for place, key, title in [
                ("Товарные позиции", "F2", "Издание продукта"),
                ("Товарные позиции", "Insert", "Добавь продукт"),
                ("Упаковки", "Insert", "Добавить упаковку"),
                (None, "ctrl+g", "ISO коды стран."),
                (None, "ctrl+f", "Найти строку"),
                (None, "F8", "Что не так: "),
                (None, "ctrl+n", "Несколько упаковок"),
                (None, "ctrl+d", "Разложить по упаковкам"),
                (None, "F1", "Руководство пользователя")]:
            with self.subTest(key=key, place=place):
                if place is not None:
                    editor.tab_to(place)
                press(key)
                self.in_dialog(editor, title)
                press("Escape")
                editor.wait_for_window(main)
        # What shows itself in the window.
        before = len(list(acted_on(editor.active_window())))
        press("F6")
        wait_for("the packing pane", lambda: len(list(acted_on(editor.active_window()))) > before)
        self.expect_names(editor.active_window())

    def choose_last(self, editor, menu):
        """The last entry of a menu, by keys once the menu is open."""
        opener = editor.find(ROLE.MENU_ITEM, menu)
        opener.do_action(0)
        wait_for(f"the menu «{menu}»", lambda: any(
            has(entry, Atspi.StateType.SHOWING) for thing in children(opener)
            for entry in children(thing)))
        press("Up", "Return")

    def in_dialog(self, editor, title):
        """The dialog with this title, in which every control says its name."""
        dialog = editor.wait_for_window(title)
        self.expect_names(dialog)
        return dialog

    @staticmethod
    def type_into(editor, field, text):
        editor.tab_to(field)
        press("ctrl+a", *text)
        wait_for(f"«{text}» in «{field}»",
                 lambda: Atspi.Text.get_text(editor.focused(), 0, -1) == text)

    def rows_of(self, editor, name):
        return editor.find(ROLE.TABLE, name).get_n_rows()

    def add_packages(self, editor, count):
        """By keys alone; the order's place is offered."""
        main = editor.active_window().get_name()
        press("ctrl+n")
        self.in_dialog(editor, "Несколько упаковок")
        self.assertTrue(editor.is_at("Сколько упаковок:"))
        self.type_into(editor, "Сколько упаковок:", str(count))
        editor.tab_to("ILN места доставки:")
        press("Return")
        self.end_boxes(editor, main)

    @staticmethod
    def end_boxes(editor, main):
        """Enter answers what is told on the way back to the main window."""
        def is_back():
            window = editor.active_window()
            if window is None:
                return False
            if window.get_name().split(" *")[0] == main.split(" *")[0]:
                return True
            if window.get_role() == ROLE.ALERT or window.get_name() == "VIRD":
                press("Return")
                time.sleep(0.1)
            return False
        wait_for(f"the window «{main}»", is_back)

    def test_no_control_of_the_packing_and_paper_forms_is_nameless_and_their_keys_work(self):
        editor = self.with_order()
        main = editor.active_window().get_name()
        self.choose_last(editor, "Бумаги")
        self.in_dialog(editor, "Номера упаковок (SSCC)")
        self.type_into(editor, "Префикс фирмы (GS1):", "9520001")
        self.type_into(editor, "по:", "1000")
        press("Return")
        editor.wait_for_window(main)
        self.add_packages(editor, 3)
        wait_for("three packages", lambda: self.rows_of(editor, "Упаковки") == 3)

        press("ctrl+d")
        self.in_dialog(editor, "Разложить по упаковкам")
        self.assertTrue(editor.is_at("Что:"))
        press("Escape")
        editor.wait_for_window(main)

        editor.tab_to("Товарные позиции")
        press("ctrl+Home", "F2")
        self.in_dialog(editor, "Издание продукта")
        editor.tab_to("Упаковки этой строки")
        press("Insert")
        self.in_dialog(editor, "Добавь товар в упаковку")
        press("Return")
        editor.wait_for_window("Издание продукта")
        press("Escape")
        self.end_boxes(editor, main)

        for key, title in (("ctrl+l", "Этикетки"), ("ctrl+p", "Упаковочный лист")):
            press(key)
            self.in_dialog(editor, title)
            press("Escape")
            editor.wait_for_window(main)

        press("F6")
        wait_for("the packing pane", lambda: editor.is_at("Строки, что из них упаковано"))
        self.expect_names(editor.active_window())
        press("Tab")
        wait_for("the packages there", lambda: editor.is_at("Упаковки, что в них лежит"))
        press("Insert")
        wait_for("a line packed", lambda: any(
            thing.get_role() == ROLE.LABEL and thing.get_name().startswith("упаковано 1 из")
            for thing in editor.parts()))
        press("Escape")
        wait_for("the document again", lambda: editor.is_at("Товарные позиции"))

    def test_no_control_of_the_start_page_or_the_file_dialog_is_nameless(self):
        editor = self.editor()
        self.in_dialog(editor, MAIN_TITLE)
        self.assertTrue(editor.find(ROLE.PUSH_BUTTON, "Новый документ"))
        editor = self.off_line()
        press("ctrl+o")
        self.in_dialog(editor, "Прочитать")
        press("Escape")
        editor.wait_for_window(MAIN_TITLE)
        document = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory())) / "saved.xml"
        shutil.copy(PROJECT / "samples/despatch-advice.xml", document)
        editor = self.editor(document)
        self.answer_boxes(editor, "ОТГ-0318")
        press("ctrl+s")
        self.answer_boxes(editor, "Записать")
        self.in_dialog(editor, "Записать")

    @staticmethod
    def answer_boxes(editor, title):
        """Enter answers what is told or asked until a window with this title is there."""
        def is_there():
            window = editor.active_window()
            if window is None:
                return False
            if window.get_name().startswith(title):
                return True
            if window.get_name().startswith("VIRD"):
                press("Return")
                time.sleep(0.1)
            return False
        wait_for(f"the window «{title}»", is_there)

    def in_question(self, editor, *buttons):
        """A box with just these buttons, the words of which are heard."""
        box = self.in_dialog(editor, "VIRD")
        self.assertEqual([heard_name(control) for control in acted_on(box)], list(buttons))
        words = [thing.get_name() for thing in within(box) if thing.get_role() == ROLE.LABEL]
        self.assertTrue(any(len(heard) > 20 for heard in words), words)

    def test_no_button_of_any_question_is_nameless(self):
        editor = self.editor(self.launch_file())
        self.in_question(editor, "Да", "Нет")
        editor.find(ROLE.PUSH_BUTTON, "Нет").do_action(0)
        editor.wait_for_window(MAIN_TITLE)
        # Why there is no session, and the way back to it.
        again = editor.find(ROLE.PUSH_BUTTON, "Попробовать ещё раз")
        self.expect_names(editor.active_window())
        again.do_action(0)
        self.in_question(editor, "Да", "Нет")
        editor.find(ROLE.PUSH_BUTTON, "Да").do_action(0)
        main = editor.wait_for_window("Без номера").get_name()
        for key in ("ctrl+q", "ctrl+o"):
            with self.subTest(key=key):
                press(key)
                self.in_question(editor, "Сохранить…", "Не сохранять", "Отмена")
                self.assertTrue(editor.is_at("Отмена"))
                press("Return")
                editor.wait_for_window(main)
        self.choose_last(editor, "Справка")
        self.in_dialog(editor, "О программе")
        press("Return")
        editor.wait_for_window(main)
        # What a kill leaves behind is offered at the next start.
        editor.programs[0].kill()
        editor.programs[0].wait()
        editor.programs.insert(0, editor.start())
        self.in_question(editor, "Продолжить", "Начать заново", "Отложить")
        self.assertTrue(editor.is_at("Отложить"))
        press("Escape")
        self.in_dialog(editor, MAIN_TITLE)
        self.assertTrue(editor.find(ROLE.PUSH_BUTTON, "Продолжить"))

    def test_the_tab_key_leads_round_and_every_stop_says_its_name(self):
        editor = self.off_line()
        editor.tab_to("Номер заказа:")
        stops = []
        while len(stops) < 100 and (not stops or stops[-1] != "Номер заказа:"):
            before = heard_name(editor.focused())
            press("Tab")
            wait_for(f"the focus beyond «{before}»", lambda: editor.focused() is not None and
                     not editor.is_at(before))
            stops.append(heard_name(editor.focused()))
            self.assertNotEqual(stops[-1], "", f"after «{before}»")
        self.assertEqual(stops[-1], "Номер заказа:")
        self.assertIn("Товарные позиции", stops)
        self.assertIn("Упаковки", stops)

    def test_the_focus_comes_back_from_a_dialog_and_from_another_window(self):
        editor = self.off_line()
        main = xdotool("getactivewindow")
        editor.tab_to("Упаковки")
        press("Insert")
        editor.wait_for_window("Добавить упаковку")
        press("Escape")
        editor.wait_for_window(MAIN_TITLE)
        self.assertTrue(editor.is_at("Упаковки"))
        other = self.editor()
        other.wait_for_window("")
        self.assertNotEqual(xdotool("getactivewindow"), main)
        xdotool("windowactivate", "--sync", main)
        wait_for("the focus where it was", lambda: editor.is_at("Упаковки"))

    def test_keys_work_with_any_layout(self):
        editor = self.off_line()
        for name in ("us", "us,ru", "ru,us", "ru"):
            with self.subTest(layout=name):
                layout(name)
                for key, title in ((KEY_O, "Прочитать"), (KEY_F, "Найти строку")):
                    press(f"ctrl+{key}")
                    editor.wait_for_window(title)
                    press("Escape")
                    editor.wait_for_window(MAIN_TITLE)

    def test_what_is_typed_with_a_russian_layout_is_russian_and_can_be_copied(self):
        editor = self.off_line()
        layout("ru")
        field = editor.find(ROLE.TEXT, "Номер документа (транспортной накладной):")
        field.grab_focus()
        press(KEY_O, KEY_S)
        # All of it, copied and put behind itself.
        press(f"ctrl+{38}", f"ctrl+{54}", "End", f"ctrl+{55}")
        wait_for("the text", lambda: Atspi.Text.get_text(field, 0, -1) == "щыщы")

    def test_a_launch_file_opened_again_brings_its_window_to_the_front(self):
        file = self.launch_file()
        editor = self.editor(file)
        self.trust(editor)
        editor.wait_for_window("Без номера")
        main = xdotool("getactivewindow")
        other = self.editor()
        other.wait_for_window("")
        same = file.with_name("demo(1).awizo")
        shutil.copy(file, same)
        self.assertEqual(editor.start(same).wait(PATIENCE), 0)
        wait_for("the first window in front", lambda: xdotool("getactivewindow") == main)
        xdotool("windowminimize", "--sync", main)
        self.assertEqual(editor.start(file).wait(PATIENCE), 0)
        wait_for("the first window from its icon", lambda: xdotool("getactivewindow") == main)
        editor.programs[0].kill()
        editor.programs[0].wait()
        again = editor.start(file)
        editor.programs.insert(0, editor.programs.pop())
        wait_for("a new window", lambda: editor.active_window() is not None)
        self.assertIsNone(again.poll())

    def test_a_launch_file_is_opened_again_where_its_window_has_gone_on_to_other_work(self):
        file = self.launch_file()
        editor = self.editor(file)
        self.trust(editor, "Нет")
        editor.find(ROLE.PUSH_BUTTON, "Новый документ").do_action(0)
        wait_for("work off line", lambda: editor.find(ROLE.LABEL, "Off-Line"))
        self.assertEqual(editor.start(file).wait(PATIENCE), 0)
        self.trust(editor)
        editor.wait_for_window("Без номера")
        self.assertIsNone(editor.programs[0].poll())

    def test_an_ordinary_user_opens_a_file_by_its_name_and_saves_it_where_he_may(self):
        home = pathlib.Path(tempfile.mkdtemp(prefix="awizo-user-"))
        self.addCleanup(shutil.rmtree, home)
        given = home / "given"
        given.mkdir()
        shutil.copy(PROJECT / "samples/despatch-advice.xml", given / "saved.xml")
        shutil.copytree(PROJECT / "demo/folder", home / "VIRD")
        # Where it was built may be nobody else's.
        program = shutil.copy(BUILD / "hosts/desktop/program/awizo", home)
        given.chmod(0o555)
        self.addCleanup(given.chmod, 0o755)
        home.chmod(0o700)
        user = {}
        if os.geteuid() == 0:
            nobody = 65534
            user = {"user": nobody, "group": nobody, "extra_groups": []}
            for path in (home, home / "VIRD", *(home / "VIRD").iterdir()):
                os.chown(path, nobody, nobody)
        environment = dict(os.environ, HOME=str(home), XDG_RUNTIME_DIR=str(home),
                           XDG_DATA_HOME=str(home / "data"), XDG_CONFIG_HOME=str(home / "config"),
                           QT_QPA_PLATFORM="xcb")
        editor = subprocess.Popen([program, "--offline-path", home / "VIRD", given / "saved.xml"],
                                  env=environment, cwd="/", stdin=subprocess.DEVNULL, **user)
        self.addCleanup(editor.wait)
        self.addCleanup(editor.kill)

        def answered():
            """The reader tells what it forgets."""
            if active_title() == "VIRDDesAdv":
                press("Return")
                time.sleep(0.1)
            return active_title().startswith("ОТГ-0318")
        wait_for("the document", answered)
        press("ctrl+s")
        wait_for("the question about unpacked goods", lambda: active_title() == "VIRD")
        press("Return")
        wait_for("the file dialog", lambda: active_title().startswith("Записать"))
        press("Return")
        wait_for("the saved file", lambda: list(home.glob("*ОТГ-0318.xml")))


if __name__ == "__main__":
    Atspi.init()
    unittest.main()
