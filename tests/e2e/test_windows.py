# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""Gestures in a program with several main windows: the sketchpad.

    with-desktop.sh python3 test_windows.py --build DIR [TEST...]

test_gestures.py describes how the tests work.
"""

from harness.programs import PROGRAMS
from harness.programtest import ProgramTest, option_parser, run_tests
from harness.session import ANSWER_SECONDS, DRAWING_NAME

PROGRAM = PROGRAMS["sketchpad"]
FIRST = DRAWING_NAME
SECOND = "New drawing"
# The places of the windows: x, y, width, height. They lie side by side.
PLACES = {FIRST: (10, 30, 760, 900), SECOND: (800, 30, 760, 900)}


class WindowsTest(ProgramTest):
    folder = "windows"
    program = PROGRAM
    first_is_placed = None  # the session in which it is

    def open_second(self, session):
        """Opens a second window beside the first. Waits until it has gestures."""
        if self.first_is_placed is not session:
            self.first_is_placed = session
            self.place(session, FIRST)
        mark = session.spy.mark()
        session.focus(FIRST)
        session.driver.ask("key", "ctrl+shift+n")
        session.driver.ask("wait-window", SECOND, ANSWER_SECONDS * 1000)
        self.place(session, SECOND)
        session.expect(mark, lambda line: line == ["hasentry", "2"], "the entry in its menu")

    def place(self, session, title):
        mark = session.spy.mark()
        session.driver.ask("place", title, *PLACES[title])
        session.expect(mark, lambda line: line[0] == "view" and self.is_in(line, title), "the view's place")
        session.driver.ask("remember", 0, 0, *session.screen_size())
        session.driver.ask("wait-steady", ANSWER_SECONDS * 1000)

    @staticmethod
    def is_in(line, title):
        x, _, width, _ = (int(number) for number in line[2].split(","))
        left, _, whole, _ = PLACES[title]
        return left - 20 <= x and x + width <= left + whole + 20

    def middle(self, session, title):
        views = [line for line in session.spy.since(0, "view") if self.is_in(line, title)]
        x, y, width, height = (int(number) for number in views[-1][2].split(","))
        return x + width // 2, y + height // 2

    def point_at(self, session, title):
        session.driver.ask("move", *self.middle(session, title))
        session.driver.ask("wait-pointer-in", title, ANSWER_SECONDS * 1000)

    def gesture(self, session, title, direction):
        """Performs a gesture in a window. Its command must run there and nowhere else."""
        mark = session.spy.mark()
        self.point_at(session, title)
        session.driver.ask("press", 3)
        session.drag(direction)
        session.driver.ask("release", 3)
        line = session.expect(mark, lambda line: line[0] == "where", f"a command in {title}")
        session.ring_is_gone()
        self.assertEqual(line[1], self.program.eight[direction])
        self.assertIn(title, line[2])
        self.assertEqual(len(session.spy.since(mark, "triggered")), 1)
        self.stop_tool(session, title)

    def stop_tool(self, session, title):
        mark = session.spy.mark()
        session.focus(title)
        session.driver.ask("key", "Escape")
        session.expect(mark, lambda line: line[:2] == ["where", "toolsStop"], "the tool to end")

    def dialog(self, session, title):
        """Opens the dialog from the window's menu, and closes it."""
        mark = session.spy.mark()
        session.focus(title)
        session.driver.ask("key", "alt+t")
        session.expect(mark, lambda line: line[0] == "menu", "the Tools menu")
        session.driver.ask("key", "Up")
        session.driver.ask("key", "Return")
        session.focus("Mouse Gestures")
        session.driver.ask("key", "Escape")
        session.driver.ask("wait-no-window", "Mouse Gestures", ANSWER_SECONDS * 1000)
        session.focus(title)

    def close(self, session, title):
        session.driver.ask("close", title)
        session.driver.ask("wait-no-window", title, ANSWER_SECONDS * 1000)

    def end_with(self, session, title):
        """Closes the last window. The program must end normally."""
        mark = session.spy.mark()
        session.driver.ask("close", title)
        session.expect(mark, lambda line: line[0] == "quit", "the program's end")
        self.assertEqual(session.process.wait(timeout=ANSWER_SECONDS), 0)
        self.assertEqual(session.cores(), [])
        self.assertEqual(session.complaints(), [])

    def test_both_windows_and_then_the_second_alone(self):
        with self.session() as session:
            session.gesture_runs("right", self.program.eight["right"])
            session.cancel_tool()
            self.open_second(session)
            for title in (SECOND, FIRST, SECOND):
                for direction in ("right", "up-left", "down-right"):
                    self.gesture(session, title, direction)
                self.dialog(session, title)
            self.close(session, FIRST)
            for direction in ("right", "up-left"):
                self.gesture(session, SECOND, direction)
            self.dialog(session, SECOND)
            self.gesture(session, SECOND, "right")
            self.end_with(session, SECOND)

    def test_the_first_window_goes_on_alone(self):
        with self.session() as session:
            self.open_second(session)
            self.gesture(session, SECOND, "right")
            self.close(session, SECOND)
            self.gesture(session, FIRST, "right")
            self.open_second(session)
            self.gesture(session, SECOND, "up-left")
            self.gesture(session, FIRST, "up-left")
            self.close(session, SECOND)
            self.end_with(session, FIRST)

    def test_the_first_window_is_minimized(self):
        with self.session() as session:
            session.gesture_runs("right", self.program.eight["right"])  # the ring is the first window's
            session.cancel_tool()
            self.open_second(session)
            session.driver.ask("minimize", FIRST)
            session.driver.ask("wait-no-window", FIRST, ANSWER_SECONDS * 1000)
            mark = session.spy.mark()
            self.point_at(session, SECOND)
            session.driver.ask("press", 3)
            session.drag("up", 45)
            session.wait_for_grabbing_ring(mark)
            session.wait_for_ring()
            self.assertTrue(session.grabs_become("pointer taken keyboard taken"))
            session.driver.ask("release", 3)
            session.ring_is_gone()
            for direction in ("right", "up-left"):
                self.gesture(session, SECOND, direction)
            self.close(session, SECOND)
            self.assertEqual(session.process.poll(), None)
            session.process.terminate()

    def test_a_window_closes_while_the_ring_is_open(self):
        for closed in (FIRST, SECOND):
            other = SECOND if closed == FIRST else FIRST
            with self.session(f"{self._testMethodName}-{closed.split()[0]}") as session:
                session.gesture_runs("right", self.program.eight["right"])
                session.cancel_tool()
                self.open_second(session)
                mark = session.spy.mark()
                self.point_at(session, SECOND)
                session.driver.ask("press", 3)
                session.drag("up", 45)
                session.wait_for_grabbing_ring(mark)
                self.close(session, closed)
                session.driver.ask("release", 3)
                session.ring_is_gone()
                self.assertTrue(session.grabs_become("pointer free keyboard free"))
                self.gesture(session, other, "right")
                self.assertEqual(len(session.spy.since(mark, "triggered")), 2)  # and the tool's end
                self.end_with(session, other)


if __name__ == "__main__":
    run_tests(WindowsTest, option_parser(__doc__.splitlines()[0]).parse_args())
