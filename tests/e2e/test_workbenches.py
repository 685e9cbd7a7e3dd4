# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""Gestures in a program that changes its menus with the task: FreeCAD and its workbenches.

    with-desktop.sh python3 test_workbenches.py --build DIR [TEST...]

test_gestures.py describes how the tests work.
"""

import configparser
import dataclasses
import json
import os
import subprocess
import time

from harness.programs import EIGHT, PROGRAMS
from harness.programtest import ProgramTest, option_parser, run_tests

PROGRAM = PROGRAMS["freecad"]
ENTRY = "Mouse Gestures..."
PAGE = "TechDrawGui::QGVPage"
FIRST_SWITCH_SECONDS = 60  # the first switch loads the workbench

# For each workbench: the key that follows W, and a menu that only this workbench has.
WORKBENCHES = {
    "DraftWorkbench": ("2", "Modification"),
    "ImageWorkbench": ("5", "Image"),
    "MeshWorkbench": ("7", "Meshes"),
}
TEN_SWITCHES = ("ImageWorkbench", "MeshWorkbench", "DraftWorkbench", "ImageWorkbench", "MeshWorkbench",
                "DraftWorkbench", "MeshWorkbench", "DraftWorkbench", "ImageWorkbench", "MeshWorkbench")

SKETCHER_MACRO = """

def sketch():
    FreeCADGui.activateWorkbench("SketcherWorkbench")
    window.setWindowTitle("drawing.dxf in Sketcher")


sketching = QtWidgets.QShortcut(QtGui.QKeySequence("F7"), window, sketch)
"""

# F7 shows a page in front of the drawing in space.
PAGE_MACRO = """

page = document.addObject("TechDraw::DrawPage", "Page")
template = document.addObject("TechDraw::DrawSVGTemplate", "Template")
template.Template = FreeCAD.getResourceDir() + "Mod/TechDraw/Templates/A4_LandscapeTD.svg"
page.Template = template
document.recompute()


def turn_to_page():
    page.ViewObject.doubleClicked()
    area = window.findChild(QtWidgets.QMdiArea)
    for child in area.subWindowList():
        if child.windowTitle().startswith("Page"):
            area.setActiveSubWindow(child)


turning = QtWidgets.QShortcut(QtGui.QKeySequence("F7"), window, turn_to_page)
"""


class WorkbenchesTest(ProgramTest):
    folder = "workbenches"
    program = PROGRAM

    def switch(self, session, workbench):
        mark = session.spy.mark()
        session.focus("drawing.dxf")
        session.driver.ask("key", "w")
        session.driver.ask("key", WORKBENCHES[workbench][0])
        session.expect(mark, lambda line: line[:2] == ["triggered", workbench], workbench,
                       FIRST_SWITCH_SECONDS)

    def tools_menu(self, session):
        """The captions in the open Tools menu."""
        mark = session.spy.mark()
        session.driver.ask("key", "alt+t")
        entries = session.expect(mark, lambda line: line[0] == "entries", "the Tools menu")[1:]
        session.driver.ask("key", "Escape")
        session.expect(mark, lambda line: line[:2] == ["gone", "QMenu"], "the menu to close")
        session.wait_for_free_input()
        session.driver.ask("key", "Escape")
        return entries

    def categories(self, session):
        """The categories in the dialog."""
        mark = session.open_dialog()
        choices = session.expect(mark, lambda line: line[0] == "choices" and "File" in line,
                                 "the dialog's categories")[1:]
        session.driver.ask("key", "Escape")
        session.dialog_is_gone()
        return choices

    def bindings(self, session):
        settings = configparser.ConfigParser(interpolation=None)
        settings.read(session.settings_file)
        return {key: value.strip('"') for key, value in settings["GestureWidget"].items()}

    def test_ten_switches(self):
        with self.session() as session:
            session.gesture_runs("up", PROGRAM.eight["up"])
            before = self.bindings(session)
            self.assertEqual(before["87"], "ID_LINE")
            for workbench in TEN_SWITCHES:
                self.switch(session, workbench)
                entries = self.tools_menu(session)
                self.assertEqual(entries.count(ENTRY), 1, f"in {workbench}: {entries}")
                self.assertEqual(entries[-1], ENTRY, f"in {workbench}")
            # The current workbench has no drawing commands.
            session.gesture_runs("up", PROGRAM.eight["up"])
            self.assertEqual(self.bindings(session), before)
            self.switch(session, "DraftWorkbench")
            session.gesture_runs("right", PROGRAM.eight["right"])
            session.cancel_tool()
            self.assertEqual(self.bindings(session), before)
            self.end(session)

    def test_categories_follow(self):
        with self.session() as session:
            for workbench in ("MeshWorkbench", "DraftWorkbench", "MeshWorkbench"):
                self.switch(session, workbench)
                categories = self.categories(session)
                for name, (_, menu) in WORKBENCHES.items():
                    if name == workbench:
                        self.assertIn(menu, categories)
                    elif name == "DraftWorkbench":
                        self.assertNotIn(menu, categories)
            self.end(session)

    def test_a_workbench_that_was_never_loaded(self):
        """A gesture keeps the bindings to its commands."""
        text = PROGRAM.configuration["FreeCAD/user.cfg"]
        program = dataclasses.replace(PROGRAM, configuration={
            "FreeCAD/user.cfg": text.replace("DraftWorkbench", "ImageWorkbench")})
        given = {"ActiveScheme": "8", "81": "ID_ZOOM_BOUNDS", "82": "Draft_Circle", "83": "ID_OPEN",
                 "84": "", "85": "ID_SAVE", "86": "ID_DTEXT", "87": "ID_LINE", "88": "Draft_Move"}
        with self.session(program=program, settings=given) as session:
            session.gesture_runs("up", PROGRAM.eight["up"])
            self.end(session)
            after = self.bindings(session)
            self.assertEqual({key: after[key] for key in given if key != "ActiveScheme"},
                             {key: value for key, value in given.items() if key != "ActiveScheme"})

    def test_the_trigger_of_a_navigation_style(self):
        """In this one the program turns and moves things with all other right drags."""
        text = PROGRAM.configuration["FreeCAD/user.cfg"]
        style = '<FCText Name="NavigationStyle">Gui::GestureNavigationStyle</FCText>'
        program = dataclasses.replace(PROGRAM, configuration={"FreeCAD/user.cfg": text.replace(
            '<FCParamGroup Name="Mod">',
            f'<FCParamGroup Name="View">{style}</FCParamGroup><FCParamGroup Name="Mod">')})
        keys = ("ctrl", "shift")
        with self.session(program=program) as session:
            mark = session.spy.mark()
            session.move_to_middle()
            for key in keys:
                session.driver.ask("hold", key)
            session.driver.ask("press", 3)
            session.drag("up")
            session.driver.ask("release", 3)
            for key in keys:
                session.driver.ask("let-go", key)
            session.expect(mark, lambda line: line[:2] == ["triggered", PROGRAM.eight["up"]],
                           "the command of a gesture with its keys")
            session.ring_is_gone()
            self.end(session)

    def test_a_technical_page(self):
        """A page is a drawing too."""
        ending, macro = PROGRAM.macro
        program = dataclasses.replace(PROGRAM, macro=(ending, macro + PAGE_MACRO),
                                      view=f"{PROGRAM.view},{PAGE}")
        given = {"ActiveScheme": "8", "81": "ID_ZOOM_BOUNDS", "85": "ID_SAVE"}
        with self.session(program=program, settings=given) as session:
            mark = session.spy.mark()
            session.focus("drawing.dxf")
            session.driver.ask("key", "F7")
            session.expect(mark, lambda line: line[:2] == ["view", PAGE], "the page")
            session.driver.ask("remember", 0, 0, 1600, 1000)
            session.driver.succeeds("wait-steady", 10000)
            session.locate_view()
            session.gesture_runs("up", PROGRAM.eight["up"])
            session.gesture_runs("down", PROGRAM.eight["down"])
            self.end(session)

    def test_a_mistyped_command(self):
        """It leaves its direction once the workbench is on whose commands are named so."""
        given = {"ActiveScheme": "8", "81": "ID_ZOOM_BOUNDS", "82": "Draft_Circel", "83": "ID_OPEN",
                 "84": "Sketcher_CreateArc", "85": "ID_SAVE", "86": "Sketcher_CreateArk",
                 "87": "ID_LINE", "88": "Draft_Move"}
        kept = {key: value for key, value in given.items() if key not in ("ActiveScheme", "82")}
        with self.session(settings=given) as session:
            deadline = time.monotonic() + FIRST_SWITCH_SECONDS
            while self.bindings(session).get("82") != "" and time.monotonic() < deadline:
                session.gesture_runs("up", PROGRAM.eight["up"])
            after = self.bindings(session)
            self.assertEqual(after["82"], "")
            self.assertEqual({key: after[key] for key in kept}, kept)
            self.end(session)

    def test_a_command_of_an_earlier_start(self):
        """It can be bound before its workbench is loaded, and runs after that."""
        with self.session() as session:
            session.gesture_runs("up", PROGRAM.eight["up"])
            self.end(session)
            self.assertIn("Draft_Ellipse", self.remembered(session))
            settings = session.folder / "config" / "FreeCAD" / "user.cfg"
            settings.write_text(settings.read_text().replace("DraftWorkbench", "ImageWorkbench"))
            session.start_again()
            session.bind("Ellipse", EIGHT.index("right") + 1)
            mark = session.spy.mark()
            session.gesture_shows_a_ring("right")
            session.gesture_runs("up", PROGRAM.eight["up"])
            self.assertNotIn("Draft_Ellipse", [line[1] for line in session.spy.since(mark, "triggered")])
            self.assertEqual(self.bindings(session)["87"], "Draft_Ellipse")
            self.switch(session, "DraftWorkbench")
            session.gesture_runs("right", "Draft_Ellipse")
            session.cancel_tool()
            self.end(session)

    def test_a_ring_for_a_task(self):
        """The task's own ring is used while the task is on, also after a restart. The dialog edits
        it and says so."""
        # F7 switches to the workbench, which has no key, and then says so in the window's title.
        ending, macro = PROGRAM.macro
        program = dataclasses.replace(PROGRAM, macro=(ending, macro + SKETCHER_MACRO))
        with self.session(program=program) as session:
            session.gesture_runs("right", PROGRAM.eight["right"])
            session.cancel_tool()
            self.launch(session, "--ring", "freecad", "SketcherWorkbench", "own")
            self.launch(session, "--bind", "freecad", "right", "Std_ViewZoomIn",
                        "--ring", "SketcherWorkbench")
            before = self.bindings(session)
            for start in range(2):
                if start > 0:
                    session.start_again()
                session.focus("drawing.dxf")
                session.driver.ask("key", "F7")
                session.driver.ask("wait-window", "drawing.dxf in Sketcher", FIRST_SWITCH_SECONDS * 1000)
                session.gesture_runs("right", "Std_ViewZoomIn")
                session.gesture_runs("up", PROGRAM.eight["up"])
                self.switch(session, "DraftWorkbench")
                session.gesture_runs("right", PROGRAM.eight["right"])
                session.cancel_tool()
                self.end(session)
            self.assertEqual(self.bindings(session), before)
            shown = self.launch(session, "--bindings", "freecad")
            ring = shown.partition("ring of SketcherWorkbench\n")[2]
            self.assertRegex(ring, r"\n  right +Std_ViewZoomIn")
            self.assertRegex(ring, r"\n  up-right +Sketcher_Trimming")

    def launch(self, session, *arguments):
        """Runs mouse-gestures with the program's own settings. Returns what it prints."""
        environment = dict(os.environ, XDG_CONFIG_HOME=str(session.folder / "config"))
        result = subprocess.run([session.launcher, *arguments], env=environment, text=True,
                                stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=False)
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        return result.stdout

    def remembered(self, session):
        file = session.settings_file.with_suffix(".commands.json")
        commands = json.loads(file.read_text())["commands"] if file.exists() else []
        return [command["identifier"] for command in commands]


if __name__ == "__main__":
    run_tests(WorkbenchesTest, option_parser(__doc__.splitlines()[0]).parse_args())
