#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""The settings window's own menu entry speaks every language of the project."""

import configparser
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[3]
LANGUAGES = sorted(path.stem.split("_")[1] for path in (ROOT / "translations").glob("settings_*.ts"))


class EntryTest(unittest.TestCase):
    def test_texts_are_translated(self):
        entry = configparser.RawConfigParser()
        entry.optionxform = str
        entry.read(ROOT / "launcher/desktop/mouse-gestures.desktop")
        texts = entry["Desktop Entry"]
        self.assertIn("de", LANGUAGES)
        for key in ("Name", "GenericName", "Comment"):
            for language in LANGUAGES:
                with self.subTest(key=key, language=language):
                    translated = texts.get(f"{key}[{language}]", "")
                    self.assertNotIn(translated, ("", texts[key]))


if __name__ == "__main__":
    unittest.main()
