# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""Gestures in real programs, with real input. The tests check what the programs did.

    with-desktop.sh python3 test_gestures.py --build DIR --program NAME [TEST...]

Every test starts the program in new folders below DIR/e2e. A test never waits to see that
something does not happen. It waits for a later event that must happen, and then checks
everything up to there.
"""

import configparser
import dataclasses
import random
import time
from pathlib import Path

from harness.programs import EIGHT, FOUR, PROGRAMS
from harness.programtest import ProgramTest, option_parser, run_tests
from harness.session import ANSWER_SECONDS, RING_SIZE
from harness.spylog import without_numbers

# The input that reaches the program, and what the program does with it.
INPUT = ("press", "release", "doubleclick", "contextmenu", "typed", "key", "menu", "triggered")

ALL_KEYS = ["enablemousegesture", "activescheme", *(f"4{n}" for n in range(1, 5)),
            *(f"8{n}" for n in range(1, 9))]


class GesturesTest(ProgramTest):
    # --- the instruments themselves

    def test_instruments(self):
        """The spy sees what the driver does, in a program without gestures. If other tests fail,
        look at this one first."""
        with self.session(gestures=False) as session:
            x, y = session.middle()
            session.driver.ask("move", x + 10, y - 20)
            self.assertEqual(session.driver.ask("pointer"), f"{x + 10} {y - 20}")
            self.assertEqual(session.driver.ask("grabs"), "pointer free keyboard free")
            mark = session.spy.mark()
            session.driver.ask("press", 1)
            session.driver.ask("drag", -30, 15, 100, 5)
            session.driver.ask("release", 1)
            session.expect(mark, lambda line: line[0] == "release", "the release")
            # Its parents also see the events that the view ignores.
            view = self.program.viewport or self.program.view
            seen = [line for line in session.spy.since(mark, "press", "release") if line[2] == view]
            self.assertEqual(seen, [["press", "1", view, f"{x + 10},{y - 20}"],
                                    ["release", "1", view, f"{x - 20},{y - 5}"]])
            session.driver.ask("key", "alt+f")
            session.expect(mark, lambda line: line[0] == "menu", "the File menu")
            session.driver.ask("key", "Escape")
            session.driver.ask("key", "Escape")
            self.end(session)

    # --- directions

    def test_eight_directions(self):
        with self.session() as session:
            for direction in EIGHT:
                session.gesture_runs(direction, self.program.eight[direction])
                session.cancel_tool()
            self.end(session)

    def test_four_directions(self):
        with self.session(settings={"ActiveScheme": "4"}) as session:
            for direction in FOUR:
                session.gesture_runs(direction, self.program.four[direction])
                session.cancel_tool()
            self.end(session)

    def test_bindings_come_from_the_settings(self):
        bindings = {"ActiveScheme": "4", "41": "ID_LINE", "42": "", "43": "ID_ZOOM_BOUNDS", "44": "ID_LINE"}
        with self.session(settings=bindings) as session:
            session.gesture_runs("up", self.program.eight["right"])
            session.cancel_tool()
            mark = session.spy.mark()
            session.gesture_shows_a_ring("left")
            session.gesture_runs("down", self.program.eight["up"])
            self.assertEqual([line[1] for line in session.spy.since(mark, "triggered")],
                             [self.program.eight["up"]], "an unbound direction ran something")
            self.end(session)

    def test_an_unknown_command_leaves_its_direction(self):
        """As after a typing error before the program's first start."""
        bindings = {"ActiveScheme": "4", "41": "ID_ZOOM_BOUNDS", "42": "DrawArcc"}
        with self.session(settings=bindings) as session:
            deadline = time.monotonic() + ANSWER_SECONDS
            bound = "DrawArcc"
            while bound and time.monotonic() < deadline:
                session.gesture_runs("up", self.program.eight["up"])
                settings = configparser.ConfigParser(interpolation=None)
                settings.read(session.settings_file)
                bound = settings["GestureWidget"]["42"].strip('"')
            self.assertEqual(bound, "", "an unknown command is still bound")
            self.end(session)

    def test_first_gesture_fills_the_settings(self):
        with self.session() as session:
            session.gesture_runs("up", self.program.eight["up"])
            self.end(session)
            settings = configparser.ConfigParser(interpolation=None)
            settings.read(session.settings_file)
            self.assertEqual(sorted(settings["GestureWidget"]), sorted(ALL_KEYS))
            self.assertEqual(settings["GestureWidget"]["ActiveScheme"].strip('"'), "8")
            self.assertEqual(settings["GestureWidget"]["87"], "ID_LINE")

    # --- how a gesture is made

    def test_release_inside_the_ring_cancels(self):
        with self.session() as session:
            mark = session.spy.mark()
            session.move_to_middle()
            session.driver.ask("press", 3)
            session.drag("right", 50)
            session.wait_for_ring()
            session.driver.ask("release", 3)
            session.ring_is_gone()
            session.gesture_runs("up", self.program.eight["up"])
            self.assertEqual([line[1] for line in session.spy.since(mark, "triggered")],
                             [self.program.eight["up"]])
            self.assertEqual(session.spy.since(mark, "press", "contextmenu", "menu"), [],
                             "the program saw something of a gesture")
            self.end(session)

    def test_flick(self):
        """The button is released before the ring is visible."""
        with self.session() as session:
            for direction in FOUR:
                session.gesture_runs(direction, self.program.eight[direction], milliseconds=150)
                session.cancel_tool()
            self.end(session)

    def test_going_round_chooses_the_last_direction(self):
        with self.session() as session:
            mark = session.spy.mark()
            session.move_to_middle()
            session.driver.ask("press", 3)
            session.drag("left", 50)
            session.wait_for_ring()
            session.driver.ask("drag", 50, -50, 150)  # up
            session.driver.ask("drag", 50, 50, 150)  # right
            session.driver.ask("drag", 60, 0, 150)
            session.driver.ask("release", 3)
            session.expect(mark, lambda line: line[0] == "triggered", "a command")
            self.assertEqual([line[1] for line in session.spy.since(mark, "triggered")],
                             [self.program.eight["right"]])
            self.end(session)

    def test_the_second_of_two_quick_gestures(self):
        """The hand is at the next gesture, or clicks, while the ring shows the choice of the first."""
        with self.session() as session:
            mark = session.spy.mark()
            session.move_to_middle()
            for _ in range(2):  # in one direction, for a program that is slower than the hand
                session.driver.ask("press", 3)
                session.drag("up", 100, 30)
                session.driver.ask("release", 3)
            session.expect(mark, lambda _: len(session.spy.since(mark, "triggered")) == 2, "both commands")
            session.ring_is_gone()
            self.assertEqual([line[1] for line in session.spy.since(mark, "triggered")],
                             [self.program.eight["up"]] * 2)
            self.assertEqual(session.spy.since(mark, "press", "contextmenu", "menu"), [])
            mark = session.spy.mark()
            session.move_to_middle()
            session.driver.ask("press", 3)
            session.drag("up", 100, 30)
            session.driver.ask("release", 3)
            session.driver.ask("click", 1)
            session.expect(mark, lambda line: line[:2] == ["release", "1"], "the click")
            self.assertTrue(session.grabs_become("pointer free keyboard free"))
            self.end(session)

    def test_ten_in_a_row(self):
        with self.session() as session:
            for _ in range(5):
                session.gesture_runs("up", self.program.eight["up"])
                session.gesture_runs("right", self.program.eight["right"])
                session.cancel_tool()
            self.end(session)

    def test_many_gestures_of_all_kinds(self):
        """Fast and slow, straight and diagonal, released early: each gesture runs its command
        once, or none, and then the program has the pointer and the keyboard back."""
        chance = random.Random(20)
        bindings = {"81": "ID_LINE", "82": "", "83": "ID_ZOOM_BOUNDS", "84": "", "85": "ID_LINE",
                    "86": "", "87": "ID_ZOOM_BOUNDS", "88": ""}
        runs = {"up": "right", "left": "up", "down": "right", "right": "up"}
        with self.session(settings=bindings) as session:
            start = session.spy.mark()
            expected = []
            for _ in range(60):
                direction = chance.choice(EIGHT)
                far = chance.random() < 0.7
                length = chance.randint(85, 200) if far else chance.randint(25, 60)
                session.gesture(direction, length, chance.choice((0, 20, 60, 120, 250, 400)))
                if far and direction in runs:
                    expected.append(self.program.eight[runs[direction]])
                    session.expect(start, lambda _: len(session.spy.since(start, "triggered"))
                                   >= len(expected), f"command {len(expected)}, {direction}")
                    if self.program.cancel:  # it does not start a tool while another one runs
                        session.cancel_tool()
                session.settle()
            session.gesture_runs("left", self.program.eight["up"])
            ran = [line[1] for line in session.spy.since(start, "triggered")]
            self.assertEqual(ran, [*expected, self.program.eight["up"]])
            session.check_active_window(start)
            self.assertEqual(session.spy.since(start, "press", "contextmenu", "menu"), [])
            self.end(session)

    def test_the_ring_lies_around_the_press(self):
        with self.session() as session:
            session.move_to_middle()
            session.driver.ask("press", 3)
            session.drag("down", 40)
            ring = session.wait_for_ring()
            session.driver.ask("release", 3)
            session.ring_is_gone()
            x, y = session.middle()
            self.assertEqual(ring, (x - RING_SIZE[0] // 2, y - RING_SIZE[1] // 2, *RING_SIZE))
            self.end(session)

    def test_grabs_are_held_and_given_back(self):
        with self.session() as session:
            for round_ in range(20):
                session.move_to_middle()
                mark = session.spy.mark()
                session.driver.ask("press", 3)
                session.drag("up", 45, milliseconds=80)
                session.wait_for_grabbing_ring(mark)
                held = session.grabs_become("pointer taken keyboard taken")
                self.assertTrue(held, f"round {round_}: the grabs are not held")
                session.driver.ask("release", 3)
                session.ring_is_gone()
                free = session.grabs_become("pointer free keyboard free")
                self.assertTrue(free, f"round {round_}: the grabs are not given back")
            self.end(session)

    def test_keys_during_a_gesture_go_nowhere(self):
        with self.session() as session:
            session.move_to_middle()
            mark = session.spy.mark()
            session.driver.ask("press", 3)
            session.drag("up", 45)
            session.wait_for_grabbing_ring(mark)
            self.assertTrue(session.grabs_become("pointer taken keyboard taken"))
            mark = session.spy.mark()
            session.driver.ask("key", "ctrl+q")
            session.driver.ask("key", "Escape")
            session.drag("up", 60)
            session.driver.ask("release", 3)
            session.expect(mark, lambda line: line[0] == "triggered", "the command")
            seen = [line for line in session.spy.since(mark, "key", "quit")
                    if line[0] == "quit" or "DonutDialog" not in line[-1]]
            self.assertEqual(seen, [])
            self.assertEqual([line[1] for line in session.spy.since(mark, "triggered")],
                             [self.program.eight["up"]])
            self.end(session)

    # --- what is not a gesture

    def compare_with_the_bare_program(self, act, **how):
        """Does the same in the program without gestures and with gestures. Both must see the
        same."""
        seen = []
        for name, options in (("bare", {"gestures": False}), ("gestures", how)):
            with self.session(f"{self._testMethodName}-{name}", **options) as session:
                session.move_to_middle()
                mark = session.spy.mark()
                act(session)
                last = session.type_and_wait("F9")
                lines = session.spy.since(mark, *INPUT)
                seen.append(["\t".join(line) for line in lines[:lines.index(last)]])
                self.end(session)
        self.assertTrue(any(line.startswith("press") for line in seen[0]))
        self.assertEqual(seen[0], seen[1])

    def test_right_click_is_unchanged(self):
        def act(session):
            session.right_click()
            # Clicks at another place. Otherwise a slow machine would take it for a double click.
            x, y = session.middle()
            session.driver.ask("move", x + 60, y + 40)
            session.right_click()
        self.compare_with_the_bare_program(act)

    def test_right_click_with_an_unsteady_hand_is_unchanged(self):
        def act(session):
            mark = session.spy.mark()
            session.driver.ask("press", 3)
            if not session.gestures and self.program.context_menu and not self.program.menu_on_release:
                # A menu chooses nothing if the pointer stopped before it was there. With gestures it
                # comes after the release, and then gets the movements too.
                session.expect(mark, lambda line: line == ["exposed", "QMenu"], "the menu")
            session.driver.ask("drag", 12, 8, 100)  # 20 pixels; a gesture needs one more
            session.driver.ask("release", 3)
            if self.program.menu_on_release:
                session.close_context_menu(mark)
            elif self.program.context_menu:
                # The menu opened under the pointer, so the release chooses the entry there.
                session.expect(mark, lambda line: line[0] == "triggered", "an entry of the menu")
                session.wait_for_free_input()
        self.compare_with_the_bare_program(act)

    def test_left_button_is_unchanged(self):
        def act(session):
            session.driver.ask("press", 1)
            session.driver.ask("drag", 90, 60, 200)
            session.driver.ask("release", 1)
            session.driver.ask("click", 1)
            session.driver.ask("click", 1)
        self.compare_with_the_bare_program(act)

    def test_right_clicks_in_a_running_tool_are_unchanged(self):
        def act(session):
            # Beside the drawn line. Whether a click on it chooses it depends on whether the program has
            # had the time to light it up.
            x, y = session.middle()
            session.driver.ask("move", x + 60, y + 120)
            session.start_line()
            session.driver.ask("click", 1)
            session.driver.ask("drag", 40, 30, 50)
            session.right_click()
            session.driver.ask("drag", 40, 30, 50) # too far for a double click
            session.right_click()
            if not self.program.cancel:  # otherwise a panel may have the keyboard
                session.driver.ask("key", "Escape")
        self.compare_with_the_bare_program(act)

    def test_switched_off(self):
        def act(session):
            mark = session.spy.mark()
            session.gesture("right")
            if self.program.menu_on_release:
                session.close_context_menu(mark)
            session.wait_for_free_input()
            session.driver.ask("key", "Escape")
        self.compare_with_the_bare_program(act, settings={"EnableMouseGesture": "0"})

    # --- the dialog

    def test_dialog_from_the_menu(self):
        with self.session() as session:
            mark = session.open_dialog()
            ran = [line[2] for line in session.spy.since(mark, "triggered")]
            self.assertEqual(ran[0], "Mouse Gestures...")
            session.driver.ask("key", "Escape")
            session.dialog_is_gone()
            session.gesture_runs("up", self.program.eight["up"])
            self.end(session)

    def test_dialog_by_typing(self):
        with self.session() as session:
            session.carry_out(self.program.command_line)
            session.driver.ask("type", "gesture")
            session.driver.ask("key", "Return")
            session.focus("Mouse Gestures")
            session.driver.ask("key", "Escape")
            session.dialog_is_gone()
            session.gesture_runs("up", self.program.eight["up"])
            self.end(session)

    def test_bound_in_the_dialog_and_kept(self):
        caption, action = self.program.unbound
        with self.session() as session:
            session.gesture_runs("right", self.program.eight["right"])
            session.cancel_tool()
            session.bind(caption, EIGHT.index("right") + 1)
            session.gesture_runs("right", action)
            session.gesture_runs("up", self.program.eight["up"])
            self.end(session)
            session.start_again()
            session.gesture_runs("right", action)
            session.gesture_runs("up", self.program.eight["up"])
            self.end(session)

    # --- the end

    def test_no_complaints(self):
        """Standard error has only lines that the program also prints without gestures."""
        complaints = []
        for name, gestures in (("bare", False), ("gestures", True)):
            with self.session(f"{self._testMethodName}-{name}", gestures=gestures) as session:
                if gestures:
                    session.gesture_runs("right", self.program.eight["right"])
                session.cancel_tool()
                self.end(session)
                complaints.append({without_numbers(line) for line in session.complaints()})
        self.assertEqual(complaints[1] - complaints[0], set())

    def test_a_hundred_starts(self):
        """Each start ends normally, and we print nothing on standard error."""
        with self.session(f"{self._testMethodName}-bare", gestures=False) as session:
            self.end(session)
            own = {without_numbers(line) for line in session.complaints()}
        with self.session() as session:
            for start in range(100):
                if start > 0:
                    session.start_again()
                self.end(session)
                said = {without_numbers(line) for line in session.complaints()}
                self.assertEqual(said - own, set(), f"start {start + 1}")

    def test_quit_while_the_ring_is_open(self):
        with self.session() as session:
            session.move_to_middle()
            session.driver.ask("press", 3)
            session.drag("right", 45)
            session.wait_for_ring()
            self.end(session)
            session.driver.ask("release", 3)
            self.assertTrue(session.grabs_become("pointer free keyboard free"))

    def test_killed_while_the_ring_is_open(self):
        with self.session() as session:
            session.move_to_middle()
            session.driver.ask("press", 3)
            session.drag("right", 45)
            session.wait_for_ring()
            session.process.kill()
            session.process.wait(timeout=ANSWER_SECONDS)
            session.driver.ask("release", 3)
            self.assertTrue(session.grabs_become("pointer free keyboard free"))


def main():
    parser = option_parser(__doc__.splitlines()[0])
    parser.add_argument("--program", choices=sorted(PROGRAMS), required=True)
    parser.add_argument("--launcher", type=Path,
                        help="an installed mouse-gestures (default: the one of the build)")
    parser.add_argument("--executable", help="the program's file, if it is not the usual one")
    options = parser.parse_args()
    program = PROGRAMS[options.program]
    if options.executable:
        program = dataclasses.replace(program, executable=options.executable)
    GesturesTest.program = program
    GesturesTest.folder = program.name
    GesturesTest.launcher = options.launcher
    run_tests(GesturesTest, options)


if __name__ == "__main__":
    main()
