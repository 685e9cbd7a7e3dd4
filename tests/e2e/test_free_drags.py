#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""What free-drags finds out about the sketchpad, whose middle button moves the drawing.

    test_free_drags.py --build DIR

The sketchpad's view is a Canvas with the object name "canvas".
"""

import argparse
import os
import subprocess
import sys
import unittest
from pathlib import Path

HERE = Path(__file__).resolve().parent
SAMPLE = HERE.parents[1] / "samples" / "bracket.dxf"

options = None


def free_drags(*arguments):
    """Runs it on the sketchpad, with the middle button alone."""
    return subprocess.run(
        [sys.executable, "-B", str(HERE / "free-drags"), "--build", str(options.build), "--only", "middle",
         *arguments, os.path.relpath(options.build / "bin" / "sketchpad"), str(SAMPLE)],
        stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, check=False)


class FreeDragsTest(unittest.TestCase):
    def test_the_view_by_its_class(self):
        self.assert_moves(free_drags("--view", "Canvas"))

    def test_the_view_by_its_name(self):
        """The class alone would not do, since the window and its toolbars are of it too."""
        self.assert_moves(free_drags("--view", "QWidget", "--name", "canvas"))

    def test_a_class_of_all_widgets_needs_a_name(self):
        result = free_drags("--view", "QWidget")
        self.assertEqual(result.returncode, 1)
        self.assertIn("--name", result.stderr)

    def assert_moves(self, result):
        self.assertEqual(result.returncode, 0, result.stderr)
        found = {line.split()[0]: line.split()[1] for line in result.stdout.splitlines()}
        self.assertEqual(found["middle"], "changes")
        self.assertIn("trigger for the profile: none is free\n", result.stdout)


if __name__ == "__main__":
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--build", type=Path, required=True)
    options, rest = parser.parse_known_args()
    options.build = options.build.resolve()
    unittest.main(argv=[sys.argv[0], "-v", *rest])
