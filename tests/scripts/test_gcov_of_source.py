#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""Tests which branches scripts/gcov-of-source leaves out, in small programs that it compiles."""

import subprocess
import tempfile
import unittest
from pathlib import Path

SCRIPT = Path(__file__).resolve().parents[2] / "scripts" / "gcov-of-source"
NAMES = """#include <string>
std::string name() { return "a"; }
std::string wanted() { return "a"; }
"""


class GcovOfSource(unittest.TestCase):
    def branches(self, source, gcov):
        """The counts of the branches in the line with "here", as printed. None means never reached."""
        with tempfile.TemporaryDirectory() as folder:
            (Path(folder) / "a.cpp").write_text(NAMES + source)

            def run(*command):
                subprocess.run(command, cwd=folder, check=True, stdout=subprocess.DEVNULL)

            run("c++", "-O0", "-std=c++17", "--coverage", "-c", "a.cpp", "-o", "a.o")
            run("c++", "--coverage", "a.o", "-o", "a")
            run("./a")
            run(gcov, "--branch-counts", "--branch-probabilities", "--demangled-names", "a.gcda")
            report = (Path(folder) / "a.cpp.gcov").read_text().splitlines()
        counts = []
        is_here = False
        for line in report:
            if line.split(":")[1:2] and line.split(":")[1].strip().isdigit():
                is_here = "// here" in line
            elif is_here and line.startswith("branch "):
                counts.append(None if "never executed" in line else int(line.split()[3]))
        return counts

    def test_calls_that_may_throw_and_what_runs_after_one_has(self):
        source = """bool both(bool isNamed)
{
    return isNamed && name() == wanted(); // here
}
int main() { return both(true) && both(false); }
"""
        self.assertEqual(len(self.branches(source, "gcov")), 16)
        # isNamed, ==, and the flag of each text: does it exist?
        self.assertEqual(self.branches(source, SCRIPT), [1, 1, 1, 0, 1, 1, 1, 1])

    def test_conditions_that_never_run_stay(self):
        source = """int length(int limit)
{
    if (limit > 5)
        return name() == wanted() ? 1 : 2; // here
    return 0;
}
int main() { return length(0); }
"""
        self.assertEqual(self.branches(source, SCRIPT), [None, None])

    def test_a_handler_stays(self):
        source = """int main(int count, char **)
{
    try {
        return name() == wanted() ? 0 : 1;
    } catch (const std::bad_alloc &) {
        return count > 1 ? 2 : 3; // here
    }
}
"""
        self.assertEqual(self.branches(source, SCRIPT), [None, None])

    def test_each_function_of_a_template(self):
        source = """template <class T> bool both(T isNamed)
{
    return isNamed && name() == wanted(); // here
}

int main() { return both(true) && both(0); }
"""
        self.assertEqual(self.branches(source, SCRIPT),
                         [0, 1, None, None, 0, 1, 0, 1, 1, 0, 1, 0, 1, 0, 1, 0])


if __name__ == "__main__":
    unittest.main()
