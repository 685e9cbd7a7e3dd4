# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""The programs in which the tests perform gestures, and what each direction runs there.

These expectations are written by hand and not read from the program's profile, because the
profile is under test too.
"""

from dataclasses import dataclass, field

# Directions of the two schemes, counter-clockwise from the top.
FOUR = ("up", "left", "down", "right")
EIGHT = ("up", "up-left", "left", "down-left", "down", "down-right", "right", "up-right")

# Unit steps on the screen, y downwards.
STEPS = {
    "up": (0, -1), "up-left": (-1, -1), "left": (-1, 0), "down-left": (-1, 1),
    "down": (0, 1), "down-right": (1, 1), "right": (1, 0), "up-right": (1, -1),
}


@dataclass
class Program:
    name: str
    executable: str  # found on PATH; relative to the build folder if it has a slash
    view: str  # class name of its view
    # Object name of the action that each direction runs with the first bindings.
    eight: dict
    # A search text that finds a command without a direction in the dialog, and its action.
    unbound: tuple = ()
    # Actions that open a dialog, which Escape closes.
    dialogs: tuple = ()
    # Commands for the driver: to start the line tool, and to get to the command line.
    start_line: tuple = ()
    # True if starting the line tool that way opens a menu.
    line_in_menu: bool = False
    command_line: tuple = ()
    # Commands for the driver: to discard the changes if the program asks whether to save.
    discard: tuple = ()
    # True if a right click in the view opens a menu.
    context_menu: bool = False
    # Set this if that menu opens on the release, not on the press: the class of the widget that
    # gets the release last, after the menu has closed.
    menu_on_release: str = ""
    # Files for its configuration folder, so that it starts without questions.
    configuration: dict = field(default_factory=dict)
    # True if it has gestures without being started by mouse-gestures.
    links_host: bool = False
    # A file that creates the drawing when the program opens it: the ending of its name, and its
    # text. Empty for a program that opens the drawing itself. The file must put the drawing's
    # name into the main window's title.
    macro: tuple = ()
    # Class name of the widget in the view that gets the pointer, if it is not the view itself.
    viewport: str = ""
    # Commands for the driver: to end a command that Escape does not reach.
    cancel: tuple = ()
    # The dialog's title in the program's language. The menu entry adds three dots.
    dialog: str = "Mouse Gestures"
    # Environment variables that it needs.
    environment: dict = field(default_factory=dict)

    @property
    def four(self):
        return {direction: self.eight[direction] for direction in FOUR}


# The default bindings are commands of this workbench. There is no start page and no splash
# screen. The Python console does not keep each command, so that the memory shows what gestures keep.
FREECAD_SETTINGS = """<?xml version="1.0" encoding="UTF-8" standalone="no" ?>
<FCParameters><FCParamGroup Name="Root"><FCParamGroup Name="BaseApp">
  <FCParamGroup Name="Preferences">
    <FCParamGroup Name="General">
      <FCText Name="AutoloadModule">DraftWorkbench</FCText>
      <FCText Name="Language">English</FCText>
      <FCBool Name="ShowSplasher" Value="0"/>
    </FCParamGroup>
    <FCParamGroup Name="Macro">
      <FCBool Name="ScriptToPyConsole" Value="0"/>
    </FCParamGroup>
    <FCParamGroup Name="Mod"><FCParamGroup Name="Start">
      <FCBool Name="ShowOnStartup" Value="0"/>
    </FCParamGroup></FCParamGroup>
  </FCParamGroup>
</FCParamGroup></FCParamGroup></FCParameters>
"""
# Draws a line, saves it, shows it from above and selects it. F12 ends a command and selects the
# line again. Escape may come too early, before the command's panel takes the keyboard, and some
# commands need a selection.
FREECAD_MACRO = """
import FreeCAD
import FreeCADGui
import Part
from PySide2 import QtGui, QtWidgets

document = FreeCAD.newDocument("drawing")
line = document.addObject("Part::Feature", "Line")
line.Shape = Part.makeLine((0, 0, 0), (100, 60, 0))
document.recompute()
document.saveAs("drawing.FCStd")
FreeCADGui.activeView().viewTop()
FreeCADGui.SendMsgToActiveView("ViewFit")
FreeCADGui.Selection.addSelection(line)
window = FreeCADGui.getMainWindow()
window.setWindowTitle("drawing.dxf - FreeCAD")


def begin_anew():
    command = getattr(FreeCAD, "activeDraftCommand", None)
    if command:
        command.finish()
    FreeCADGui.Control.closeDialog()
    FreeCADGui.Selection.clearSelection()
    FreeCADGui.Selection.addSelection(line)


shortcut = QtWidgets.QShortcut(QtGui.QKeySequence("F12"), window, begin_anew)
"""

# A program of Qt 6 that is no drafting program: each direction is bound by hand to something that
# it can do with an empty canvas.
QPWGRAPH_DIRECTIONS = {
    "up": "viewZoomFitAction",
    "up-left": "editSelectAllAction",
    "left": "viewCenterAction",
    "down-left": "editSelectInvertAction",
    "down": "viewZoomOutAction",
    "down-right": "viewStatusbarAction",
    "right": "viewZoomInAction",
    "up-right": "viewRefreshAction",
}

PROGRAMS = {
    program.name: program
    for program in (
        Program(
            name="librecad",
            executable="librecad",
            view="QG_GraphicView",
            eight={
                "up": "ZoomAuto",
                "up-left": "ModifyOffset",
                "left": "FileOpen",
                "down-left": "EditCopy",
                "down": "FileSave",
                "down-right": "DrawText",
                "right": "DrawLine",
                "up-right": "ModifyTrim",
            },
            unbound=("zoom in", "ZoomIn"),
            dialogs=("FileOpen", "DrawText"),
            start_line=("key ctrl+m", "type line", "key Return"),
            command_line=("key ctrl+m",),
            discard=("key Tab", "key Return"),
            configuration={
                "LibreCAD/LibreCAD.conf":
                    "[Appearance]\nLanguage=en\nLanguageCmd=en\n"
                    "[Defaults]\nUnit=Millimeter\nUseQtFileOpenDialog=1\n"
                    "[Geometry]\nWindowX=0\nWindowY=0\nWindowWidth=1400\nWindowHeight=900\n"
                    "[Startup]\nFirstLoad=0\n",
            },
        ),
        Program(
            name="sketchpad",
            executable="bin/sketchpad",
            view="Canvas",
            eight={
                "up": "viewZoomBounds",
                "up-left": "modifyOffset",
                "left": "fileOpen",
                "down-left": "modifyCopy",
                "down": "fileSave",
                "down-right": "drawText",
                "right": "drawLine",
                "up-right": "modifyTrim",
            },
            unbound=("zoom in", "viewZoomIn"),
            dialogs=("fileOpen",),
            start_line=("key alt+d", "key l"),
            line_in_menu=True,
            command_line=("key Tab",),
            context_menu=True,
            links_host=True,
        ),
        Program(
            name="freecad",
            executable="freecad",
            view="SIM::Coin3D::Quarter::QuarterWidget",
            viewport="QOpenGLWidget",
            eight={
                "up": "Std_ViewFitAll",
                "up-left": "Draft_Offset",
                "left": "Std_Open",
                "down-left": "Std_Copy",
                "down": "Std_Save",
                "down-right": "Draft_Text",
                "right": "Draft_Line",
                "up-right": "Draft_Trimex",
            },
            unbound=("zoom in", "Std_ViewZoomIn"),
            dialogs=("Std_Open",),
            start_line=("key l", "key i"),
            discard=("key alt+d",),
            context_menu=True,
            menu_on_release="Gui::MainWindow",
            macro=(".FCMacro", FREECAD_MACRO),
            cancel=("key F12",),
            configuration={"FreeCAD/user.cfg": FREECAD_SETTINGS},
            # It scales with the screen's resolution, but the tests count in pixels.
            environment={"QT_FONT_DPI": "96"},
        ),
        Program(
            name="qpwgraph",
            executable="qpwgraph",
            view="qpwgraph_canvas",
            viewport="QWidget",
            eight=QPWGRAPH_DIRECTIONS,
            macro=(".qpwgraph", '<!DOCTYPE patchbay>\n<patchbay name="drawing"/>\n'),
            configuration={
                # Closing its window would only hide it otherwise.
                "rncbc.org/qpwgraph.conf": "[SystemTray]\nEnabled=false\n",
                "gesturewidget/qpwgraph.ini": "[GestureWidget]\n" + "".join(
                    f"8{number}={QPWGRAPH_DIRECTIONS[direction]}\n"
                    for number, direction in enumerate(EIGHT, 1)),
            },
        ),
    )
}
