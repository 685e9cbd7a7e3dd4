#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""Tests which changes scripts/mutants makes, in small trees, and when it fails."""

import contextlib
import importlib.machinery
import importlib.util
import io
import os
import shutil
import subprocess
import tempfile
import time
import unittest
from pathlib import Path
from unittest import mock

ROOT = Path(__file__).resolve().parents[2]


def loaded(script):
    loader = importlib.machinery.SourceFileLoader("mutants", str(script))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader("mutants", loader))
    with mock.patch.dict("sys.modules", mutants=module):
        loader.exec_module(module)
    return module


class Mutants(unittest.TestCase):
    def made_of(self, body, equivalent=""):
        """The mutants of a function, as pairs of the line before and after."""
        with tempfile.TemporaryDirectory() as folder:
            root = Path(folder)
            (root / "scripts").mkdir()
            (root / "bindings").mkdir()
            shutil.copy(ROOT / "scripts" / "mutants", root / "scripts")
            lines = "".join(f"    {line}\n" for line in body.splitlines())
            (root / "bindings" / "A.cpp").write_text(f"int f(int a, int b)\n{{\n{lines}}}\n")
            (root / "scripts" / "equivalent-mutants.txt").write_text(equivalent)
            printed = subprocess.run([root / "scripts" / "mutants", "--print", "--count", "0", "bindings"],
                                     capture_output=True, check=True, text=True).stdout
        made = []
        for line in printed.splitlines():
            place, change = line.split(": ", 1)
            self.assertEqual(place.split(":")[0], "bindings/A.cpp")
            old, new = change.strip("`").split("` -> `")
            made.append((old, new))
        return made

    def changed(self, line):
        return sorted(new for old, new in self.made_of(line) if old == line)

    def test_conditions_and_comparisons(self):
        self.assertEqual(self.changed("if (a < b)"),
                         ["if (!(a < b))", "if (a <= b)", "if (a > b)"])
        self.assertEqual(self.changed("while (a != b && b)"),
                         ["while (!(a != b && b))", "while (a != b || b)", "while (a == b && b)"])

    def test_a_condition_that_declares_is_not_negated(self):
        self.assertEqual(self.changed("if (int *found = find(a))"), [])

    def test_numbers_and_operators(self):
        self.assertEqual(self.changed("return a + 2;"),
                         ["return a + 1;", "return a + 3;", "return a - 2;"])
        self.assertEqual(self.changed("return x2 + 1.5F * b;"), ["return x2 + 1.5F / b;",
                                                                 "return x2 - 1.5F * b;"])
        self.assertEqual(self.changed("return 0;"), ["return 1;"])
        self.assertEqual(self.changed("return 10'000;"), ["return 10001;", "return 9999;"])

    def test_truth(self):
        self.assertEqual(self.changed("return true;"), ["return false;"])
        self.assertEqual(self.changed("return !a;"), ["return a;"])

    def test_statements(self):
        self.assertEqual(self.changed("call(a);"), [";"])
        self.assertEqual(self.changed("m_value = a;"), [";"])
        self.assertEqual(self.changed("return;"), [";"])
        # Without them, nothing would compile.
        self.assertEqual(self.changed("int value = a;"), [])
        self.assertEqual(self.changed("const QString text(a);"), [])

    def test_a_statement_of_several_lines(self):
        self.assertEqual(self.made_of("call(a,\n     [b] { use(b); });"), [("call(a, [b] { use(b); });", ";")])

    def test_what_is_no_expression_stays(self):
        for line in ("// if (a < b) return 1;", "/* a == 1 */", "Q_ASSERT(a == 1);", "QVector<int> list;",
                     "A(const A &) = delete;",
                     'say = "a == 1";', "#define A 1"):
            self.assertEqual([new for new in self.changed(line) if new != ";"], [], line)

    def test_equivalent_ones_are_left_out(self):
        block = "bindings/A.cpp\nif (a < b)\n-> if (a <= b)\nThey are never equal.\n"
        made = self.made_of("if (a < b)\n    return;", "# A comment.\n\n" + block)
        self.assertEqual([new for old, new in made if old.startswith("if")],
                         ["if (a > b)", "if (!(a < b))"])

    def test_of_equal_lines_the_one_before_tells(self):
        block = "bindings/A.cpp\ncall(a);\nreturn 0;\n-> return 1;\nIt is the same.\n"
        made = self.made_of("return 0;\ncall(a);\nreturn 0;\nother(a);\nreturn 0;", block)
        self.assertEqual([new for old, new in made if old == "return 0;"], ["return 1;"] * 2)

    def test_an_equivalent_one_needs_a_reason(self):
        with self.assertRaises(subprocess.CalledProcessError):
            self.made_of("return 0;", "bindings/A.cpp\nreturn 0;\n-> return 1;\n")


class Verdict(unittest.TestCase):
    """Runs the script with a stand-in for the building and testing."""

    def run_with(self, *results, report="", more=0, options=()):
        """The status and the last line printed, if the mutants of a folder end with these results. So many
        more mutants are not judged."""
        with tempfile.TemporaryDirectory() as folder:
            root = Path(folder)
            (root / "scripts").mkdir()
            (root / "bindings").mkdir()
            shutil.copy(ROOT / "scripts" / "mutants", root / "scripts")
            lines = "    return 0;\n" * (len(results) + more)  # a mutant each: 1
            (root / "bindings" / "A.cpp").write_text(f"int f()\n{{\n{lines}}}\n")
            module = loaded(root / "scripts" / "mutants")
            bench = mock.Mock()
            bench.return_value.judge.side_effect = results
            printed = io.StringIO()
            (root / "build").mkdir()
            (root / "build" / "report.txt").write_text(report)
            arguments = ["mutants", "--build", str(root / "build"), "--count", "0", "bindings", *options]
            with mock.patch.object(module, "Bench", bench), mock.patch("sys.argv", arguments), \
                    contextlib.redirect_stdout(printed):
                status = module.main()
        return status, printed.getvalue().splitlines()[-1]

    def test_97_per_cent_is_enough(self):
        status, line = self.run_with(*["killed by tst_a"] * 97, *["survived"] * 3)
        self.assertEqual(status, 0)
        self.assertTrue(line.startswith("bindings: 97 of 100 killed, 97.0 % of at least 97 %;"), line)

    def test_less_fails(self):
        status, line = self.run_with(*["killed by tst_a"] * 96, *["survived"] * 3)
        self.assertEqual(status, 1)
        self.assertTrue(line.startswith("bindings: 96 of 99 killed, 97.0 % of at least 97 %;"), line)

    def test_what_does_not_compile_does_not_count(self):
        status, line = self.run_with("killed by tst_a", *["does not compile"] * 9)
        self.assertEqual(status, 0)
        self.assertTrue(line.startswith("bindings: 1 of 1 killed, 100.0 % of at least 97 %; 9 do not"), line)

    # The function of run_with() begins in line 3.
    EARLIER = ("bindings/A.cpp:3: `return 0;` -> `return 1;`  killed by tst_a\n"
               "bindings/A.cpp:4: `return 0;` -> `return 1;`  killed by tst_b\n")

    def test_a_run_goes_on_where_the_last_one_ended(self):
        status, line = self.run_with("survived", report=self.EARLIER, more=2, options=["--continue"])
        self.assertEqual(status, 1)
        self.assertTrue(line.startswith("bindings: 2 of 3 killed, 66.7 %"), line)

    def test_survivors_are_tried_again(self):
        report = self.EARLIER.replace("killed by tst_b", "survived")
        status, line = self.run_with("killed by tst_c", report=report, more=1, options=["--continue"])
        self.assertEqual(status, 0)
        self.assertTrue(line.startswith("bindings: 2 of 2 killed, 100.0 %"), line)

    def test_a_new_run_forgets_the_last_one(self):
        status, line = self.run_with("survived", "survived", report=self.EARLIER)
        self.assertEqual(status, 1)
        self.assertTrue(line.startswith("bindings: 0 of 2 killed, 0.0 %"), line)

    def test_what_was_not_tried_is_said_and_fails(self):
        report = self.EARLIER + self.EARLIER.replace("A.cpp", "Gone.cpp")
        status, line = self.run_with(report=report, more=4, options=["--continue", "--minutes", "-1"])
        self.assertEqual(status, 1)
        self.assertTrue(line.startswith("bindings: 2 of 2 killed, 100.0 %"), line)
        self.assertTrue(line.endswith("; 2 not tried yet"), line)

    def test_a_survivor_that_is_not_tried_again_counts(self):
        survivor = "bindings/A.cpp:3: `return 0;` -> `return 1;`  survived\n"
        status, line = self.run_with(report=self.EARLIER + survivor, more=2,
                                     options=["--continue", "--minutes", "-1"])
        self.assertEqual(status, 1)
        self.assertTrue(line.startswith("bindings: 1 of 2 killed, 50.0 %"), line)

    def test_mutants_side_by_side_all_count(self):
        status, line = self.run_with(*["killed by tst_a"] * 97, *["survived"] * 3, options=["--jobs", "4"])
        self.assertEqual(status, 0)
        self.assertTrue(line.startswith("bindings: 97 of 100 killed, 97.0 %"), line)


class Killing(unittest.TestCase):
    """Runs tests with a stand-in for CTest."""

    def bench(self, script):
        folder = Path(self.enterContext(tempfile.TemporaryDirectory()))
        ctest = folder / "ctest"
        ctest.write_text(f"#!/bin/sh\n{script}\n")
        ctest.chmod(0o755)
        self.enterContext(mock.patch.dict(os.environ, PATH=f"{folder}:{os.environ['PATH']}"))
        module = loaded(ROOT / "scripts" / "mutants")
        bench = module.Bench.__new__(module.Bench)
        bench.build = folder
        bench.binaries = folder
        bench._seconds = {"tst_quick": 0.1, "tst_pointerfilter": 9.0, "tst_slow": 5.0, "tst_input": 9.0}
        bench._sources = dict.fromkeys(bench._seconds, "")
        bench._sources["tst_input"] = '#include "host/input/PointerFilter.h"\n'
        bench._experience = module.Experience()
        bench.compile = mock.Mock(return_value=True)
        self.mutant = module.Mutant("host/input/PointerFilter.cpp", 1, "return 0;", "return 1;")
        return bench

    def test_a_test_passes_or_fails(self):
        self.assertTrue(self.bench("echo '1: PASS   : a()'")._passes("tst_quick", 60))
        self.assertFalse(self.bench("exit 8")._passes("tst_quick", 60))

    def test_memory_holds_nonsense(self):
        self.assertTrue(self.bench('test "$MALLOC_PERTURB_" = 85')._passes("tst_quick", 60))

    def test_the_first_failure_is_enough(self):
        begun = time.monotonic()
        self.assertFalse(self.bench("echo '1: FAIL!  : a()'; sleep 600")._passes("tst_quick", 600))
        self.assertLess(time.monotonic() - begun, 300)

    def test_a_test_that_takes_too_long_fails(self):
        self.assertFalse(self.bench("sleep 600")._passes("tst_quick", 0.3))

    def test_the_test_of_the_file_comes_first(self):
        bench = self.bench("exit 0")
        self.assertIsNone(bench.killer(list(bench._seconds), self.mutant))
        self.assertEqual([call.args[0] for call in bench.compile.call_args_list],
                         [["tst_pointerfilter"], ["tst_quick"], ["tst_input"], ["tst_slow"]])

    def test_then_the_one_that_killed_most_mutants_of_the_file_for_its_time(self):
        bench = self.bench("test $4 = '^tst_pointerfilter$' || test $4 = '^tst_quick$'")
        # Only the times below count, however slow this machine is.
        self.enterContext(mock.patch("time.monotonic", return_value=0.0))
        self.assertEqual(bench.killer(list(bench._seconds), self.mutant), "tst_input")
        for _ in range(5):
            bench._experience.add("host/input/PointerFilter.cpp", "tst_slow", 1, True)
            bench._experience.add("host/input/PointerFilter.cpp", "tst_input", 20, True)
        bench.compile.reset_mock()
        self.assertEqual(bench.killer(list(bench._seconds), self.mutant), "tst_slow")
        self.assertEqual([call.args[0] for call in bench.compile.call_args_list],
                         [["tst_pointerfilter"], ["tst_quick"], ["tst_slow"]])

    def test_what_does_not_compile_is_not_run(self):
        bench = self.bench("exit 8")
        self.assertEqual(bench.killer(list(bench._seconds), self.mutant), "tst_pointerfilter")
        bench.compile.return_value = False
        self.assertEqual(bench.killer(list(bench._seconds), self.mutant), "")


if __name__ == "__main__":
    unittest.main()
