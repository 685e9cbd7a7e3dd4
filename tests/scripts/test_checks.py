#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""Tests that each check of the sources finds its fault, in small trees with one fault each; and that
tests cannot be left out unnoticed."""

import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]

ROOMS = """# Rooms
| Room | What it is for | May include |
|---|---|---|
| `low` | the ground | nothing |
| `low/inner` | a `room` in a room | `low` |
| `high` | what stands on both | `low` `low/inner` |

| Question | Room |
|---|---|
| What is elsewhere? | `attic` |
"""


class Tree:
    """A git checkout with a copy of one check and the files given."""

    def __init__(self, check, files):
        self._folder = tempfile.TemporaryDirectory()
        self.root = Path(self._folder.name)
        self._check = check
        for script in (check, "words.txt"):
            (self.root / "scripts").mkdir(exist_ok=True)
            shutil.copy(ROOT / "scripts" / script, self.root / "scripts" / script)
        for name, text in files.items():
            (self.root / name).parent.mkdir(parents=True, exist_ok=True)
            (self.root / name).write_text(text, encoding="utf-8")
        for command in (["init", "-q"], ["add", "-A"]):
            subprocess.run(["git", *command], cwd=self.root, check=True)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._folder.cleanup()

    def run(self, *arguments):
        """Returns the exit status and what the check said."""
        result = subprocess.run([self.root / "scripts" / self._check, *arguments], capture_output=True,
                                text=True, check=False)
        return result.returncode, (result.stdout + result.stderr).strip()


class Arrows(unittest.TestCase):
    def said_of(self, files, rooms=ROOMS):
        with Tree("check-arrows", {"docs/rooms.md": rooms, **files}) as tree:
            return tree.run()

    def test_an_include_along_an_arrow_is_fine(self):
        self.assertEqual(self.said_of({"low/A.h": "", "high/B.cpp": '#include "low/A.h"\n'}), (0, ""))

    def test_an_include_against_an_arrow_is_a_fault(self):
        self.assertEqual(self.said_of({"high/A.h": "", "low/B.cpp": '\n#include "high/A.h"\n'}),
                         (1, "low/B.cpp:2: low may not include high"))

    def test_a_relative_include_is_followed(self):
        self.assertEqual(self.said_of({"high/A.h": "", "low/B.cpp": '#include "../high/A.h"\n'}),
                         (1, "low/B.cpp:1: low may not include high"))

    def test_the_innermost_room_counts(self):
        self.assertEqual(self.said_of({"low/inner/A.h": "", "low/B.cpp": '#include "low/inner/A.h"\n'}),
                         (1, "low/B.cpp:1: low may not include low/inner"))

    def test_a_file_without_a_room_is_a_fault(self):
        self.assertEqual(self.said_of({"attic/A.h": ""}),
                         (1, "attic/A.h:1: is in no room that docs/rooms.md names"))

    def test_a_circle_is_a_fault(self):
        status, said = self.said_of({}, ROOMS.replace("| nothing |", "| `high` |"))
        self.assertEqual(status, 1)
        self.assertIn("circle", said)


class Spelling(unittest.TestCase):
    def said_of(self, files):
        with Tree("check-spelling", files) as tree:
            return tree.run()

    def test_a_misspelt_comment_is_a_fault(self):
        for name, text in (("a.cpp", "int a; // a colum of text\n"), ("b.py", "# a colum of text\n"),
                           ("CMakeLists.txt", "# a colum of text\n"), ("d.md", "A colum of text.\n")):
            with self.subTest(name):
                self.assertEqual(self.said_of({name: text}), (1, f"{name}:1: colum"))

    def test_names_of_code_are_left_out(self):
        text = "// See `colum`, colum.h, colum(), --colum, QColum, COLUM, host/colum and \"colum\".\n"
        self.assertEqual(self.said_of({"a.h": text}), (0, ""))

    def test_code_is_not_read(self):
        self.assertEqual(self.said_of({"a.cpp": "int colum = 1;\n", "b.py": "colum = 1\n"}), (0, ""))

    def test_the_words_of_the_project_are_known(self):
        self.assertEqual(self.said_of({"a.md": "The donut's overlay.\n"}), (0, ""))


SOURCE = """#include <QCoreApplication>
QString say(int n)
{
    return QCoreApplication::translate("host", "Open %1") + QCoreApplication::translate("host", "Save...");
}
"""


def texts(*pairs, language="de_DE"):
    """A file of translations in the context "host"."""
    messages = "".join(f"<message><source>{source}</source>{translation}</message>"
                       for source, translation in pairs)
    return (f'<?xml version="1.0" encoding="utf-8"?><!DOCTYPE TS><TS version="2.1" '
            f'language="{language}" sourcelanguage="en_US"><context><name>host</name>{messages}</context></TS>')


def finished(text):
    return f"<translation>{text}</translation>"


class TranslationsTest(unittest.TestCase):
    """scripts/translations --check"""

    def fault(self, *pairs):
        with Tree("translations", {"host/Say.cpp": SOURCE, "translations/host_de.ts": texts(*pairs)}) as tree:
            status, said = tree.run("--check")
            return said if status else None

    def test_complete(self):
        self.assertIsNone(self.fault(("Open %1", finished("%1 öffnen")), ("Save...", finished("Sichern..."))))

    def test_faults(self):
        opened = ("Open %1", finished("%1 öffnen"))
        for pairs, fault in (
                ([opened], "'Save...' is missing"),
                ([opened, ("Save...", '<translation type="unfinished"></translation>')],
                 "'Save...' is not translated"),
                ([opened, ("Save...", finished("Sichern"))], "'Save...' differs in its three dots"),
                ([opened, ("Save...", finished(" Sichern..."))], "differs in its spaces"),
                ([opened, ("Save...", finished("Sichern\n..."))], "another number of lines"),
                ([("Open %1", finished("öffnen")), ("Save...", finished("Sichern..."))], "lost %1"),
                ([("Open %1", finished("%1 und %2 öffnen")), ("Save...", finished("Sichern..."))],
                 "a placeholder too many"),
                ([opened, ("Save...", finished("Sichern...")), ("Gone", finished("Fort"))],
                 "'Gone' is in no source")):
            with self.subTest(fault):
                self.assertIn(fault, self.fault(*pairs) or "no fault")

    def test_language_without_a_part(self):
        complete = texts(("Open %1", finished("%1 öffnen")), ("Save...", finished("Sichern...")))
        with Tree("translations", {"host/Say.cpp": SOURCE, "module/None.cpp": "",
                                   "translations/host_de.ts": complete,
                                   "translations/module_fr.ts": texts(language="fr_FR")}) as tree:
            self.assertIn("translations/host_fr.ts is missing", tree.run("--check")[1])


class Presets(unittest.TestCase):
    """The presets, in a project without tests."""

    def test_tests_come_back_and_an_empty_run_fails(self):
        with tempfile.TemporaryDirectory() as folder:
            shutil.copy(ROOT / "CMakePresets.json", folder)
            (Path(folder) / "CMakeLists.txt").write_text(
                "cmake_minimum_required(VERSION 3.25)\nproject(Empty LANGUAGES NONE)\n"
                "enable_testing()\n", encoding="utf-8")

            def status(*command):
                return subprocess.run(command, cwd=folder, capture_output=True, check=False).returncode

            # As ./run does it on a desktop, and ./test after it.
            self.assertEqual(status("cmake", "--preset", "qt5", "-DGESTUREWIDGET_TESTS=OFF"), 0)
            self.assertEqual(status("cmake", "--preset", "qt5"), 0)
            cache = (Path(folder) / "build/qt5/CMakeCache.txt").read_text(encoding="utf-8")
            self.assertRegex(cache, "GESTUREWIDGET_TESTS:[A-Z]+=ON")
            for preset in ("qt5", "qt6", "asan", "coverage"):
                self.assertEqual(status("cmake", "--preset", preset), 0, preset)
                self.assertNotEqual(status("ctest", "--preset", preset), 0, preset)


if __name__ == "__main__":
    unittest.main()
