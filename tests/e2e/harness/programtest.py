# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""What the test scripts share: a session for each test, and the options of the scripts."""

import argparse
import sys
import unittest
from pathlib import Path

from .session import Session


class ProgramTest(unittest.TestCase):
    """A test that starts a program anew, in folders of its own below BUILD/e2e/`folder`."""

    build = None
    folder = ""
    program = None
    launcher = None

    def session(self, name=None, program=None, **how):
        """`name` tells the sessions of one test apart; it is the test's name if not given."""
        folder = self.build / "e2e" / self.folder / (name or self._testMethodName)
        return Session(program or self.program, self.build, folder, launcher=self.launcher, **how)

    def end(self, session):
        """Ends the program as a person does. It must exit with 0 and leave no core file."""
        self.assertEqual(session.quit(), 0)
        self.assertEqual(session.cores(), [])


def option_parser(description):
    parser = argparse.ArgumentParser(description=description)
    parser.add_argument("--build", type=Path, required=True, help="the build folder")
    parser.add_argument("tests", nargs="*", help="names without \"test_\"; all if none is given")
    return parser


def run_tests(case, options):
    """Runs the tests that the options name, and ends the script."""
    case.build = options.build.resolve()
    names = [f"{case.__name__}.test_{name}" for name in options.tests] or None
    unittest.main(module=case.__module__, argv=[sys.argv[0]], defaultTest=names, verbosity=2)
