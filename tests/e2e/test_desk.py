# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""Gestures under every window manager, which must not notice the ring.

    DESKTOP_WM=kwin with-desktop.sh python3 test_desk.py --build DIR [TEST...]

The program is the sketchpad. Under every window manager, with and without a compositor, a
gesture runs its command, the ring lies exactly on the press point, no grab stays, and neither a
title bar nor a task bar changes.
"""

import os
import time

from harness.programs import EIGHT, PROGRAMS
from harness.programtest import ProgramTest, option_parser, run_tests
from harness.session import ANSWER_SECONDS, DRAWING_NAME, RING_SIZE

EDGE = 10  # pixels between a press and the edge of the screen
FLICKS = (100, 120, 150)  # milliseconds
# None of these opens a dialog, which would become the active window.
BINDINGS = {"ActiveScheme": "8", "81": "ID_ZOOM_BOUNDS", "82": "ID_OFFSET", "83": "ID_ZOOM_BOUNDS",
            "84": "ID_COPY", "85": "ID_SAVE", "86": "ID_DTEXT", "87": "ID_LINE", "88": "ID_TRIM"}
RUNS = {**PROGRAMS["sketchpad"].eight, "left": PROGRAMS["sketchpad"].eight["up"]}
PATIENCE_SECONDS = 3  # with a window manager
INSIDE = 45  # pixels: far enough to open the ring, not far enough to choose


class DeskTest(ProgramTest):
    program = PROGRAMS["sketchpad"]

    def wait_for_active_window(self, session):
        """Some window managers name the active window a moment after it got the focus. Now and then xfwm4
        forgets it until somebody activates the window."""
        end = time.monotonic() + ANSWER_SECONDS
        patience = time.monotonic() + PATIENCE_SECONDS
        while "active 0x0" in session.driver.ask("focus"):
            self.assertLess(time.monotonic(), end, "no window is active")
            if time.monotonic() > patience:
                session.driver.ask("activate", DRAWING_NAME)
                patience = end
            time.sleep(0.02)

    def started(self, session):
        """Records what must be the same after each gesture."""
        session.move_to_middle()
        if os.environ.get("DESKTOP_WM") != "none":
            self.wait_for_active_window(session)
        session.driver.ask("watch")
        self.before = session.driver.ask("focus")
        self.windows = session.driver.ask("windows")
        self.assertNotIn("focus 0x0", self.before)

    def expect_as_before(self, session):
        session.wait_for_free_input()
        self.assertEqual(session.driver.ask("focus"), self.before)

    def expect_no_flicker(self, session):
        self.assertEqual(session.driver.ask("activations"), "0",
                         "the window manager has announced an active window")

    def expect_keys_arrive(self, session):
        self.assertNotIn("DonutDialog", session.type_and_wait("F9")[2])

    def choose(self, session, direction, milliseconds):
        action = RUNS[direction]
        session.driver.ask("activations")  # resets the count
        session.gesture_runs(direction, action, milliseconds=milliseconds)
        self.expect_no_flicker(session)
        self.expect_as_before(session)
        self.expect_keys_arrive(session)
        session.cancel_tool()

    def open_ring(self, session, at, step):
        """Opens the ring, checks its place, and cancels."""
        session.driver.ask("activations")
        mark = session.spy.mark()
        session.driver.ask("move", *at)
        session.driver.ask("press", 3)
        try:
            session.driver.ask("drag", step[0] * INSIDE, step[1] * INSIDE, 150)
            ring = session.wait_for_ring()
            session.wait_for_grabbing_ring(mark)
            held = session.grabs_become("pointer taken keyboard taken")
            during = session.driver.ask("focus")
            windows = session.driver.ask("windows")
        finally:
            session.driver.ask("release", 3)
        session.ring_is_gone()
        self.assertEqual(ring, (at[0] - RING_SIZE[0] // 2, at[1] - RING_SIZE[1] // 2, *RING_SIZE))
        self.assertTrue(held, "the grabs are not held")
        self.assertEqual(during, self.before, "during the gesture")
        if os.environ.get("DESKTOP_WM") != "none":
            self.assertEqual(windows, self.windows, "in the task bar")
        self.expect_no_flicker(session)
        self.expect_as_before(session)
        self.expect_keys_arrive(session)
        self.assertEqual(session.spy.since(mark, "triggered"), [])

    def test_eight_directions(self):
        with self.session(settings=BINDINGS) as session:
            self.started(session)
            for direction in EIGHT:
                with self.subTest(direction):
                    self.choose(session, direction, 300)
            self.end(session)

    def test_flicks(self):
        with self.session(settings=BINDINGS) as session:
            self.started(session)
            for number, direction in enumerate(EIGHT):
                with self.subTest(direction):
                    self.choose(session, direction, FLICKS[number % len(FLICKS)])
            self.end(session)

    def test_cancels(self):
        with self.session(settings=BINDINGS) as session:
            self.started(session)
            x, y = session.middle()
            for number in range(6):
                with self.subTest(number):
                    self.open_ring(session, (x + 5 * number, y), (0, -1))
            self.choose(session, "up", 300)
            self.end(session)

    def test_near_the_edges(self):
        with self.session(settings=BINDINGS) as session:
            width, height = self.fill_screen(session)
            self.started(session)
            for x, right in ((EDGE, 1), (width // 2, 0), (width - 1 - EDGE, -1)):
                for y, down in ((EDGE, 1), (height // 2, 0), (height - 1 - EDGE, -1)):
                    with self.subTest(f"{x},{y}"):
                        self.open_ring(session, (x, y), (right, down) if right or down else (1, 0))
            session.driver.ask("key", "F11")
            self.end(session)

    def fill_screen(self, session):
        """Makes the view cover the whole screen; returns the screen's size."""
        width, height = session.screen_size()
        mark = session.spy.mark()
        session.driver.ask("key", "F11")
        if os.environ.get("DESKTOP_WM") == "none":
            session.driver.ask("place", DRAWING_NAME, 0, 0, width, height)
        session.expect(mark, lambda line: line[0] == "view" and line[2] == f"0,0,{width},{height}",
                       "the drawing to fill the screen")
        session.locate_view()
        session.driver.ask("remember", 0, 0, width, height)
        session.driver.ask("wait-steady", ANSWER_SECONDS * 1000)
        return width, height


def main():
    options = option_parser(__doc__.splitlines()[0]).parse_args()
    compositor = "" if os.environ.get("DESKTOP_COMPOSITOR", "1") != "0" else "-uncomposited"
    server = os.environ.get("DESKTOP_SERVER", "")
    DeskTest.folder = f"desk-{server}{os.environ.get('DESKTOP_WM', 'openbox')}{compositor}"
    run_tests(DeskTest, options)


if __name__ == "__main__":
    main()
