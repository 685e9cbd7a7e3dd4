# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""Monitors that come and go while the ring is open: the sketchpad.

    DESKTOP_MONITORS="900x1000+0+0 700x1000+900+0" \\
        with-desktop.sh python3 test_monitors.py --build DIR [TEST...]

test_gestures.py describes how the tests work.
"""

import os
import subprocess
import sys
import time
from pathlib import Path

from harness.programs import PROGRAMS
from harness.programtest import ProgramTest, option_parser, run_tests
from harness.session import ANSWER_SECONDS, DRAWING_NAME, RING_SIZE

LEFT = "900x1000+0+0"
RIGHT = "700x1000+900+0"
RIGHT_SMALLER = "640x800+900+100"
# x, y, width, height of the window on a monitor.
PLACES = {LEFT: (20, 40, 800, 800), RIGHT: (920, 140, 600, 700), RIGHT_SMALLER: (920, 140, 600, 700)}
# The pointer jumps when its monitor goes, in any direction. No command may run of that.
BINDINGS = {"ActiveScheme": "8", "81": "ID_ZOOM_BOUNDS", "82": "ID_OFFSET", "83": "ID_ZOOM_BOUNDS",
            "84": "ID_COPY", "85": "ID_SAVE", "86": "ID_DTEXT", "87": "ID_LINE", "88": "ID_TRIM"}
SCRIPT = Path(__file__).resolve().parents[1] / "support" / "monitors.py"
INSIDE = 45  # pixels: far enough to open the ring, not far enough to choose


class MonitorsTest(ProgramTest):
    folder = "monitors"
    program = PROGRAMS["sketchpad"]

    def set_monitors(self, *monitors):
        subprocess.run([sys.executable, "-B", SCRIPT, os.environ["DESKTOP_VNC"], *monitors], check=True)

    def place(self, session, monitor):
        """Puts the window on a monitor. It may be there already."""
        x, y, width, height = PLACES[monitor]
        session.driver.ask("place", DRAWING_NAME, x, y, width, height)

        end = time.monotonic() + ANSWER_SECONDS
        while True:
            session.locate_view()
            left, top, wide, high = session.view
            if x <= left and y <= top and left + wide <= x + width and top + high <= y + height:
                break
            self.assertLess(time.monotonic(), end, f"the view stays at {session.view}")
            time.sleep(0.02)
        session.driver.ask("remember", x, y, width, height)
        session.driver.ask("wait-steady", ANSWER_SECONDS * 1000)

    def opens_a_ring(self, session):
        """Presses and drags until the ring is there."""
        mark = session.spy.mark()
        session.move_to_middle()
        x, y = session.middle()
        session.driver.ask("press", 3)
        session.drag("up", INSIDE)
        ring = session.wait_for_ring()
        self.assertEqual(ring, (x - RING_SIZE[0] // 2, y - RING_SIZE[1] // 2, *RING_SIZE))
        session.wait_for_grabbing_ring(mark)
        return mark

    def gesture_ends(self, session):
        session.driver.ask("release", 3)
        session.settle()
        self.assertEqual(session.complaints(), [])

    def goes_on(self, session, monitor):
        """Gestures work as before, with the ring on the press."""
        self.place(session, monitor)
        for direction in ("up", "right"):
            session.gesture_runs(direction, self.program.eight[direction])
        session.cancel_tool()
        self.opens_a_ring(session)
        self.gesture_ends(session)

    def changes(self, before, window, after, then):
        """The monitors change while the ring is open in a window on one of them. Gestures go on then in the
        window on another."""
        self.set_monitors(LEFT, RIGHT)
        with self.session(settings=BINDINGS) as session:
            self.set_monitors(*before)
            self.place(session, window)
            session.gesture_runs("up", self.program.eight["up"])
            mark = self.opens_a_ring(session)
            self.set_monitors(*after)
            self.gesture_ends(session)
            self.assertEqual(session.spy.since(mark, "triggered"), [])
            session.cancel_tool()
            self.goes_on(session, then)
            self.end(session)

    def test_the_monitor_of_the_ring_goes(self):
        self.changes([LEFT, RIGHT], RIGHT, [LEFT], LEFT)

    def test_the_other_monitor_goes(self):
        self.changes([LEFT, RIGHT], LEFT, [LEFT], LEFT)

    def test_the_monitor_of_the_ring_shrinks(self):
        self.changes([LEFT, RIGHT], RIGHT, [LEFT, RIGHT_SMALLER], RIGHT_SMALLER)

    def test_a_monitor_comes(self):
        self.changes([LEFT], LEFT, [LEFT, RIGHT], RIGHT)


def main():
    options = option_parser(__doc__.splitlines()[0]).parse_args()
    run_tests(MonitorsTest, options)


if __name__ == "__main__":
    main()
