#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""Runs the benchmark programs and prints each figure beside its baseline. ./bench calls it."""

import argparse
import json
import os
import platform
import re
import statistics
import subprocess
import sys
from dataclasses import dataclass
from pathlib import Path
from typing import Optional

ROOT = Path(__file__).resolve().parent.parent
PAGE = ROOT / "benchmarks/README.md"
BEGIN, END = "<!-- table: written by ./bench --write -->", "<!-- end of the table -->"
REPETITIONS = 5


@dataclass
class Row:
    """A figure and its baseline, from the same run of one program."""
    title: str
    program: str
    name: str
    baseline_title: str
    baseline: str
    bound: Optional[float]  # the largest allowed ratio; None: for information only
    surplus: Optional[float] = None  # the largest allowed difference, in bytes


OFFSCREEN_DIALOG = "bench_dialog offscreen"  # a program and the platform that Qt draws on

# The faster one of the pie menus in README.md, in times of the same empty window.
FASTEST_MENU = 0.66 / 0.45

ROWS = [
    Row("the ring opens, 1,000 commands: event to finished frame", "bench_ring",
        "ringOpens/commands:1000", "an empty window of its kind", "plainWindowOpens/managed:0", 2.0),
    Row("the ring opens, 10,000 commands", "bench_ring",
        "ringOpens/commands:10000", "the same", "plainWindowOpens/managed:0", 8 / 0.7),
    Row("the first ring of a program, 1,000 commands", "bench_ring",
        "ringOfNewProgram/commands:1000/ring:1", "the first empty window of its kind",
        "plainWindowOfNewProgram", 1.25),
    Row("the first ring of a program, 1,000 commands", "bench_ring",
        "ringOfNewProgram/commands:1000/ring:1", "its second one",
        "ringOfNewProgram/commands:1000/ring:2", None),
    Row("the ring opens, 1,000 commands", "bench_ring",
        "ringOpens/commands:1000", "a `QMenu` of eight entries", "menuOpens", None),
    Row("LibreCAD opens the ring: from the X server's event to the picture", "popups.py",
        "popup/ring", "its own context menu, without gestures", "popup/menu", None),
    Row("the pointer crosses into a sector: event to finished frame", "bench_ring",
        "ringFollows", "that window painted again", "plainWindowFollows/managed:0", FASTEST_MENU),
    Row("the pointer accepts a sector: event to the end of the gesture", "bench_ring", "ringFades",
        "the quarter of a second that the last frame stays", "plainWait", 1.02),
    *(Row(f"the ring's data is gathered from the fake host, {count:,} commands", "bench_gather",
          f"gather/{count}", "one pass over the same commands", f"onePass/{count}", 2.5)
      for count in (300, 1000, 10000, 100000)),
    *(Row(f"the ring's data is gathered from a real program's menus, {count:,} commands",
          "bench_hostgather", f"ringData/{count}", "one pass over the same actions",
          f"plainPass/{count}", 2.5)
      for count in (300, 1000, 10000, 100000)),
    Row("10,000 equal captions are numbered", "bench_hostgather", "equalCaptions/10000",
        "5,000 of them (twice the work)", "equalCaptions/5000", 2.6),
    Row("an update while gestures are off", "bench_tracker", "gesturesOff",
        "an empty virtual call", "emptyTracker", None),
    Row("an update while no gesture is on", "bench_tracker", "gesturesIdle",
        "an empty virtual call", "emptyTracker", None),
    Row("the pointer moves over a drawing, from the X server to the view: processor time",
        "bench_gesturehost", "pointerMoves/gestures:1", "without gestures", "pointerMoves/gestures:0",
        1.08),
    Row("of that, Qt's delivery inside the program", "bench_gesturehost",
        "moveInView/gestures:1", "without gestures", "moveInView/gestures:0", None),
    Row("Qt's delivery with the host's filter alone", "bench_pointerfilter",
        "moveInView/filter:1", "without it", "moveInView/filter:0", None),
    Row("code of ours is marked, so that a crash in it is noticed", "bench_pointerfilter", "markOwnCode",
        "one event of the program, without gestures", "otherEvent/filter:0", 0.1),
    Row("LibreCAD starts with gestures: until it shows the drawing", "start.py", "start/gestures:1",
        "without", "start/gestures:0", 1.03),
    Row("processor time of that start until it is idle", "start.py", "work/gestures:1",
        "without", "work/gestures:0", None),
    Row("memory of LibreCAD then", "start.py", "memory/gestures:1", "without", "memory/gestures:0",
        None, 4e6),
    Row("the window \"Mouse Gestures\" starts: until it is on the screen", "start_window.py",
        "window/settings", "a bare Qt window", "window/plain", 2.0),
    *(row for count in (250, 10000) for row in (
        Row(f"the dialog opens, {count:,} commands: until it is on the screen", "bench_dialog",
            f"openDialog/{count}", "a `QTableView` over a `QStandardItemModel`",
            f"openPlainView/{count}", 1.5),
        Row(f"the dialog opens, {count:,} commands: without a desktop to wait for", OFFSCREEN_DIALOG,
            f"openDialog/{count}", "the same", f"openPlainView/{count}", 2.0),
        Row(f"a key in the search field, {count:,} commands", "bench_dialog", f"typeInDialog/{count}",
            "a `QSortFilterProxyModel` with a fixed string", f"typeInPlainView/{count}", 1.5))),
    Row("the list is printed into a PDF, 250 commands", "bench_dialog", "printList/250",
        "the same cells in a `QTextTable`", "printPlainTable/250", None),
]

# Figures are nanoseconds or bytes.
SIZES = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9, "kB": 1024.0}


def measured(folder, program, quick):
    """Returns name -> median of every benchmark of the program."""
    program, _, platform_name = program.partition(" ")
    environment = dict(os.environ)
    if platform_name:
        environment["QT_QPA_PLATFORM"] = platform_name
    if program.endswith(".py"):
        command = [sys.executable, "-B", ROOT / "benchmarks" / program, "--build", folder]
        command += ["--rounds=2"] if quick else []
    else:
        command = [folder / "bin" / program, "--benchmark_format=json",
                   "--benchmark_enable_random_interleaving=true"]
        command += ["--benchmark_min_time=0.05"] if quick else [f"--benchmark_repetitions={REPETITIONS}"]
    result = subprocess.run(command, stdout=subprocess.PIPE, text=True, check=True, env=environment)
    runs = {}
    for run in json.loads(result.stdout)["benchmarks"]:
        if run.get("error_occurred"):
            sys.exit(f"bench: {program}: {run['run_name']}: {run['error_message']}")
        if run["run_type"] != "iteration":
            continue
        value = run.get("median_us", run.get("quartile_us"))
        value = value * 1e3 if value is not None else run["real_time"] * SIZES[run["time_unit"]]
        name = re.sub(r"/(iterations:\d+|manual_time|real_time|min_time:[\d.]+|repeats:\d+)", "", run["run_name"])
        runs.setdefault(name, []).append(value)
    return {name: statistics.median(values) for name, values in runs.items()}


def amount(row, value):
    if row.surplus is not None:
        return f"{value / 1e6:.1f} MB"
    for unit, size in (("ns", 1.0), ("µs", 1e3)):
        if value < 1000 * size:
            return f"{value / size:.3g} {unit}"
    return f"{value / 1e6:.3g} ms"


def machine():
    text = Path("/proc/cpuinfo").read_text(encoding="utf-8")
    model = re.search(r"model name\s*: (.*)", text)
    cores = len(re.findall(r"^processor", text, re.M))
    return f"{model[1] if model else platform.machine()}, {cores} cores"


def table(rows, figures):
    """Returns the lines of the table and whether every ratio keeps its bound."""
    lines = ["| what | takes | baseline | ratio | at most |", "|---|---|---|---|---|"]
    is_fine = True
    for row in rows:
        value, baseline = figures[row.program][row.name], figures[row.program][row.baseline]
        ratio = value / baseline
        is_over = (row.bound is not None and ratio > row.bound) or (
            row.surplus is not None and value - baseline > row.surplus)
        is_fine &= not is_over
        bound = f"{row.bound:.3g}" if row.bound is not None else \
            f"+ {row.surplus / 1e6:.0f} MB" if row.surplus is not None else ""
        bound += " **over**" if is_over else ""
        lines.append(f"| {row.title} | {amount(row, value)} | {amount(row, baseline)}, {row.baseline_title} "
                     f"| {ratio:.2f} | {bound} |")
    return lines, is_fine


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--build", type=Path, required=True)
    parser.add_argument("--write", action="store_true")
    parser.add_argument("--quick", action="store_true")
    options = parser.parse_args()

    figures = {}
    for program in dict.fromkeys(row.program for row in ROWS):
        print(f"{program}...", file=sys.stderr, flush=True)
        figures[program] = measured(options.build, program, options.quick)
    lines, is_fine = table(ROWS, figures)
    lines = [f"Measured on {machine()}.", "", *lines]
    print("\n".join(lines))
    if options.write:
        before, rest = PAGE.read_text(encoding="utf-8").split(BEGIN)
        text = before + "\n".join([BEGIN, "", *lines, "", END]) + rest.split(END)[1]
        PAGE.write_text(text, encoding="utf-8")
    sys.exit(0 if is_fine else 1)


if __name__ == "__main__":
    main()
