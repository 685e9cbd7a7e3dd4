#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""Measures how long the settings program takes to show its window, beside a bare Qt window.

Prints the same JSON as a Google Benchmark program: milliseconds from starting the program until its
window is on the screen. Needs an X server.
"""

import subprocess
import time

import figures

SEARCH = ["xdotool", "search", "--onlyvisible", "--name", "^Mouse Gestures$"]
SECONDS = 30


def wait_until(is_shown):
    """Waits until such a window is there, or is not."""
    end = time.monotonic() + SECONDS
    while (subprocess.run(SEARCH, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                          check=False).returncode == 0) != is_shown:
        if time.monotonic() > end:
            raise AssertionError(f"a window is {'not ' if is_shown else ''}on the screen")


def measure(program):
    start = time.monotonic()
    with subprocess.Popen([program], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                          stderr=subprocess.DEVNULL) as process:
        try:
            wait_until(True)
            return (time.monotonic() - start) * 1000
        finally:
            process.kill()
            process.wait()
            wait_until(False)


def main():
    options = figures.options(__doc__, 15)
    programs = {"plain": "bench_plain_window", "settings": "mouse-gestures-settings"}
    runs = []
    for round_number in range(-1, options.rounds):  # the first one only warms up
        for name, program in programs.items():
            taken = measure(options.build.resolve() / "bin" / program)
            if round_number >= 0:
                runs.append((f"window/{name}", taken, "ms"))
    figures.show(runs)


if __name__ == "__main__":
    main()
