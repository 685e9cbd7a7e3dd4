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
# Debian's build of the theme lacks its dark colours.
html_theme_options = {
    "dark_css_variables": {
        "color-foreground-primary": "#e2e4e6",
        "color-foreground-secondary": "#b4b9be",
        "color-foreground-muted": "#8f959b",
        "color-foreground-border": "#6a7076",
        "color-background-primary": "#16181b",
        "color-background-secondary": "#1d2024",
        "color-background-hover": "#262a2f",
        "color-background-hover--transparent": "#262a2f00",
        "color-background-border": "#363b41",
        "color-background-item": "#40464d",
        "color-brand-primary": "#8cc0f5",
        "color-brand-content": "#7fb6f0",
        "color-highlighted-background": "#4a3f10",
        "color-highlight-on-target": "#33361a",
    },
}
html_favicon = "../launcher/desktop/mouse-gestures.svg"
html_logo = html_favicon
html_static_path = ["site/static"]
html_css_files = ["site.css"]
templates_path = ["site/templates"]
html_copy_source = False
html_show_sourcelink = False
html_use_index = False


# Debian's build of the theme has its script in two parts that browsers refuse to load. The pages need
# it as little as the libraries that Sphinx adds for older themes.
UNUSED_SCRIPTS = ("scripts/furo.js", "jquery.js", "underscore.js",
                  "_sphinx_javascript_frameworks_compat.js")


def drop_unused_scripts(app, pagename, templatename, context, doctree):
    scripts = context.get("script_files", [])
    context["script_files"] = [script for script in scripts
                               if not str(getattr(script, "filename", script)).endswith(UNUSED_SCRIPTS)]


def keep_words_whole(app, pagename, templatename, context, doctree):
    """A browser breaks a line behind any hyphen. In a command, "--json" must stay one word."""
    def marked(block):
        words = re.sub(r"(?<![^\s>])([^\s<>]*-[^\s<>]+)", r'<span class="word">\1</span>', block[2])
        return block[1] + words
    context["body"] = re.sub(r'(<div class="highlight-(?:sh|console|text) .*?<pre>)(.*?</pre>)', marked,
                             context.get("body", ""), flags=re.DOTALL)


def setup(app):
    app.connect("html-page-context", drop_unused_scripts, priority=900)
    app.connect("html-page-context", keep_words_whole)
    # Columns, or a drawing made of characters. Its lines must not be broken.
    app.add_lexer("fixed", TextLexer)
