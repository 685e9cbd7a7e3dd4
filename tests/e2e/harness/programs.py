"""The programs in which the tests perform gestures, and what each direction runs in them.

What is expected is written down here by hand and not read from the program's profile:
the profile is one of the things under test.
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
    executable: str  # found on PATH; relative to the build folder when it has a slash
    view: str  # class name of its drawing view
    # Object name of the action that each direction runs with the first bindings.
    eight: dict
    # What finds a command in the dialog that no direction has at first, and its action.
    unbound: tuple = ()
    # Actions that open a dialog, which Escape closes.
    dialogs: tuple = ()
    # What the driver does to start the line tool, and to get to the command line.
    start_line: tuple = ()
    # Whether starting the line tool that way opens a menu.
    line_in_menu: bool = False
    command_line: tuple = ()
    # What the driver does where the program asks whether to save, to lose the changes.
    discard: tuple = ()
    # Whether a right click in the view opens a menu.
    context_menu: bool = False
    # Where that menu opens with the release and not with the press: the class of what sees the
    # release last, once the menu has closed.
    menu_on_release: str = ""
    # Files of its configuration folder, so that it starts without questions.
    configuration: dict = field(default_factory=dict)
    # Whether it has gestures without being started through mouse-gestures.
    links_host: bool = False
    # The name's ending and the text of a file that makes the drawing when it is opened; empty
    # for a program that opens the drawing itself. It must put the drawing's name into the
    # main window's title.
    macro: tuple = ()
    # Class name of what takes the pointer in the view, where that is not the view itself.
    viewport: str = ""
    # What the driver does before Escape, to end a command that Escape does not reach.
    cancel: tuple = ()
    # What it needs in the environment.
    environment: dict = field(default_factory=dict)

    @property
    def four(self):
        return {direction: self.eight[direction] for direction in FOUR}


# The commands of the first bindings are those of this workbench; neither a start page nor a
# splash screen.
FREECAD_SETTINGS = """<?xml version="1.0" encoding="UTF-8" standalone="no" ?>
<FCParameters><FCParamGroup Name="Root"><FCParamGroup Name="BaseApp">
  <FCParamGroup Name="Preferences">
    <FCParamGroup Name="General">
      <FCText Name="AutoloadModule">DraftWorkbench</FCText>
      <FCText Name="Language">English</FCText>
      <FCBool Name="ShowSplasher" Value="0"/>
    </FCParamGroup>
    <FCParamGroup Name="Mod"><FCParamGroup Name="Start">
      <FCBool Name="ShowOnStartup" Value="0"/>
    </FCParamGroup></FCParamGroup>
  </FCParamGroup>
</FCParamGroup></FCParamGroup></FCParameters>
"""
# A selected line, saved, seen from above. F12 puts an end to a command whose panel takes the
# keyboard a moment later, which Escape may be too early for, and selects the line again:
# some commands can be used only while something is selected.
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
            # It scales itself by the screen's resolution; the tests count in pixels.
            environment={"QT_FONT_DPI": "96"},
        ),
    )
}
