# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""A program that a test starts, watches and ends."""

import os
import resource
import shutil
import signal
import subprocess
import sys
import time
from pathlib import Path

from .driver import Driver, DriverError
from .programs import STEPS
from .spylog import SpyLog
from .wayland import WaylandDriver

TESTS = Path(__file__).resolve().parents[2]

START_SECONDS = 120  # for a cold start on a busy machine
ANSWER_SECONDS = 15
RING_SIZE = (250, 250)
# The widgets that tests click in the dialog, by object name.
WIDGETS = ("search_lineEdit", "command_tableView", "buttonBox")
# Pixels: well beyond the 69 that choose a direction, also diagonally.
FAR = 110

# This identifies the main window: every drafting program shows the drawing's name in its title,
# and no other window does.
DRAWING_NAME = "drawing.dxf"
# A drawing of two lines, to open, zoom and save.
DRAWING = "".join(
    f"{code}\n{value}\n"
    for code, value in [
        (0, "SECTION"), (2, "ENTITIES"),
        (0, "LINE"), (8, "0"), (10, 0.0), (20, 0.0), (30, 0.0), (11, 100.0), (21, 0.0), (31, 0.0),
        (0, "LINE"), (8, "0"), (10, 0.0), (20, 0.0), (30, 0.0), (11, 0.0), (21, 60.0), (31, 0.0),
        (0, "ENDSEC"), (0, "EOF"),
    ])


class Failure(AssertionError):
    """Something expected did not happen."""


class Session:
    """Use as a context manager. If the test fails, it leaves a picture of the screen, the spy's
    log and the program's output in `folder`."""

    def __init__(self, program, build, folder, gestures=True, settings=None, drawing=None,
                 through_launcher=None, launcher=None):
        self.program = program
        self.build = Path(build).resolve()
        # The one of the build, or an installed one.
        self.launcher = launcher or self.build / "bin" / "mouse-gestures"
        self.folder = Path(folder).resolve()
        self.gestures = gestures
        self._settings = settings or {}
        self._drawing = drawing
        self._through_launcher = gestures and not program.links_host \
            if through_launcher is None else through_launcher
        self.driver = None
        self.spy = None
        self.process = None
        self.view = None

    # --- starting and ending

    def __enter__(self):
        shutil.rmtree(self.folder, ignore_errors=True)
        for name in ("home", "config", "data", "cache", "runtime"):
            (self.folder / name).mkdir(parents=True)
        (self.folder / "runtime").chmod(0o700)
        for name, text in self.program.configuration.items():
            self._write(self.folder / "config" / name, text)
        if self._settings:
            self._write(self.settings_file, "[GestureWidget]\n" + "".join(
                f"{key}={value}\n" for key, value in self._settings.items()))
        ending, text = self.program.macro or ("", DRAWING)
        self.drawing = self.folder / (DRAWING_NAME + ending)
        if self._drawing:
            shutil.copyfile(self._drawing, self.drawing)
        else:
            self.drawing.write_text(text)
        kind = os.environ.get("DESKTOP_INPUT")
        self.driver = WaylandDriver(self.build, kind, self.screen_size()) if kind \
            else Driver(self.build)
        self.spy = SpyLog(self.folder / "spy.pipe", self.folder / "spy.log")
        self._start()
        try:
            self._wait_until_ready()
        except BaseException:
            self.__exit__(*sys.exc_info())
            raise
        return self

    def __exit__(self, kind, error, trace):
        if kind is not None:
            self.driver.succeeds("screenshot", self.folder / "failure.png")
            if isinstance(error, AssertionError):
                sys.stderr.write(f"evidence: {self.folder}\n{self._tail()}\n")
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait(timeout=ANSWER_SECONDS)
        self.driver.close()
        self.spy.close()
        return False

    @property
    def settings_file(self):
        return self.folder / "config" / "gesturewidget" / f"{self.program.name}.ini"

    def executable(self):
        if "/" in self.program.executable:
            return str(self.build / self.program.executable)
        return self.program.executable

    def start_again(self):
        """Starts the program again after it has ended, with the same folders."""
        self._start()
        self._wait_until_ready()

    def _start(self):
        self._born = self.spy.mark()
        environment = dict(
            os.environ,
            HOME=str(self.folder / "home"),
            XDG_CONFIG_HOME=str(self.folder / "config"),
            XDG_DATA_HOME=str(self.folder / "data"),
            XDG_CACHE_HOME=str(self.folder / "cache"),
            XDG_RUNTIME_DIR=str(self.folder / "runtime"),
            QT_QPA_GENERIC_PLUGINS="actionspy",
            QT_PLUGIN_PATH=str(self.build / "tests" / "plugins"),
            ACTIONSPY_LOG=str(self.spy.path),
            ACTIONSPY_VIEW=self.program.view,
            ACTIONSPY_WIDGETS=",".join(WIDGETS),
            ACTIONSPY_ENTRY=f"{self.program.dialog}..." if self.gestures else "",
            LANG="C.UTF-8",
            LANGUAGE="",
            QTWEBENGINE_DISABLE_SANDBOX="1",  # for web views that run as root
        )
        environment.update(self.program.environment)
        if not self.gestures and self.program.links_host:
            environment["LD_LIBRARY_PATH"] = str(self._libraries_without_module())
        command = [self.executable(), str(self.drawing)]
        if self._through_launcher:
            command.insert(0, str(self.launcher))
        with open(self.folder / "stderr.log", "wb") as errors, \
                open(self.folder / "stdout.log", "wb") as output:
            self.process = subprocess.Popen(
                command, env=environment, cwd=self.folder, stdin=subprocess.DEVNULL,
                stdout=output, stderr=errors,
                preexec_fn=allow_cores)

    def _libraries_without_module(self):
        """A program that links the host library runs without gestures if there is no module
        beside that library."""
        folder = self.folder / "lib"
        folder.mkdir()
        for name in ("host", "sdk"):
            for path in (self.build / "lib").glob(f"libgesturewidget-{name}-qt*.so*"):
                shutil.copy(path, folder, follow_symlinks=True)
        return folder

    def _wait_until_ready(self):
        self.expect(self._born, lambda line: line[0] == "ready", "the view and the menu entry",
                    START_SECONDS)
        if any("Splash" in line[1] for line in self.spy.since(self._born, "window")):
            self.expect(self._born, lambda line: line[0] == "gone" and "Splash" in line[1],
                        "the splash screen to go", START_SECONDS)
        # Windows still move and grow after they appear. Take the view's place only when the
        # window manager has placed the main window and the screen does not change any more.
        self.driver.ask("wait-window", DRAWING_NAME, START_SECONDS * 1000)
        if os.environ.get("DESKTOP_WM") == "none":
            self.driver.ask("focus-on", DRAWING_NAME)
        screen = (0, 0, *self.screen_size())
        self.driver.ask("remember", *screen)
        self.driver.ask("wait-steady", START_SECONDS * 1000)
        self.locate_view()

    def screen_size(self):
        width, height = os.environ.get("DESKTOP_SCREEN", "1600x1000x24").split("x")[:2]
        return int(width), int(height)

    def locate_view(self):
        """Reads the view's latest geometry from the spy; returns its middle."""
        views = self.spy.since(0, "view")
        self.view = tuple(int(number) for number in views[-1][2].split(","))
        return self.middle()

    def middle(self):
        x, y, width, height = self.view
        return x + width // 2, y + height // 2

    def quit(self):
        """Closes the main window as a person does. Returns the exit status; it is negative if a
        signal ended the program."""
        mark = self.spy.mark()
        self.driver.ask("close", DRAWING_NAME)
        seen = self.expect(mark, lambda line: line[0] in ("quit", "dialog"), "the program's end")
        if seen[0] == "dialog":
            self.focus(seen[3])
            self.carry_out(self.program.discard)
            self.expect(mark, lambda line: line[0] == "quit", "the program's end")
        try:
            return self.process.wait(timeout=ANSWER_SECONDS)
        except subprocess.TimeoutExpired:
            raise Failure("the program said that it quits, and did not end") from None

    # --- gestures

    def move_to_middle(self):
        self.driver.ask("move", *self.middle())
        # The frame of a closed window stays for a moment.
        self.driver.ask("wait-pointer-in", DRAWING_NAME, ANSWER_SECONDS * 1000)

    def offset(self, direction, length):
        step = STEPS[direction]
        scale = 0.7071 if all(step) else 1.0
        return tuple(round(part * length * scale) for part in step)

    def drag(self, direction, length=FAR, milliseconds=300):
        self.driver.ask("drag", *self.offset(direction, length), milliseconds)

    def gesture(self, direction, length=FAR, milliseconds=300):
        """Performs a gesture from the middle of the view."""
        self.move_to_middle()
        self.driver.ask("press", 3)
        self.drag(direction, length, milliseconds)
        self.driver.ask("release", 3)

    def gesture_runs(self, direction, action, **how):
        """Performs a gesture and waits for the action. Fails if any other action ran."""
        mark = self.spy.mark()
        self.gesture(direction, **how)
        # The spy reports an action when it has finished, so after its dialog.
        if action in self.program.dialogs:
            self.dismiss_dialog(mark)
        self.expect(mark, lambda line: line[0] == "triggered", f'"{action}" by a gesture {direction}')
        self.ring_is_gone()
        ran = [line[1] for line in self.spy.since(mark, "triggered")]
        if ran != [action]:
            raise Failure(f"a gesture {direction} ran {ran}, not [{action!r}]")
        if action not in self.program.dialogs:
            self.check_active_window(mark)

    def check_active_window(self, mark):
        """Fails if an action since then found no active window, or a ring that had gone."""
        active = [line[1] for line in self.spy.since(mark, "active")]
        if any(name == "none" or "Donut" in name for name in active):
            raise Failure(f"the active windows were {active}")

    def gesture_shows_a_ring(self, direction):
        """Performs a gesture and waits until its ring has come and gone. A busy program opens the ring
        after the gesture, and the ring looks where the pointer is then: do not move it meanwhile."""
        mark = self.spy.mark()
        self.gesture(direction)
        self.expect(mark, lambda line: line[0] == "gone" and "DonutDialog" in line[1],
                    f"the ring of a gesture {direction} to go")

    def wait_for_ring(self):
        answer = self.driver.ask("wait-size", *RING_SIZE, ANSWER_SECONDS * 1000)
        return tuple(int(number) for number in answer.split()[1:])

    def wait_for_grabbing_ring(self, mark):
        """Waits until the ring has taken its grabs. Do not probe for grabs before: a probe takes
        them for a moment, and the ring would not get them."""
        self.expect(mark, lambda line: line[0] == "exposed" and "DonutDialog" in line[1],
                    "the ring to get on screen")

    def ring_is_gone(self):
        self.driver.ask("wait-no-size", *RING_SIZE, ANSWER_SECONDS * 1000)

    def dismiss_dialog(self, mark):
        """Waits for a dialog that opened after `mark`, and closes it."""
        opened = self.expect(mark, lambda line: line[0] == "dialog", "a dialog")
        self.focus(opened[3])
        self.driver.ask("key", "Escape")
        self.expect(mark, lambda line: line[:2] == ["gone", opened[1]], "the dialog to close")
        self.focus(DRAWING_NAME)

    def cancel_tool(self):
        """Ends a command that still runs in the view."""
        mark = self.spy.mark()
        self.focus(DRAWING_NAME)
        self.carry_out(self.program.cancel)
        self.driver.ask("key", "Escape")
        # If Escape is a shortcut, it triggers an action and reaches no widget.
        self.expect(mark, lambda line: line[:2] == ["typed", "Escape"] or line[0] == "triggered",
                    "Escape to arrive")

    def focus(self, title):
        self.driver.ask("wait-focus", title, ANSWER_SECONDS * 1000)

    def type_and_wait(self, key):
        """Waits until the key arrives in the program, and returns the spy's line about it."""
        mark = self.spy.mark()
        self.driver.ask("key", key)
        # One key may pass through many widgets. The "key" lines of an earlier press of the same
        # key can still come now, but this line comes once for each press.
        return self.expect(mark, lambda line: line[:2] == ["typed", key], f"{key} to arrive")

    def settle(self):
        """Waits until the program has handled all input so far. Input arrives in order, so it
        sends a key and waits for that."""
        self.type_and_wait("F9")
        self.ring_is_gone()
        self.wait_for_free_input()

    def right_click(self):
        """Clicks with the right button, and closes the menu if one opens."""
        mark = self.spy.mark()
        self.driver.ask("click", 3)
        self.close_context_menu(mark)

    def close_context_menu(self, mark):
        if self.program.context_menu:
            self.expect(mark, lambda line: line[0] == "menu", "the menu of a right click")
            self.driver.ask("key", "Escape")
            self.expect(mark, lambda line: line[:2] == ["gone", "QMenu"], "the menu to close")
            if self.program.menu_on_release:
                self.expect(mark, lambda line: line[0] == "release"
                            and line[2] == self.program.menu_on_release, "the end of the release")
            self.wait_for_free_input()

    def start_line(self):
        """Starts the line tool. Afterwards the view gets the pointer and the keyboard."""
        mark = self.spy.mark()
        self.carry_out(self.program.start_line)
        if self.program.line_in_menu:
            self.expect(mark, lambda line: line[:2] == ["gone", "QMenu"], "the menu to close")
        self.wait_for_free_input()

    def wait_for_free_input(self):
        """Waits until no menu is on screen and nobody holds the pointer or the keyboard.

        A menu that the program has closed stays on screen and holds its grabs for a moment.
        It loses what is clicked or typed then, in any program.
        """
        self.driver.ask("wait-no-popup", ANSWER_SECONDS * 1000)
        if not self.grabs_become("pointer free keyboard free"):
            raise Failure(f"something holds on: {self.driver.ask('grabs')}")

    def grabs_become(self, wanted):
        end = time.monotonic() + ANSWER_SECONDS
        while self.driver.ask("grabs") != wanted:
            if time.monotonic() > end:
                return False
        return True

    # --- the dialog

    def open_dialog(self):
        """Opens the dialog through the last entry of the Tools menu. Returns a mark from before."""
        mark = self.spy.mark()
        self.driver.ask("key", "alt+t")
        self.expect(mark, lambda line: line[0] == "menu", "the Tools menu")
        self.driver.ask("key", "Up")  # from the top to the last entry
        self.driver.ask("key", "Return")
        self.focus(self.program.dialog)
        return mark

    def dialog_is_gone(self):
        self.driver.ask("wait-no-window", self.program.dialog, ANSWER_SECONDS * 1000)
        self.focus(DRAWING_NAME)

    def place_of(self, widget, mark):
        """The place of a widget in the dialog that opened after `mark`."""
        self.expect(mark, lambda line: line[:2] == ["widget", widget], f"the dialog's {widget}")
        place = [line[3] for line in self.spy.since(mark, "widget") if line[1] == widget][-1]
        x, y, width, height = (int(number) for number in place.split(","))
        # The X server knows where the window is. For a moment after a window manager has framed it,
        # Qt takes it to be in the corner of the screen.
        answer = self.driver.ask("wait-window", self.program.dialog, ANSWER_SECONDS * 1000)
        left, top = (int(number) for number in answer.split()[1:3])
        return left + x, top + y, width, height

    def click_at(self, x, y):
        self.driver.ask("move", x, y)
        self.driver.ask("click", 1)

    def bind(self, caption, direction_number):
        """Binds a command as a person does: searches for its caption, clicks the first match,
        chooses from the list of arrows, and presses OK."""
        opened = self.open_dialog()
        x, y, width, height = self.place_of("search_lineEdit", opened)
        self.click_at(x + width // 2, y + height // 2)
        self.driver.ask("type", caption)
        # The first row, below the header.
        x, y, width, height = self.place_of("command_tableView", opened)
        self.click_at(x + 40, y + 30)
        mark = self.spy.mark()
        self.driver.ask("key", "F4")
        self.expect(mark, lambda line: line[0] == "window" and "Combo" in line[1], "the list of arrows")
        self.carry_out(("key Home",) + ("key Down",) * direction_number + ("key Return",))
        self.expect(mark, lambda line: line[0] == "gone" and "Combo" in line[1], "the list to close")
        # OK is the first of three buttons.
        x, y, width, height = self.place_of("buttonBox", opened)
        self.click_at(x + width // 6, y + height // 2)
        self.dialog_is_gone()

    def carry_out(self, commands):
        """Sends commands for the driver, each a whole line."""
        for command in commands:
            self.driver.ask(*command.split())

    # --- watching

    def expect(self, mark, wanted, what, timeout=ANSWER_SECONDS):
        line = self.spy.wait(mark, wanted, timeout, lambda: self.process.poll() is None)
        if line is None:
            # The pipe may still hold the last lines of a program that has ended.
            line = self.spy.wait(mark, wanted, 0.5)
        if line is None:
            status = self.process.poll()
            ended = "" if status is None else f"; it ended with {describe_status(status)}"
            raise Failure(f"{self.program.name}: waited too long for {what}{ended}")
        return line

    def complaints(self):
        """The lines that the program wrote to standard error."""
        lines = (self.folder / "stderr.log").read_text(errors="replace").splitlines()
        # When a modal dialog closes, Qt asks what is under the pointer. If the window manager has
        # just destroyed the dialog's frame, Qt complains, in any program.
        return [line for line in lines
                if not ("(BadWindow)" in line and "(TranslateCoords)" in line)]

    def cores(self):
        return sorted(path.name for path in self.folder.glob("core*"))

    def _tail(self):
        def last(name):
            lines = (self.folder / name).read_text(errors="replace").splitlines()[-15:]
            return "".join(f"  {line}\n" for line in lines)
        return f"spy:\n{last('spy.log')}stderr:\n{last('stderr.log')}"

    @staticmethod
    def _write(path, text):
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)


def allow_cores():
    """Allows core files as large as this user may have them."""
    _, most = resource.getrlimit(resource.RLIMIT_CORE)
    resource.setrlimit(resource.RLIMIT_CORE, (most, most))


def describe_status(status):
    return f"status {status}" if status >= 0 else signal.Signals(-status).name


__all__ = ["ANSWER_SECONDS", "DRAWING_NAME", "DriverError", "FAR", "Failure", "RING_SIZE", "Session", "describe_status"]
