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
    # Actions that open a dialog, which Escape closes.
    dialogs: tuple = ()
    # What the driver does to start the line tool, and to get to the command line.
    start_line: tuple = ()
    command_line: tuple = ()
    # What the driver does where the program asks whether to save, to lose the changes.
    discard: tuple = ()
    # Whether a right click in the view opens a menu.
    context_menu: bool = False
    # Files of its configuration folder, so that it starts without questions.
    configuration: dict = field(default_factory=dict)
    # Whether it has gestures without being started through mouse-gestures.
    links_host: bool = False

    @property
    def four(self):
        return {direction: self.eight[direction] for direction in FOUR}


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
            dialogs=("fileOpen",),
            start_line=("key alt+d", "key l"),
            command_line=("key Tab",),
            context_menu=True,
            links_host=True,
        ),
    )
}
