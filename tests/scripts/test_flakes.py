#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""Tests scripts/flakes with a build folder of small tests."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SCRIPT = Path(__file__).resolve().parents[2] / "scripts" / "flakes"


class Flakes(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.build = Path(folder.name)

    def offer(self, room="", **commands):
        """Makes CTest know these tests, of a room or of none: a shell command for each name."""
        folder = self.build / "tests" / room if room else self.build
        folder.mkdir(parents=True, exist_ok=True)
        if room:
            with open(self.build / "CTestTestfile.cmake", "a", encoding="utf-8") as file:
                file.write(f'subdirs("tests/{room}")\n')
        (folder / "CTestTestfile.cmake").write_text(
            "".join(f'add_test({name} "/bin/sh" "-c" "{command}")\n'
                    f"set_tests_properties({name} PROPERTIES SKIP_RETURN_CODE 77)\n"
                    for name, command in commands.items()), encoding="utf-8")

    def flakes(self, *arguments):
        """Returns the exit status and the lines that the script printed."""
        result = subprocess.run([SCRIPT, "--build", self.build, "--times", "2", *arguments],
                                stdout=subprocess.PIPE, check=False, text=True)
        return result.returncode, result.stdout.splitlines()

    def runs(self, name):
        file = self.build / name
        return len(file.read_text(encoding="utf-8").splitlines()) if file.exists() else 0

    def test_runs_each_test_in_both_states(self):
        self.offer(good=f"echo x >>{self.build}/good.runs", other=f"echo x >>{self.build}/other.runs")
        status, lines = self.flakes("--jobs", "2")
        self.assertEqual(status, 0)
        self.assertEqual((self.runs("good.runs"), self.runs("other.runs")), (4, 4))
        self.assertEqual(lines[-1], "others: 2 of 2 tests 2 times quiet, 2 of them 2 times beside 4 busy loops: "
                                    "0 of 8 runs failed")

    def test_counts_failures_and_keeps_their_output(self):
        self.offer(good="true", bad="echo reason; false")
        status, lines = self.flakes()
        self.assertEqual(status, 1)
        self.assertEqual(lines[-2], "others: 2 of 2 tests 2 times quiet, 2 of them 2 times beside 4 busy "
                                    "loops: 4 of 8 runs failed")
        self.assertEqual(lines[-1], f"see {self.build / 'flakes'}")
        self.assertIn("reason", (self.build / "flakes" / "bad-busy-2.log").read_text(encoding="utf-8"))

    def test_skipped_test_counts_as_failure(self):
        self.offer(skipped="exit 77")
        status, lines = self.flakes()
        self.assertEqual(status, 1)
        self.assertIn("4 of 4 runs failed", lines[-2])

    def test_begins_no_run_after_the_time(self):
        self.offer(good=f"echo x >>{self.build}/good.runs")
        _, lines = self.flakes("--minutes", "0.000001")
        self.assertEqual(lines[-1], "others: 0 of 1 tests 2 times quiet, 0 of them 2 times beside 4 busy loops: "
                                    "0 of 0 runs failed")
        self.assertEqual(self.runs("good.runs"), 0)

    def test_goes_on_with_what_is_missing(self):
        self.offer(good=f"echo x >>{self.build}/good.runs", other=f"echo x >>{self.build}/other.runs")
        self.flakes("good")
        status, lines = self.flakes("--continue")
        self.assertEqual(status, 0)
        self.assertTrue(lines[-1].startswith("others: 2 of 2 tests 2 times quiet, 2 of them"), lines)
        self.assertEqual((self.runs("good.runs"), self.runs("other.runs")), (4, 4))

    def test_goes_on_in_the_middle_of_a_test(self):
        self.offer(good=f"echo x >>{self.build}/good.runs")
        self.flakes("--times", "1")
        self.flakes("--continue", "--times", "3")
        self.assertEqual(self.runs("good.runs"), 6)

    def test_a_test_that_changed_begins_anew(self):
        script = self.build / "good.py"
        runs = self.build / "good.runs"
        results = self.build / "kept.json"
        (self.build / "CTestTestfile.cmake").write_text(
            f'add_test(good "{sys.executable}" "-B" "{script}")\n', encoding="utf-8")
        source = f"with open({str(runs)!r}, 'a') as file:\n    print(file=file)\n"
        for change, expected in (("", 4), ("", 4), ("# changed\n", 8), ("# changed\n", 8)):
            script.write_text(source + change, encoding="utf-8")
            _, lines = self.flakes("--continue", "--results", results)
            self.assertEqual(self.runs("good.runs"), expected)
            self.assertIn("1 of 1 tests 2 times quiet, 1 of them 2 times beside", lines[-1])
        # What was counted of it before it changed does not count.
        script.write_text(source, encoding="utf-8")
        _, lines = self.flakes("--continue", "--results", results, "--minutes", "0.000001")
        self.assertIn("0 of 0 runs failed", lines[-1])

    def test_other_tests_of_a_script_may_change(self):
        script = self.build / "many.py"
        results = self.build / "kept.json"
        (self.build / "CTestTestfile.cmake").write_text("".join(
            f'add_test({name} "{sys.executable}" "-B" "{script}" "{name}")\n'
            for name in ("first", "second")), encoding="utf-8")
        source = ("{shared}\n"
                  "class Tests:\n"
                  "    @staticmethod\n"
                  "    def test_first():\n"
                  "        print({first})\n"
                  "\n"
                  "    def test_second(self):\n"
                  "        print({second})\n")
        values = {"shared": "", "first": 1, "second": 2}
        script.write_text(source.format(**values), encoding="utf-8")
        self.flakes("--results", results)
        for change, kept in (({"first": 3}, 1), ({"second": 4}, 1), ({"shared": "import sys"}, 0)):
            script.write_text(source.format(**values | change), encoding="utf-8")
            _, lines = self.flakes("--continue", "--results", results, "--minutes", "0.000001")
            self.assertIn(f"{kept} of 2 tests 2 times quiet, {kept} of them 2 times beside", lines[-1])

    def test_the_results_have_lines_of_their_own(self):
        self.offer(good="true", bad="false")
        results = self.build / "kept.json"
        self.flakes("--results", results)
        self.assertEqual(results.read_text(encoding="utf-8"), """{
"bad busy": {"runs": 2, "failures": 2, "digest": ""},
"bad quiet": {"runs": 2, "failures": 2, "digest": ""},
"good busy": {"runs": 2, "failures": 0, "digest": ""},
"good quiet": {"runs": 2, "failures": 0, "digest": ""}
}
""")

    def test_figures_tell_of_whole_rooms(self):
        self.offer("dialog", good="true")
        self.offer("host/menus", bad="false")
        self.flakes("good")
        self.assertFalse((self.build / "figures").exists())
        _, lines = self.flakes("--without", "long|desk")
        dialog = ("dialog: 1 of 1 tests 2 times quiet, 1 of them 2 times beside 4 busy loops: "
                  "0 of 4 runs failed (without those labelled long|desk)")
        menus = ("host/menus: 1 of 1 tests 2 times quiet, 1 of them 2 times beside 4 busy loops: "
                 "4 of 4 runs failed (without those labelled long|desk)")
        self.assertEqual(lines[-3:-1], [dialog, menus])
        self.assertEqual({file.name: file.read_text(encoding="utf-8")
                          for file in (self.build / "figures").iterdir()},
                         {"flakes-dialog.txt": dialog + "\n", "flakes-host-menus.txt": menus + "\n"})

    def test_runs_the_tests_of_a_room(self):
        self.offer("dialog", good=f"echo x >>{self.build}/good.runs")
        self.offer("dialog/parts", other=f"echo x >>{self.build}/other.runs")
        status, _ = self.flakes("--room", "dialog")
        self.assertEqual(status, 0)
        self.assertEqual((self.runs("good.runs"), self.runs("other.runs")), (4, 0))
        self.assertEqual([file.name for file in (self.build / "figures").iterdir()],
                         ["flakes-dialog.txt"])

    def test_each_real_program_is_a_room(self):
        self.offer("e2e", e2e_librecad_flick="true", e2e_librecad_quit="true", desk_openbox="true")
        _, lines = self.flakes()
        self.assertEqual([line.split()[:2] for line in lines[-2:]],
                         [["e2e/desk:", "1"], ["e2e/librecad:", "2"]])

    def test_a_room_keeps_the_results_of_others(self):
        self.offer("dialog", good=f"echo x >>{self.build}/good.runs")
        self.offer("gesture", other=f"echo x >>{self.build}/other.runs")
        self.flakes("--room", "dialog")
        self.flakes("--room", "gesture")
        self.flakes("--continue")
        self.assertEqual((self.runs("good.runs"), self.runs("other.runs")), (4, 4))

    def test_no_such_test(self):
        self.offer(good="true")
        self.assertEqual(self.flakes("bad")[0], 2)
        self.assertEqual(self.flakes("--room", "dialog")[0], 2)


if __name__ == "__main__":
    unittest.main()
