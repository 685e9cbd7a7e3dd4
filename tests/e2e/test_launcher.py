#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""What mouse-gestures reports and prints about a real program, which runs without a screen."""

import json
import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

from harness.programs import EIGHT, PROGRAMS
from harness.programtest import option_parser, run_tests

ROOT = Path(__file__).resolve().parents[2]
PROGRAM = PROGRAMS["librecad"]
DRAWING = ROOT / "samples" / "bracket.dxf"
# The default command of each direction, in the order of EIGHT.
FIRST = ("ID_ZOOM_BOUNDS", "ID_OFFSET", "ID_OPEN", "ID_COPY", "ID_SAVE", "ID_DTEXT", "ID_LINE",
         "ID_TRIM")


class LauncherTest(unittest.TestCase):
    build = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.folder.chmod(0o700)
        for name, text in PROGRAM.configuration.items():
            path = self.folder / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text)

    def run_launcher(self, *arguments):
        environment = {name: value for name, value in os.environ.items()
                       if name not in ("DISPLAY", "WAYLAND_DISPLAY", "GESTUREWIDGET_PROFILES")}
        environment.update(HOME=str(self.folder), XDG_CONFIG_HOME=str(self.folder),
                           XDG_RUNTIME_DIR=str(self.folder), QT_QPA_PLATFORM="offscreen")
        result = subprocess.run([self.build / "bin" / "mouse-gestures", *map(str, arguments)],
                                stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                stderr=subprocess.PIPE, text=True, env=environment, timeout=150,
                                check=False)
        self.assertEqual(result.returncode, 0, result.stderr)
        return result

    def explain(self, program):
        result = self.run_launcher("--explain", program, DRAWING)
        return json.loads(result.stdout), result.stderr

    def test_guesses(self):
        """For a copy without a profile, the guesses equal the profile of the original."""
        unknown = self.folder / "unknown-cad"
        shutil.copy(shutil.which(PROGRAM.executable), unknown)
        guessed, reasons = self.explain(unknown)
        self.assertEqual(guessed["program"], unknown.name)
        self.assertEqual(guessed["viewClasses"], [PROGRAM.view])
        self.assertEqual(guessed["wellKnownCommands"],
                         {FIRST[i]: PROGRAM.eight[EIGHT[i]] for i in range(len(EIGHT))})
        self.assertIn(f"view: {PROGRAM.view}", reasons)
        self.assertIn("since shortcut \"Ctrl+O\"", reasons)

        # The output, saved as it is, becomes the program's profile.
        profile = self.folder / "gesturewidget" / "profiles" / f"{unknown.name}.json"
        profile.parent.mkdir(parents=True, exist_ok=True)
        profile.write_text(json.dumps(guessed))
        kept, reasons = self.explain(unknown)
        self.assertEqual({**kept, "why": None}, {**guessed, "why": None})
        self.assertIn(f"since the profile names its class {PROGRAM.view}", reasons)

    def test_profile(self):
        """Everything that the installed profile names exists in the program."""
        installed = json.loads((ROOT / "host" / "profiles" / f"{PROGRAM.name}.json").read_text())
        found, reasons = self.explain(PROGRAM.executable)
        self.assertEqual({**found, "why": None}, {**installed, "why": None})
        self.assertNotIn("none", reasons)

    def test_commands(self):
        """After the first run, commands can be bound by their captions, and are printed."""
        self.explain(PROGRAM.executable)
        listed = self.run_launcher("--list-commands", PROGRAM.name, "--json").stdout
        identifiers = {command["identifier"] for command in json.loads(listed)["commands"]}
        self.assertTrue(identifiers.issuperset(FIRST), listed[:1000])
        self.run_launcher("--bind", PROGRAM.name, "up", "zoom in")
        self.assertRegex(self.run_launcher("--bindings", PROGRAM.name).stdout,
                         r"\n  up +ZoomIn +Zoom In\n")
        sheet = self.folder / "sheet.pdf"
        self.run_launcher("--print", PROGRAM.name, sheet)
        text = subprocess.run(["pdftotext", "-layout", sheet, "-"], stdout=subprocess.PIPE, text=True,
                              check=True).stdout
        self.assertIn("Mouse gestures in LibreCAD", text)
        self.assertEqual(text.casefold().count("zoom in"), 2, text)  # in the ring and in the table


if __name__ == "__main__":
    run_tests(LauncherTest, option_parser(__doc__).parse_args())
