# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""The directive "manualpage": shows a manual page in a page of the site. Needs mandoc."""

import re
import subprocess
from pathlib import Path

from docutils import nodes
from docutils.parsers.rst import Directive

SECTION = re.compile(r'<section class="Sh">\s*<h1 [^>]*><a [^>]*>(.*?)</a></h1>\s*(.*?)</section>',
                     re.DOTALL)


class ManualPage(Directive):
    """Its argument is the manual page's file, beside conf.py. Gives a section for each of the
    page's own, so that the site lists and links them."""

    required_arguments = 1

    def run(self):
        environment = self.state.document.settings.env
        file = Path(environment.srcdir) / self.arguments[0]
        environment.note_dependency(str(file))
        result = subprocess.run(["mandoc", "-T", "html", "-O", "fragment", "-W", "error,stop", file],
                                stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, check=False)
        found = SECTION.findall(result.stdout)
        if result.returncode or not found:
            raise self.error(f"{file.name}: {result.stderr or 'no sections'}")
        sections = []
        for title, body in found:
            section = nodes.section(names=[nodes.fully_normalize_name(title)])
            section += nodes.title("", title.capitalize())
            section += nodes.raw("", f'<div class="manual">{body}</div>', format="html")
            self.state.document.note_implicit_target(section, section)
            sections.append(section)
        return sections


def setup(app):
    app.add_directive("manualpage", ManualPage)
    return {"parallel_read_safe": True}
