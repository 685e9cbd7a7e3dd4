# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""How Sphinx builds the pages: docs/build"""

import re
import sys
from pathlib import Path

from pygments.lexers import TextLexer

HERE = Path(__file__).resolve().parent
sys.dont_write_bytecode = True
sys.path.insert(0, str(HERE / "site"))

project = "Mouse gestures"
author = "GestureWidget developers"
project_copyright = f"2026 {author}"
language = "en"
release = re.search(r"project\(GestureWidget VERSION ([0-9.]+)",
                    (HERE.parent / "CMakeLists.txt").read_text(encoding="utf-8"))[1]

extensions = ["myst_parser", "manualpage"]
myst_enable_extensions = ["colon_fence", "deflist"]
myst_heading_anchors = 3  # a link may name a heading, as in page.md#heading
exclude_patterns = ["site"]
nitpicky = True

html_theme = "furo"  # reads well in a narrow window and in the dark, and fetches nothing
html_title = project
html_favicon = "../launcher/desktop/mouse-gestures.svg"
html_logo = html_favicon
html_static_path = ["site/static"]
html_css_files = ["site.css"]
templates_path = ["site/templates"]
html_copy_source = False
html_show_sourcelink = False
html_use_index = False


def setup(app):
    # The arrows between rooms, which scripts/check-arrows reads.
    app.add_lexer("arrows", TextLexer)
