# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""Gestures in a program of another language: LibreCAD in German and Japanese.

    with-desktop.sh python3 test_languages.py --build DIR [TEST...]

test_gestures.py describes how the tests work. Each test leaves a picture of the dialog, dialog.png,
in its folder below DIR/e2e/languages.
"""

import dataclasses

from harness.programs import EIGHT, PROGRAMS
from harness.programtest import ProgramTest, option_parser, run_tests

LIBRECAD = PROGRAMS["librecad"]


class LanguagesTest(ProgramTest):
    folder = "languages"

    def speak(self, language, title, first, last, **changes):
        """Starts LibreCAD, looks at the dialog's title and at the first and last entry of its
        categories, and performs all eight gestures."""
        program = dataclasses.replace(LIBRECAD, dialog=title, **changes)
        with self.session(language, program=program) as session:
            mark = session.spy.mark()
            session.carry_out(program.command_line)
            session.driver.ask("type", "gesture")
            session.driver.ask("key", "Return")
            session.focus(title)
            choices = session.expect(mark, lambda line: line[0] == "choices", "the categories")[1:]
            self.assertEqual((choices[0], choices[-1]), (first, last))
            session.driver.ask("wait-steady", 15000)
            session.driver.ask("screenshot", session.folder / "dialog.png")
            session.driver.ask("key", "Escape")
            session.dialog_is_gone()
            for direction in EIGHT:
                session.gesture_runs(direction, program.eight[direction])
                session.cancel_tool()
            self.end(session)

    def in_language(self, code, locale, title, first, last):
        """The language of the desktop and of the program."""
        configuration = {name: text.replace("Language=en", f"Language={code}")
                         for name, text in LIBRECAD.configuration.items()}
        self.speak(code, title, first, last, configuration=configuration,
                   environment={"LANG": locale, "LANGUAGE": code})

    def test_german(self):
        self.in_language("de", "de_DE.UTF-8", "Mausgesten", "Alle Befehle", "Sonstige")

    def test_japanese(self):
        self.in_language("ja", "ja_JP.UTF-8", "マウスジェスチャー", "すべてのコマンド", "その他")

    def test_program_in_german_on_an_english_desktop(self):
        """A person has chosen the program's language in the program."""
        configuration = {name: text.replace("Language=en", "Language=de")
                         for name, text in LIBRECAD.configuration.items()}
        self.speak("de-chosen", "Mausgesten", "Alle Befehle", "Sonstige", configuration=configuration)


if __name__ == "__main__":
    run_tests(LanguagesTest, option_parser(__doc__.splitlines()[0]).parse_args())
