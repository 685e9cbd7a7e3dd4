#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""Measures how long LibreCAD takes to open our ring, and its own context menu when it has no gestures.

Prints the same JSON as a Google Benchmark program: microseconds from the event until the X server has
the first picture of the ring, or of the menu. Needs an X server.
"""

import argparse
import json
import statistics
import subprocess
import sys
import tempfile
from pathlib import Path

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
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--build", type=Path, required=True)
    parser.add_argument("--rounds", type=int, default=40)
    options = parser.parse_args()
    program = PROGRAMS["librecad"]
    plain, with_gestures = both_ways(program, options.build)
    figures = {"popup/menu": measure(program, plain, "menu", options),
               "popup/ring": measure(program, with_gestures, "ring", options)}
    print(json.dumps({"benchmarks": [
        {"run_name": name, "run_type": "iteration", "real_time": value, "time_unit": "us"}
        for name, value in figures.items()]}))


if __name__ == "__main__":
    sys.exit(main())
