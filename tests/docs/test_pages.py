#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""Checks that the documentation is true.

    test_pages.py --build DIR --qt 5|6 commands|options|sources|example|site

commands  runs the commands that the pages show, and compares what they print with what is shown
options   mouse-gestures knows every option that a page names
sources   links and pictures of README.md and CONTRIBUTING.md are there
example   the program in docs/hosting.md has a full ring
site      links and pictures of the built pages are there, and nothing comes from elsewhere

A block of code has a language. Those called "sh" hold commands, those called "console" also what
they print: "..." stands for any text, and alone in a line for any lines. A command that prints nothing,
or that is in a block "sh", must succeed. Commands also run if they are in a line of text and complete, unlike `mouse-gestures --doctor`. The commands of a page run in one folder, in
their order.
"""

import argparse
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time
import urllib.parse
from concurrent.futures import ThreadPoolExecutor
from html.parser import HTMLParser
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
PAGES = sorted([*(ROOT / "docs").glob("*.md"), ROOT / "README.md", ROOT / "CONTRIBUTING.md",
                ROOT / "benchmarks/README.md"])

# Commands that are not run, and why.
NOT_RUN = {
    r"apt-get ": "changes the machine; scripts/packages.sh installs the same",
    r"\./(test|run|bench)\b": "takes long; this is the way in which tests are run",
    r"(cmake --(preset|build --preset)|ctest --preset|QT_QPA_PLATFORM=offscreen build/qt5/bin/tst_)":
        "builds or runs the tests",
    r"cmake --install": "the package tests do it",
    r"cmake (-S|--build) drafter|drafter/build/drafter":
        "the package tests build it against an installation; the test \"example\" starts it",
    r"g\+\+ .*\$\(pkg-config ": "the package tests build a program in this way",
    r"scripts/(lint|flakes|fuzz|mutants|translations)\b": "takes long, or changes the sources",
    r"docs/(build|pictures)\b": "the build calls the first; the second needs real programs",
    r"clang-format ": "changes the sources; scripts/lint calls it",
    r"dpkg-buildpackage": "the package tests do it",
    r"tests/(e2e|support)/": "needs a desktop and a real program",
    r"cp \S+ /etc/": "needs an administrator; tst_sitesettings reads such files",
    r"mouse-gestures( --explain| --list-commands)? ipe\b": "needs Ipe, which brings a whole TeX; "
        "docs/pictures tries the profile in it",
    r"/usr/bin/jsonschema": "docs_profile_schema uses the same package",
}
# These words stand for something else in a command.
PLACEHOLDERS = {"PROGRAM": "librecad", "DRAWING": "drawing.dxf", "FILE": "drawing.dxf"}
# Scripts of ours that a page may name, with the options that it names. Each must know them.
OWN_SCRIPT = re.compile(r"^(?:\S+=\S+ )*((?:\./|scripts/|docs/|tests/e2e/)[\w-]+)(?= |$)(.*)")
# Options of other programs that are named alone.
FOREIGN_OPTIONS = {"--functions"}
# A page may link to these.
ELSEWHERE = ("https://keepachangelog.com/", "https://semver.org/")

options = None


class Block:
    def __init__(self, page, line, language, text):
        self.where = f"{page.relative_to(ROOT)}:{line}"
        self.language = language
        self.text = text


def blocks_of(page):
    """The blocks of code of a page, and those commands that are in a line of text."""
    text = page.read_text(encoding="utf-8")
    found = []
    fence = re.compile(r"^( *)(`{3,})([^\n]*)\n(.*?)^\1\2$", re.MULTILINE | re.DOTALL)
    for match in fence.finditer(text):
        line = text.count("\n", 0, match.start()) + 1
        language = match[3].strip()
        if not language.startswith("{"):
            assert language, f"{page.relative_to(ROOT)}:{line}: a block of code without a language"
            found.append((match.start(), Block(page, line + 1, language, match[4])))
    assert not re.search(r"^    [^ |>*-].*$", fence.sub("", text), re.MULTILINE) or page.name == "decisions.md", \
        f"{page.name}: an indented block of code; give it a fence and a language"
    for match in re.finditer(r"`(mouse-gestures [^`]*[A-Za-z]+[ \n]+[^`]+)`", fence.sub(lambda m: re.sub(r"[^\n]", " ", m[0]), text)):
        line = text.count("\n", 0, match.start()) + 1
        found.append((match.start(), Block(page, line, "sh", match[1].replace("\n", " ") + "\n")))
    return [block for _, block in sorted(found, key=lambda pair: pair[0])]


def steps_of(block):
    """Yields (command, what it prints, or None if that is not shown)."""
    if block.language == "sh":
        for line in block.text.splitlines():
            command = re.sub(r"\s+#.*$", "", line).strip()
            if command:
                yield command, None
        return
    for part in re.split(r"^\$ ", block.text, flags=re.MULTILINE)[1:]:
        command, _, shown = part.partition("\n")
        yield command, shown


def reason_not_to_run(command):
    return next((reason for pattern, reason in NOT_RUN.items() if re.match(pattern, command)), None)


def is_as_shown(shown, printed):
    pattern = ""
    for line in shown.splitlines():
        parts = [re.escape(part) for part in line.rstrip().split("...")]
        # A caption such as "Open..." ends with these dots as well.
        pattern += r"(?:.*\n)*?" if line.strip() == "..." else r"[^\n]*".join(parts) + r"[^\n]*?\n"
    return re.fullmatch(pattern, printed) is not None


def environment_of(home):
    binaries = home / "bin"
    return dict(
        # GCOV_ERROR_FILE keeps what a build that counts lines says about its counts out of the output.
        {name: os.environ[name] for name in ("TMPDIR", "LD_PRELOAD", "GCOV_ERROR_FILE")
         if name in os.environ},
        PATH=f"{binaries}:/usr/bin:/bin", HOME=str(home), XDG_CONFIG_HOME=str(home / ".config"),
        XDG_DATA_HOME=str(home / ".local/share"), XDG_DATA_DIRS=str(home / "share"),
        XDG_CONFIG_DIRS=str(home / "etc"), XDG_RUNTIME_DIR=str(home), LANG="C.UTF-8",
        QT_QPA_PLATFORM="offscreen", DISPLAY=":0", STAND_IN_STAYS="")


def run(command, home, **variables):
    environment = dict(environment_of(home), **variables)
    if not environment["STAND_IN_STAYS"]:
        del environment["STAND_IN_STAYS"]
    return subprocess.run(command, shell=True, executable="/bin/bash", cwd=home, env=environment,
                          stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          text=True, timeout=60, check=False)


def make_home(home):
    """A folder in which a person might type the commands, with stand-ins for real programs."""
    (home / "bin").mkdir(parents=True)
    (home / "share/applications").mkdir(parents=True)
    (home / ".config").mkdir()
    home.chmod(0o700)
    for program in ("librecad", "freecad", "ipe", "plate"):
        shutil.copy(options.build / "tests/docs/docs-stand-in", home / "bin" / program)
        (home / f"share/applications/{program}.desktop").write_text(
            f"[Desktop Entry]\nType=Application\nName={program}\nExec={program} %F\n")
    for name in ("mouse-gestures", "mouse-gestures-settings"):
        (home / "bin" / name).symlink_to(options.build / "bin" / name)
    for name in ("drawing.dxf", "figure.ipe"):
        (home / name).write_text("")
    for profile in (ROOT / "docs/examples").glob("*.json"):
        shutil.copy(profile, home)
    shutil.copytree(ROOT / "host/profiles", home / "host/profiles")
    (home / "build").mkdir()
    (home / "build/qt5").symlink_to(options.build)


def filled_in(command):
    for name, value in PLACEHOLDERS.items():
        command = re.sub(rf"\b{name}\b", value, command)
    return command


class PageTrial:
    """The commands of one page, run in one folder."""

    def __init__(self, page, first, folder):
        self.wrong = []
        self.count = 0
        self.reasons = set()
        self._explained = set()  # that takes seconds and changes nothing, so once is enough
        home = folder / page.relative_to(ROOT).as_posix().replace("/", "-")
        shutil.copytree(first, home, symlinks=True)
        for block in blocks_of(page):
            for typed, shown in steps_of(block) if block.language in ("sh", "console") else ():
                reason = reason_not_to_run(typed)
                if reason:
                    self.reasons.add(reason)
                    self.wrong += [f"{block.where}: {problem}" for problem in problems_of_script(typed)]
                else:
                    self._try(f"{block.where}: {typed}", typed, home, shown)

    def _try(self, where, typed, home, shown):
        self.count += 1
        if shown:  # the pages show Debian's LibreCAD, the stand-in has the Qt of this build
            shown = re.sub(r"^(  Qt: +)5$", rf"\g<1>{options.qt}", shown, flags=re.MULTILINE)
        if "--explain" in typed and shown is None:
            if filled_in(typed) in self._explained:
                return
            self._explained.add(filled_in(typed))
        result = run(filled_in(typed), home, STAND_IN_STAYS="yes" if "--explain" in typed else "",
                     QT_QPA_PLATFORM="" if "WAYLAND_DISPLAY" in typed else "offscreen")
        if result.returncode != 0 and not shown:
            self.wrong.append(f"{where}\nended with {result.returncode}:\n{result.stdout}")
        elif shown is not None and not is_as_shown(shown, result.stdout):
            self.wrong.append(f"{where}\nprints\n{result.stdout}and not\n{shown}")


def commands(folder):
    first = folder / "first"
    make_home(first)
    started = run("mouse-gestures librecad drawing.dxf", first)
    assert started.returncode == 0, started.stdout
    # Most of the time they wait.
    with ThreadPoolExecutor(max_workers=8) as pool:
        trials = list(pool.map(lambda page: PageTrial(page, first, folder), PAGES))
    count = sum(trial.count for trial in trials)
    assert count > 40, f"only {count} commands were found"
    unused = set(NOT_RUN.values()).difference(*(trial.reasons for trial in trials))
    return [fault for trial in trials for fault in trial.wrong] + [
        f"no command needs this reason any more: {reason}" for reason in sorted(unused)]


def problems_of_script(command):
    """A script of ours that is not run is there at least, and knows the options."""
    match = OWN_SCRIPT.match(command)
    if not match:
        return []
    script = ROOT / match[1]
    if not script.is_file():
        return [f"{match[1]} does not exist"]
    wanted = re.findall(r"--[a-z][\w-]*", match[2])
    if not wanted:
        return []
    text = script.read_text(encoding="utf-8")
    return [f"{match[1]} knows no {option}" for option in wanted if option not in text]


def known_options():
    listed = subprocess.run([options.build / "bin/mouse-gestures", "--help"], stdout=subprocess.PIPE,
                            env=dict(os.environ, LANG="C.UTF-8", LANGUAGE=""), text=True, check=True).stdout
    found = set(re.findall(r"(?<![\w-])--[a-z][\w-]*", listed))
    assert len(found) > 15, found
    return found


def named_options(text):
    """The options in a text that are meant for mouse-gestures: those of its commands, and those that
    are named alone, as in `--doctor`."""
    found = set()
    for command in re.findall(r"mouse-gestures((?:[ \n]+[^`\s|>;]+)+)", text):
        found.update(re.findall(r"(?<=[ \n])--[a-z][\w-]*", command))
    found.update(re.findall(r"`(--[a-z][\w-]*)", text))
    return found


def unknown_options(_):
    known = known_options() | FOREIGN_OPTIONS
    texts = {page: page.read_text(encoding="utf-8") for page in [*PAGES, ROOT / "CHANGELOG.md"]}
    manual = (ROOT / "docs/mouse-gestures.1").read_text(encoding="utf-8").replace("\\-", "-")
    wrong = [f"docs/mouse-gestures.1: {option}" for option in set(re.findall(r"--[a-z][\w-]*", manual)) - known]
    count = 0
    for page, text in texts.items():
        named = named_options(text)
        count += len(named)
        own = set()  # options of ./test, ./bench and so on
        for script in re.findall(r"`?(\./\w+|scripts/[\w-]+|docs/\w+|tests/e2e/[\w-]+)", text):
            if (ROOT / script).is_file():
                own.update(re.findall(r"--[a-z][\w-]*", (ROOT / script).read_text(encoding="utf-8")))
        wrong += [f"{page.relative_to(ROOT)}: mouse-gestures knows no {option}"
                  for option in sorted(named - known - own)]
    assert count > 30, f"only {count} options were found"
    return wrong


def sources(_):
    wrong = []
    count = 0
    for page in [ROOT / name for name in ("README.md", "CONTRIBUTING.md", "CHANGELOG.md", "benchmarks/README.md")]:
        for target in re.findall(r"\]\(([^)\s]+)\)", page.read_text(encoding="utf-8")):
            count += 1
            if target.startswith(ELSEWHERE):
                continue
            file, _, _ = target.partition("#")
            if re.match(r"\w+:", target) or not (page.parent / file).is_file():
                wrong.append(f"{page.relative_to(ROOT)}: {target} leads nowhere")
    assert count > 8, f"only {count} links were found"
    return wrong


def example(folder):
    """Starts the program of docs/hosting.md and asks which commands it has shown."""
    home = folder / "home"
    make_home(home)
    drafter = options.build / "tests/docs/drafter"
    remembered = home / ".config/gesturewidget/drafter.commands.json"
    with subprocess.Popen([drafter], env=environment_of(home), cwd=home) as process:
        end = time.monotonic() + 30
        while not remembered.exists() and time.monotonic() < end and process.poll() is None:
            time.sleep(0.02)
        process.terminate()
    listed = run(f"mouse-gestures --list-commands {drafter}", home).stdout
    wanted = {"ID_ZOOM_BOUNDS", "ID_OFFSET", "ID_OPEN", "ID_COPY", "ID_SAVE", "ID_DTEXT", "ID_LINE", "ID_TRIM"}
    return [f"the ring lacks {name}" for name in sorted(wanted - set(listed.split()))]


class PageReader(HTMLParser):
    """Collects the places that a page has and those that it leads to."""

    def __init__(self, text):
        super().__init__()
        self.places = set()
        self.links = []
        self.fetched = []  # by the browser, without being asked
        self.feed(text)

    def handle_starttag(self, tag, attrs):
        values = dict(attrs)
        self.places.update(filter(None, (values.get("id"), values.get("name"))))
        if tag == "a" and values.get("href"):
            self.links.append(values["href"])
        for name in ("src", "poster", "data"):
            if values.get(name):
                self.fetched.append(values[name])
        if tag == "link" and values.get("href"):
            self.fetched.append(values["href"])


def site(_):
    folder = options.build / "docs"
    pages = {path: PageReader(path.read_text(encoding="utf-8")) for path in folder.rglob("*.html")}
    assert folder / "user-guide.html" in pages, "the site is not built"
    assert "topic-9000" in pages[folder / "user-guide.html"].places, "the dialog's help has no place"
    wrong = []
    count = 0
    for path, page in pages.items():
        name = path.relative_to(folder)
        for target in page.links + page.fetched:
            count += 1
            if re.match(r"\w+:", target):
                if target in page.fetched or not target.startswith(ELSEWHERE):
                    wrong.append(f"{name}: {target} is elsewhere")
                continue
            file, _, place = urllib.parse.unquote(target.split("?")[0]).partition("#")
            other = (path.parent / file).resolve() if file else path
            if not other.is_file():
                wrong.append(f"{name}: there is no {target}")
            elif place and other in pages and target in page.links and place not in pages[other].places:
                wrong.append(f"{name}: {file or name} has no place {place}")
        if str(ROOT) in path.read_text(encoding="utf-8"):
            wrong.append(f"{name} names the folder of the sources")
    assert count > 300, f"only {count} links were found"
    for path in folder.rglob("*.css"):
        for target in re.findall(r"url\(([^)]+)\)|@import\s+[\"']([^\"']+)", path.read_text(encoding="utf-8")):
            if re.match(r"[\"']?(https?:)?//", "".join(target)):
                wrong.append(f"{path.relative_to(folder)}: {target} is elsewhere")
    unused = {path.name for path in (ROOT / "docs/images").iterdir()} - {
        Path(target).name for page in pages.values() for target in page.fetched}
    return wrong + [f"no page shows docs/images/{name}" for name in sorted(unused)]


TESTS = {"commands": commands, "options": unknown_options, "sources": sources, "example": example,
         "site": site}


def main():
    global options
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--build", type=Path, required=True)
    parser.add_argument("--qt", choices=["5", "6"], required=True)
    parser.add_argument("test", choices=TESTS)
    options = parser.parse_args()
    options.build = options.build.resolve()
    with tempfile.TemporaryDirectory() as folder:
        wrong = TESTS[options.test](Path(folder).resolve())
    print("\n".join(wrong) or "all true")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
