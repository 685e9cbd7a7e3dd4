#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""The settings program with real input, and a program that is started from its menu entry after it.

    with-desktop.sh python3 test_settings.py --build DIR [TEST...]
"""

import configparser
import os
import shutil
import subprocess
import sys
import time
import unittest

from harness.driver import Driver
from harness.programs import PROGRAMS
from harness.programtest import option_parser, run_tests
from harness.session import ANSWER_SECONDS, DRAWING, START_SECONDS
from harness.spylog import SpyLog

PROGRAM = PROGRAMS["librecad"]
TITLE = "Mouse Gestures"
WIDGETS = ("program_search", "program_list", "ring", "command_search", "command_view",
           "trigger_field", "own_rings_button")
# The ring's own size, and how far a direction's label is from its middle.
RING_SIZE = 250
LABEL_RADIUS = 93
# Directions of eight by index, as steps to the right and downwards.
STEPS = ((0, -1), (-0.707, -0.707), (-1, 0), (-0.707, 0.707), (0, 1), (0.707, 0.707), (1, 0),
         (0.707, -0.707))
RIGHT, LEFT, UP = 6, 2, 0


class SettingsTest(unittest.TestCase):
    build = None

    def setUp(self):
        self.folder = self.build.resolve() / "e2e" / "settings" / self._testMethodName
        shutil.rmtree(self.folder, ignore_errors=True)
        for name in ("home", "config", "data/applications", "cache", "runtime"):
            (self.folder / name).mkdir(parents=True)
        (self.folder / "runtime").chmod(0o700)
        for name, text in PROGRAM.configuration.items():
            path = self.folder / "config" / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text)
        self.drawing = self.folder / "drawing.dxf"
        self.drawing.write_text(DRAWING)
        self.driver = Driver(self.build)
        self.addCleanup(self.driver.close)
        self.spy = SpyLog(self.folder / "spy.pipe", self.folder / "spy.log")
        self.addCleanup(self.spy.close)
        self.processes = []
        self.addCleanup(self.end_all)

    def end_all(self):
        if sys.exc_info()[0]:
            self.picture("failure")
        for process in self.processes:
            if process.poll() is None:
                process.kill()
            process.wait(timeout=ANSWER_SECONDS)

    def start(self, *command):
        environment = dict(
            os.environ,
            HOME=str(self.folder / "home"),
            XDG_CONFIG_HOME=str(self.folder / "config"),
            XDG_DATA_HOME=str(self.folder / "data"),
            XDG_CACHE_HOME=str(self.folder / "cache"),
            XDG_RUNTIME_DIR=str(self.folder / "runtime"),
            QT_QPA_GENERIC_PLUGINS="actionspy",
            QT_PLUGIN_PATH=str(self.build.resolve() / "tests" / "plugins"),
            ACTIONSPY_LOG=str(self.spy.path),
            ACTIONSPY_VIEW=PROGRAM.view,
            ACTIONSPY_WIDGETS=",".join(WIDGETS),
            ACTIONSPY_ENTRY="Mouse Gestures...",
            LANG="C.UTF-8")
        process = subprocess.Popen([str(word) for word in command], env=environment, cwd=self.folder,
                                   stdin=subprocess.DEVNULL)
        self.processes.append(process)
        return process

    def open_window(self):
        window = self.start(self.build / "bin" / "mouse-gestures")
        self.driver.ask("wait-window", TITLE, START_SECONDS * 1000)
        self.driver.ask("wait-focus", TITLE, ANSWER_SECONDS * 1000)
        self.settle()
        return window

    def settle(self):
        width, height = os.environ.get("DESKTOP_SCREEN", "1600x1000x24").split("x")[:2]
        self.driver.ask("remember", 0, 0, width, height)
        self.driver.ask("wait-steady", ANSWER_SECONDS * 1000)

    def picture(self, name):
        self.driver.succeeds("screenshot", self.folder / f"{name}.png")

    def until(self, holds, what):
        end = time.monotonic() + ANSWER_SECONDS
        while not holds():
            if time.monotonic() > end:
                self.picture("failure")
                self.fail(f"waited too long for {what}")
            time.sleep(0.02)

    # --- the window

    def place_of(self, widget):
        line = self.spy.wait(0, lambda line: line[:2] == ["widget", widget], ANSWER_SECONDS)
        self.assertIsNotNone(line, f"no {widget}")
        places = [line[2] for line in self.spy.since(0, "widget") if line[1] == widget]
        return tuple(int(number) for number in places[-1].split(","))

    def click_at(self, x, y):
        self.driver.ask("move", round(x), round(y))
        self.driver.ask("click", 1)

    def type_into(self, widget, text):
        x, y, _, height = self.place_of(widget)
        self.click_at(x + 30, y + height // 2)
        self.driver.ask("key", "ctrl+a")
        self.driver.ask("type", text)
        self.settle()

    def choose_program(self, name):
        self.type_into("program_search", name)
        x, y, _, _ = self.place_of("program_list")
        self.click_at(x + 80, y + 26)
        self.settle()

    def toggle_program(self):
        """Clicks the switch of the only program that the search has left."""
        x, y, width, _ = self.place_of("program_list")
        self.click_at(x + width - 26, y + 26)

    def sector(self, direction, radius=LABEL_RADIUS):
        x, y, width, height = self.place_of("ring")
        scale = min(width, height) / RING_SIZE
        step = STEPS[direction]
        return (round(x + width / 2 + step[0] * radius * scale),
                round(y + height / 2 + step[1] * radius * scale))

    def drag(self, start, end):
        self.driver.ask("move", *start)
        self.driver.ask("press", 1)
        self.driver.ask("drag", end[0] - start[0], end[1] - start[1], 300)
        self.picture("drag")
        self.driver.ask("release", 1)

    def first_command(self):
        """The first command in the list, below the header and the name of its menu."""
        x, y, _, _ = self.place_of("command_view")
        return x + 70, y + 24 + 26 + 13

    def stored(self, key, section="GestureWidget", program=PROGRAM.name):
        settings = configparser.RawConfigParser()
        settings.optionxform = str
        settings.read(self.folder / "config" / "gesturewidget" / f"{program}.ini")
        return settings.get(section, key, fallback=None)

    # --- the tests

    def test_from_the_window_to_a_line(self):
        """Switches a program on, binds a command by dragging it, starts the program from its menu
        entry, and draws a line with a gesture."""
        self.open_window()
        self.picture("1-opened")
        self.choose_program("librecad")
        self.picture("2-chosen")
        entry = self.folder / "data" / "applications" / "librecad.desktop"
        self.toggle_program()
        self.until(entry.exists, "the menu entry")
        self.assertIn("mouse-gestures", entry.read_text())
        self.settle()
        self.picture("3-switched-on")

        # Off the ring, and onto it again.
        x, y, width, height = self.place_of("ring")
        self.drag(self.sector(RIGHT), (x + 4, y + height - 4))
        self.until(lambda: self.stored("87") == "", "an empty direction")
        self.type_into("command_search", "line")
        self.drag(self.first_command(), self.sector(RIGHT))
        self.until(lambda: self.stored("87") == "ID_LINE", "the command in its direction")
        self.settle()
        self.picture("4-bound")

        # Two directions change places, and back.
        self.drag(self.sector(RIGHT), self.sector(UP))
        self.until(lambda: (self.stored("81"), self.stored("87")) == ("ID_LINE", "ID_ZOOM_BOUNDS"),
                   "the exchange")
        self.driver.ask("key", "ctrl+z")
        self.until(lambda: (self.stored("81"), self.stored("87")) == ("ID_ZOOM_BOUNDS", "ID_LINE"),
                   "the exchange taken back")

        mark = self.spy.mark()
        self.start("gio", "launch", entry, self.drawing)
        self.assertIsNotNone(self.spy.wait(mark, lambda line: line[0] == "ready", START_SECONDS),
                             "the program did not start with gestures")
        self.driver.ask("wait-window", "drawing.dxf", START_SECONDS * 1000)
        self.driver.ask("wait-focus", "drawing.dxf", ANSWER_SECONDS * 1000)
        self.settle()
        place = self.spy.since(mark, "view")[-1][2]
        x, y, width, height = (int(number) for number in place.split(","))
        middle = x + width // 2, y + height // 2
        self.driver.ask("move", *middle)
        self.driver.ask("wait-pointer-in", "drawing.dxf", ANSWER_SECONDS * 1000)
        mark = self.spy.mark()
        self.driver.ask("press", 3)
        self.driver.ask("drag", 60, 0, 300)
        self.driver.ask("wait-size", RING_SIZE, RING_SIZE, ANSWER_SECONDS * 1000)
        self.settle()
        self.picture("5-gesture")
        self.driver.ask("drag", 60, 0, 200)
        self.driver.ask("release", 3)
        line = self.spy.wait(mark, lambda line: line[0] == "triggered", ANSWER_SECONDS)
        self.assertEqual(line[1], "DrawLine")
        self.driver.ask("wait-no-size", RING_SIZE, RING_SIZE, ANSWER_SECONDS * 1000)
        self.click_at(middle[0] - 100, middle[1] - 60)
        self.click_at(middle[0] + 120, middle[1] + 50)
        self.driver.ask("key", "Escape")
        before = self.drawing.read_text().count("\nLINE\n")
        self.driver.ask("key", "ctrl+s")
        self.until(lambda: self.drawing.read_text().count("\nLINE\n") == before + 1,
                   "one more line in the saved drawing")
        self.settle()
        self.picture("6-drawn")

        # The window has noticed the program's own commands.
        self.driver.ask("activate", TITLE)
        self.driver.ask("wait-focus", TITLE, ANSWER_SECONDS * 1000)
        catalogue = self.folder / "config" / "gesturewidget" / f"{PROGRAM.name}.commands.json"
        self.until(lambda: catalogue.exists() and '"2 Points"' in catalogue.read_text(),
                   "the program's commands")
        self.type_into("command_search", "line > 2 points")
        self.picture("7-its-own-commands")
        self.drag(self.first_command(), self.sector(LEFT))
        self.until(lambda: self.stored("83") == "ID_LINE", "the command in another direction")

        # The running program takes the change at its next gesture.
        self.driver.ask("activate", "drawing.dxf")
        self.driver.ask("wait-focus", "drawing.dxf", ANSWER_SECONDS * 1000)
        self.driver.ask("move", *middle)
        self.driver.ask("wait-pointer-in", "drawing.dxf", ANSWER_SECONDS * 1000)
        mark = self.spy.mark()
        self.driver.ask("press", 3)
        self.driver.ask("drag", -120, 0, 400)
        self.driver.ask("release", 3)
        line = self.spy.wait(mark, lambda line: line[0] == "triggered", ANSWER_SECONDS)
        self.assertEqual(line[1], "DrawLine")
        self.driver.ask("wait-no-size", RING_SIZE, RING_SIZE, ANSWER_SECONDS * 1000)

    def test_by_keys_and_by_doing_it(self):
        """Binds a command with the keyboard alone, and records a mouse button."""
        self.open_window()
        self.choose_program("librecad")
        self.driver.ask("key", "ctrl+f")
        self.driver.ask("type", "offset")
        self.driver.ask("key", "Return")
        self.driver.ask("key", "ctrl+Right")
        self.until(lambda: (self.stored("82"), self.stored("87")) == ("", "ID_OFFSET"),
                   "the command in its direction")
        self.driver.ask("key", "ctrl+z")
        self.until(lambda: (self.stored("82"), self.stored("87")) == ("ID_OFFSET", "ID_LINE"),
                   "the binding taken back")

        x, y, width, height = self.place_of("trigger_field")
        for button, trigger in ((2, "middle"), (3, "right")):
            self.driver.ask("move", x + width // 2, y + height // 2)
            self.driver.ask("click", button)
            self.until(lambda: self.stored("Trigger", "Host") == trigger, f"{trigger} as the trigger")
        self.driver.ask("click", 1)  # with which people draw
        self.settle()
        self.assertEqual(self.stored("Trigger", "Host"), "right")
        self.picture("left-refused")

    def test_a_second_start(self):
        """Brings the window of the first start to the front, from behind another window and from
        the task bar."""
        window = self.open_window()
        self.start(PROGRAM.executable, self.drawing)
        self.driver.ask("wait-window", "drawing.dxf", START_SECONDS * 1000)
        self.driver.ask("wait-focus", "drawing.dxf", START_SECONDS * 1000)
        for _ in range(2):
            second = self.start(self.build / "bin" / "mouse-gestures")
            self.assertEqual(second.wait(timeout=START_SECONDS), 0)
            self.driver.ask("wait-focus", TITLE, ANSWER_SECONDS * 1000)
            self.assertIsNone(window.poll())
            self.driver.ask("activate", "drawing.dxf")
            self.driver.ask("wait-focus", "drawing.dxf", ANSWER_SECONDS * 1000)
        # The next one is the first again.
        window.kill()
        window.wait(timeout=ANSWER_SECONDS)
        third = self.open_window()
        self.assertIsNone(third.poll())

    def test_a_ring_for_a_task(self):
        """Gives a task of FreeCAD a ring of its own, and takes that back."""
        self.open_window()
        self.choose_program("freecad")
        x, y, width, height = self.place_of("own_rings_button")
        self.click_at(x + width // 2, y + height // 2)
        self.settle()
        self.picture("1-tasks")
        self.driver.ask("key", "Down")
        self.driver.ask("key", "Return")
        ring = "Ring%20DraftWorkbench"
        self.until(lambda: self.stored("Own", ring, "freecad") == "DraftWorkbench",
                   "the ring of the first task")
        self.settle()
        self.picture("2-own-ring")
        # The command of the shared ring stays.
        x, y, width, height = self.place_of("ring")
        self.drag(self.sector(RIGHT), (x + 4, y + height - 4))
        self.until(lambda: self.stored("87", ring, "freecad") == "", "an empty direction")
        self.assertIsNone(self.stored("87", program="freecad"))
        self.driver.ask("key", "ctrl+z")
        self.until(lambda: self.stored("87", ring, "freecad") == "ID_LINE", "the command")
        self.driver.ask("key", "ctrl+z")
        self.until(lambda: not self.stored("Own", ring, "freecad"), "the shared ring")


if __name__ == "__main__":
    run_tests(SettingsTest, option_parser(__doc__).parse_args())
