#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""Measures how long LibreCAD takes to open our ring, and its own context menu when it has no gestures.

Prints the same JSON as a Google Benchmark program: microseconds from the event until the X server has
the first picture of the ring, or of the menu. Needs an X server.
"""

import statistics
import subprocess
import tempfile
from pathlib import Path

import figures
from start import PROGRAMS, both_ways, begin, wait_until_shown, work_until_idle

PLACE = ("700", "450")  # in the drawing; the program's configuration says where its window is


def xdotool(*arguments):
    subprocess.run(["xdotool", *arguments], check=True)


def use_a_tool():
    """The context menu offers the tools that were used from menus, and opens only if there are some."""
    xdotool("mousemove", *PLACE, "key", "--delay", "200", "alt+t", "Right", "Return", "Escape", "Escape")


def measure(program, command, popup, options):
    with tempfile.TemporaryDirectory() as home:
        process = begin(program, command, Path(home))
        try:
            wait_until_shown()
            work_until_idle(process.pid)
            use_a_tool()
            found = subprocess.run([options.build / "bin/bench_popup_time", popup, *PLACE,
                                    str(options.rounds + 1)], stdout=subprocess.PIPE, text=True, check=True)
            return statistics.median(map(float, found.stdout.split()[1:]))  # the first one is slower
        finally:
            process.kill()
            process.wait()


def main():
    options = figures.options(__doc__, 40)
    program = PROGRAMS["librecad"]
    plain, with_gestures = both_ways(program, options.build)
    figures.show([("popup/menu", measure(program, plain, "menu", options), "us"),
                  ("popup/ring", measure(program, with_gestures, "ring", options), "us")])


if __name__ == "__main__":
    main()
