#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""Kills programs with SIGKILL at random moments of a save, and looks at what is left.

    test_saves.py --build build/qt5 [--rounds 200] [--keep]

Three kinds of programs save: mouse-gestures once in each round, a program that imports two files of
bindings in turn, and a program with gestures in which somebody changes the dialog and presses OK.
After each kill the settings must be the old ones or the new ones, whole. Another program must be able
to save at once, and leave no unfinished file behind. Prints the figures, with --keep also into
BUILD/figures. Exits 1 if something was lost or left.
"""

import argparse
import json
import os
import random
import subprocess
import sys
import tempfile
import time
from collections import Counter
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

LOCK_PATIENCE = 1.0  # seconds that a program waits for the lock of another one
PATIENCE = 60  # seconds that a program may take at all
AT_ONCE = 4  # rounds side by side
EIGHT = [f"8{number}" for number in range(1, 9)]


class Lost(Exception):
    """What is left is neither old nor new, or cannot be written."""


class Home:
    """The folders of one round, and the programs in it."""

    def __init__(self, folder, options):
        self.folder = Path(folder)
        self._options = options
        self.settings = self.folder / "gesturewidget" / "guest.ini"
        self._environment = dict(
            os.environ, HOME=folder, XDG_CONFIG_HOME=folder, XDG_RUNTIME_DIR=folder,
            QT_QPA_PLATFORM="offscreen", QT_LOGGING_RULES="*=false", LANG="C.UTF-8", LANGUAGE="")

    def launcher(self, *arguments):
        return [str(self._options.launcher), *arguments]

    def start(self, command, **more):
        return subprocess.Popen(command, env=dict(self._environment, **more),
                                stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                stderr=subprocess.PIPE, text=True)

    def run(self, command):
        """Runs a program that must succeed. Returns the seconds that it took."""
        begun = time.monotonic()
        process = self.start(command)
        _, errors = process.communicate(timeout=PATIENCE)
        if process.returncode:
            raise Lost(f"{' '.join(command)}: status {process.returncode}: {errors}")
        return time.monotonic() - begun

    def bind(self, direction, command):
        return self.run(self.launcher("--bind", str(self._options.guest), direction, command))

    def values(self):
        """The values in the settings file."""
        lines = self.settings.read_text(encoding="utf-8").splitlines()
        return dict(line.split("=", 1) for line in lines if "=" in line)

    def check(self, states):
        """Returns the index of the state that the settings have, and the values are whole."""
        values = self.values()
        for place, state in enumerate(states):
            if all(values.get(key) == value for key, value in state.items()):
                break
        else:
            raise Lost(f"neither old nor new:\n{self.settings.read_text()}")
        return place

    def save_after(self):
        """Another program saves. Returns the seconds that it took."""
        before = self.values()
        key = "81" if before.get("ActiveScheme", "8") == "8" else "41"
        command = "ID_TRIM" if before.get(key) != "ID_TRIM" else "ID_COPY"
        seconds = self.bind("up", command)
        after = self.values()
        if after.get(key) != command or not before.keys() <= after.keys():
            raise Lost(f"the save after it lost something:\n{before}\n{after}")
        return seconds

    def litter(self):
        """The unfinished files that are there."""
        return [path.name for path in self.settings.parent.iterdir()
                if path.name.startswith("guest.ini.")
                and path.suffix not in (".bak", ".lock", ".before-import")]


def kill_after(process, seconds):
    """Kills the process after that time, if it still runs then. Returns whether it did."""
    try:
        process.wait(timeout=max(0.0, seconds))
    except subprocess.TimeoutExpired:
        process.kill()
    process.communicate()
    return process.returncode == -9


def wait_for(process, line):
    for text in process.stdout:
        if text.strip() == line:
            return
    raise Lost(f"waited for '{line}'; status {process.wait()}: {process.stderr.read()}")


def by_launcher(home, chance):
    """One save by mouse-gestures --bind, which moves a command from one direction to another."""
    undisturbed = home.bind("right", "ID_DTEXT")
    old = home.values()
    new = {**old, "87": "ID_SAVE", "85": ""}
    process = home.start(home.launcher("--bind", str(home._options.guest), "right", "ID_SAVE"))
    was_killed = kill_after(process, chance.uniform(0, 1.1) * undisturbed)
    return was_killed, home.check([old, new])


def by_tasks(home, chance):
    """Imports, each of which replaces all bindings."""
    home.bind("right", "ID_DTEXT")
    home.run(home.launcher("--export", str(home._options.guest), str(home.folder / "a.json")))
    text = json.loads((home.folder / "a.json").read_text())
    bindings = text["eight"]
    names = list(bindings)
    text["eight"] = dict(zip(names, [bindings[name] for name in names[1:] + names[:1]], strict=True))
    (home.folder / "b.json").write_text(json.dumps(text))
    states = []
    for name in ("a.json", "b.json"):
        home.run(home.launcher("--import", str(home._options.guest), str(home.folder / name)))
        states.append({key: home.values()[key] for key in EIGHT})
    process = home.start([str(home._options.tasks), str(home.settings), str(home.folder / "a.json"),
                          str(home.folder / "b.json")])
    wait_for(process, "ready")
    was_killed = kill_after(process, chance.uniform(0, 0.3))
    return was_killed, home.check(states)


def by_dialog(home, chance):
    """The dialog's OK, which changes whether gestures are on and how many directions there are."""
    process = home.start([str(home._options.guest), "save-for-ever"],
                         QT_QPA_GENERIC_PLUGINS="mousegestures",
                         QT_PLUGIN_PATH=str(home._options.plugins))
    # The first save writes all bindings.
    wait_for(process, "saved")
    wait_for(process, "saved")
    bindings = {key: value for key, value in home.values().items() if key in EIGHT}
    if len(bindings) != len(EIGHT):
        raise Lost(f"there are not all bindings: {home.values()}")
    was_killed = kill_after(process, chance.uniform(0, 0.3))
    return was_killed, home.check([
        {**bindings, "EnableMouseGesture": "0", "ActiveScheme": "8"},
        {**bindings, "EnableMouseGesture": "1", "ActiveScheme": "4"}])


KINDS = {"mouse-gestures --bind": by_launcher, "settings tasks": by_tasks, "the dialog's OK": by_dialog}


def play(kind, number, options):
    """One round. Returns whether it was killed, the state that is left, the seconds that the next
    save took, and the numbers of unfinished files before and after that save."""
    with tempfile.TemporaryDirectory() as folder:
        home = Home(folder, options)
        was_killed, state = KINDS[kind](home, random.Random(options.seed * 100003 + number))
        unfinished = len(home.litter())
        seconds = home.save_after()
        remaining = home.litter()
        # The one after that has no lock to wait for.
        if seconds - home.save_after() > LOCK_PATIENCE:
            raise Lost(f"the next save took {seconds:.2f} s")
        return was_killed, state, seconds, unfinished, len(remaining)


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--build", type=Path, required=True, help="the build folder")
    parser.add_argument("--rounds", type=int, default=200, help="for each kind (default: 200)")
    parser.add_argument("--seed", type=int, default=1, help="chooses the moments (default: 1)")
    parser.add_argument("--keep", action="store_true", help="keep the figures for scripts/figures")
    options = parser.parse_args()
    build = options.build.resolve()
    options.launcher = build / "bin" / "mouse-gestures"
    options.tasks = build / "bin" / "save_settings"
    options.guest = build / "tests" / "host" / "inject" / "guest" / "guest"
    options.plugins = build / "plugins"
    figures = []
    failed = False
    for kind in KINDS:
        counts = Counter()
        slowest = 0.0
        with ThreadPoolExecutor(AT_ONCE) as pool:
            rounds = [pool.submit(play, kind, number, options) for number in range(options.rounds)]
            for number, round_ in enumerate(rounds):
                try:
                    was_killed, state, seconds, unfinished, remaining = round_.result()
                except Lost as lost:
                    failed = True
                    counts["lost"] += 1
                    print(f"{kind}, round {number}: {lost}", file=sys.stderr)
                    continue
                counts["killed"] += was_killed
                counts["old" if state == 0 else "new"] += 1
                counts["unfinished"] += unfinished
                counts["remaining"] += remaining
                slowest = max(slowest, seconds)
        figures.append(
            f"{kind}: {options.rounds} rounds, {counts['killed']} killed: {counts['old']} old, "
            f"{counts['new']} new, {counts['lost']} lost; next save within {slowest:.2f} s; "
            f"{counts['unfinished']} unfinished files left, "
            f"{counts['remaining']} after the next save")
        print(figures[-1], flush=True)
        if counts["remaining"] > 0:
            failed = True
            print(f"{kind}: the next save has not removed all unfinished files", file=sys.stderr)
        if counts["killed"] == 0:
            failed = True
            print(f"{kind}: no save was cut off", file=sys.stderr)
    if options.keep:
        (build / "figures").mkdir(exist_ok=True)
        (build / "figures" / "saves.txt").write_text("".join(line + "\n" for line in figures))
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
