#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""Measures what gestures cost a real program at its start: starts it in turn without and with them.

Prints the same JSON as a Google Benchmark program: "start", milliseconds from starting the program
until its main window shows the drawing; "work", milliseconds of processor time until the program is
idle after that; "memory", kilobytes of proportional memory (PSS) then. Each is the lower quartile of
the rounds: what else the machine does only adds to a figure. Every other round begins with gestures,
and only every third one waits until the program is idle, so that many starts are measured. Needs an X
server.
"""

import os
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

import figures

ROOT = Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "tests/e2e"))
from harness.programs import PROGRAMS  # noqa: E402

DRAWING = ROOT / "samples/bracket.dxf"
IDLE_SECONDS = 1.5  # longer than every wait of the host and of the program
POLL_SECONDS = 0.05
START_SECONDS = 60


def processor_time(pid):
    """Milliseconds of processor time of the process so far."""
    fields = Path(f"/proc/{pid}/stat").read_text(encoding="utf-8").rpartition(")")[2].split()
    return (int(fields[11]) + int(fields[12])) * 1000 / os.sysconf("SC_CLK_TCK")


def memory(pid):
    """Kilobytes of memory of the process, with its part of shared memory."""
    for line in Path(f"/proc/{pid}/smaps_rollup").read_text(encoding="utf-8").splitlines():
        if line.startswith("Pss:"):
            return int(line.split()[1])
    raise AssertionError("the kernel reports no PSS")


def work_until_idle(pid):
    work, since = processor_time(pid), time.monotonic()
    while time.monotonic() - since < IDLE_SECONDS:
        time.sleep(POLL_SECONDS)
        now = processor_time(pid)
        if now - work > 20:  # milliseconds; a blinking cursor is idle too
            work, since = now, time.monotonic()
    return processor_time(pid)


def wait_until_shown():
    search = ["xdotool", "search", "--onlyvisible", "--name", DRAWING.name]
    end = time.monotonic() + START_SECONDS
    # It fails while there is no such window, and if a window disappears during the search.
    while subprocess.run(search, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                         check=False).returncode != 0:
        if time.monotonic() > end:
            raise AssertionError("the program did not show the drawing")


def begin(program, command, folder):
    """Starts the program with a drawing and a home in the folder."""
    for name, text in program.configuration.items():
        path = folder / "config" / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")
    environment = dict(os.environ, HOME=str(folder), XDG_CONFIG_HOME=str(folder / "config"),
                       XDG_DATA_HOME=str(folder / "data"), LANG="C.UTF-8")
    return subprocess.Popen([*command, str(DRAWING)], env=environment, stdin=subprocess.DEVNULL,
                            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def measure(program, command, folder, until_idle):
    start = time.monotonic()
    process = begin(program, command, folder)
    try:
        wait_until_shown()
        taken = {"start": (time.monotonic() - start) * 1000}
        if until_idle:
            taken["work"] = work_until_idle(process.pid)
            taken["memory"] = memory(process.pid)
        return taken
    finally:
        process.kill()
        process.wait()


def both_ways(program, build):
    """The commands that start the program without gestures and with them."""
    return ([program.executable], [str(build.resolve() / "bin/mouse-gestures"), program.executable])


def main():
    options = figures.options(__doc__, 60)
    program = PROGRAMS["librecad"]
    commands = both_ways(program, options.build)
    found = {}
    with tempfile.TemporaryDirectory() as base:
        for round_number in range(-1, options.rounds):  # the first one only warms up
            for gestures in (0, 1) if round_number % 2 == 0 else (1, 0):
                taken = measure(program, commands[gestures], Path(base) / str(gestures),
                                until_idle=round_number < 0 or round_number % 3 == 0)
                if round_number >= 0:
                    for name, value in taken.items():
                        found.setdefault((name, gestures), []).append(value)
    figures.show((f"{name}/gestures:{gestures}", statistics.quantiles(values, method="inclusive")[0],
                  "kB" if name == "memory" else "ms") for (name, gestures), values in found.items())


if __name__ == "__main__":
    main()
