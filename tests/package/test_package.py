#!/usr/bin/env python3
"""Installs and packs what was built, and uses it from where it then lies."""

import argparse
import os
import re
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
CONSUMER = ROOT / "tests" / "consumer"
ENTRY = "Mouse Gestures..."

options = None


def run(*command, environment=None, status=0):
    """Runs a command; returns its standard output. Any other status fails the test."""
    result = subprocess.run([str(part) for part in command], stdout=subprocess.PIPE,
                            stderr=subprocess.PIPE, text=True, env=environment, check=False)
    assert result.returncode == status, \
        f"{command} ended with {result.returncode}:\n{result.stdout}\n{result.stderr}"
    return result.stdout


def is_elf(path):
    if path.is_symlink() or not path.is_file():
        return False
    with path.open("rb") as file:
        return file.read(4) == b"\x7fELF"


def run_path_faults(path):
    """What is wrong with the folders that the dynamic loader searches for a binary's libraries. It
    takes an empty or relative entry for the current folder of whoever starts the program."""
    found = re.search(r"\((?:RUNPATH|RPATH)\)[^\[]*\[(.*)\]", run("readelf", "-dW", path))
    entries = found.group(1).split(":") if found else []
    return [entry for entry in entries if not entry.startswith(("/", "$ORIGIN"))]


def run_paths(_):
    """No binary of the build tree takes libraries from the current folder."""
    binaries = [path for folder in ("bin", "lib", "libexec", "plugins", "tests")
                for path in (options.build / folder).rglob("*")
                if "CMakeFiles" not in path.parts and is_elf(path)]
    names = {path.name for path in binaries}
    for name in ("mouse-gestures", f"gesturewidget-module-qt{options.qt}.so",
                 f"libmousegestures-qt{options.qt}.so"):
        assert name in names, f"{name} is not built"
    faults = {str(path): run_path_faults(path) for path in binaries}
    faults = {path: entries for path, entries in faults.items() if entries}
    assert not faults, f"run paths with folders that depend on the current one: {faults}"


def same(what, found, expected):
    missing = sorted(set(expected) - set(found))
    surplus = sorted(set(found) - set(expected))
    assert not missing and not surplus, f"{what}: missing {missing}, not expected {surplus}"


def library(name):
    return f"{options.libdir}/libgesturewidget-{name}-qt{options.qt}.so"


def version():
    text = (ROOT / "CMakeLists.txt").read_text()
    return re.search(r"project\(GestureWidget VERSION ([0-9.]+)", text).group(1)


def built_files():
    """What carries the Qt version in its name and runs."""
    qt = options.qt
    return {f"{library(name)}.{number}" for name in ("sdk", "host") for number in ("0", version())} | {
        f"{options.libdir}/gesturewidget-module-qt{qt}.so",
        f"{options.libdir}/gesturewidget/qt{qt}/plugins/generic/libmousegestures-qt{qt}.so"}


def common_files():
    profiles = {f"share/gesturewidget/profiles/{path.name}"
                for path in (ROOT / "host" / "profiles").glob("*.json")}
    assert "share/gesturewidget/profiles/librecad.json" in profiles
    return profiles | {
        "bin/mouse-gestures",
        "libexec/gesturewidget/mouse-gestures-sheet",
        "share/applications/mouse-gestures.desktop",
        "share/bash-completion/completions/mouse-gestures",
        "share/doc/gesturewidget/user-guide.html",
        "share/gesturewidget/bindings.schema.json",
        "share/man/man1/mouse-gestures.1"}


def built_devel_files(build_type):
    targets = f"{options.libdir}/cmake/GestureWidget/GestureWidgetQt{options.qt}Targets"
    return {library("sdk"), library("host"), f"{targets}.cmake", f"{targets}-{build_type}.cmake"}


def common_devel_files():
    sdk = {f"include/gesturewidget/{path.relative_to(ROOT)}" for path in (ROOT / "sdk").rglob("*.h")}
    assert "include/gesturewidget/sdk/chx/CHxString.h" in sdk
    config = f"{options.libdir}/cmake/GestureWidget/GestureWidgetConfig"
    return sdk | {"include/gesturewidget/host/GestureHost.h", "include/gesturewidget/host/HostExport.h",
                  f"{config}.cmake", f"{config}Version.cmake"}


def files_below(folder):
    return {str(path.relative_to(folder)) for path in folder.rglob("*")
            if path.is_symlink() or not path.is_dir()}


def build_type():
    cache = (options.build / "CMakeCache.txt").read_text()
    found = re.search(r"^CMAKE_BUILD_TYPE:\w+=(\w+)", cache, re.MULTILINE)
    return found.group(1).lower() if found else "noconfig"


def clean_environment(home):
    """Nothing of the build, of this machine's person or of another desktop."""
    environment = {name: value for name, value in os.environ.items()
                   if name in ("PATH", "TMPDIR", "LD_PRELOAD")}
    return dict(environment, HOME=str(home), XDG_CONFIG_HOME=str(home / "config"),
                XDG_RUNTIME_DIR=str(home), QT_QPA_PLATFORM="offscreen", LANG="C.UTF-8")


def build_consumer(prefix, folder):
    run(options.cmake, "-S", CONSUMER, "-B", folder, f"-DCMAKE_PREFIX_PATH={prefix}",
        f"-DGESTUREWIDGET_QT={options.qt}", "-DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF")
    found = re.search(r"^GestureWidget_DIR:\w+=(.*)$", (folder / "CMakeCache.txt").read_text(),
                      re.MULTILINE).group(1)
    assert Path(found) == prefix / options.libdir / "cmake/GestureWidget", found
    run(options.cmake, "--build", folder)
    return folder / "consumer"


def check_loaded(output, prefix, names):
    """The program says its menu's entry and then what it has in memory."""
    lines = output.splitlines()
    assert lines and lines[0] == ENTRY, output[:200]
    loaded = {line.split(None, 5)[5] for line in lines[1:] if len(line.split(None, 5)) == 6}
    ours = {path for path in loaded if re.search(r"gesturewidget|mousegestures", path)}
    strange = {path for path in ours if not Path(path).resolve().is_relative_to(prefix.resolve())}
    assert not strange, f"loaded from elsewhere: {strange}"
    for name in names:
        assert any(name in Path(path).name for path in ours), f"{name} is not loaded: {sorted(ours)}"


def use(prefix, launcher, folder):
    """Gestures from what lies in `prefix`, hosted by a program itself and brought into one."""
    environment = clean_environment(folder)
    program = build_consumer(prefix, folder / "consumer")
    names = [f"libgesturewidget-sdk-qt{options.qt}", f"libgesturewidget-host-qt{options.qt}",
             f"gesturewidget-module-qt{options.qt}"]
    check_loaded(run(program, environment=environment), prefix, names)
    # Linked to the host's library, but not using it: what gets in is the plug-in.
    check_loaded(run(launcher, program, "as-a-guest", environment=environment), prefix,
                 names + [f"libmousegestures-qt{options.qt}"])


def check_launcher(launcher, prefix, folder):
    """The program finds the plug-in from where it lies."""
    script = folder / "show-environment"
    script.write_text("#!/bin/sh\necho \"$QT_PLUGIN_PATH\"\n")
    script.chmod(0o755)
    path = run(launcher, script, environment=clean_environment(folder)).strip()
    assert path == str(prefix / options.libdir / f"gesturewidget/qt{options.qt}/plugins"), path
    assert version() in run(launcher, "--version")


def installation(folder):
    """cmake --install, by components and as a whole."""
    # A Qt 6 build has in components of its own what it has in common with Qt 5.
    expected = {"Runtime": built_files(), "Devel": built_devel_files(build_type())}
    if options.qt == "5":
        expected["Runtime"] |= common_files()
        expected["Devel"] |= common_devel_files()
    else:
        expected["RuntimeCommon"] = common_files()
        expected["DevelCommon"] = common_devel_files()
    for component, files in expected.items():
        part = folder / component
        run(options.cmake, "--install", options.build, "--prefix", part, "--component", component)
        same(f"component {component}", files_below(part), files)
    prefix = folder / "prefix"
    run(options.cmake, "--install", options.build, "--prefix", prefix)
    same("installation", files_below(prefix), set().union(*expected.values()))
    check_launcher(prefix / "bin/mouse-gestures", prefix, folder)
    use(prefix, prefix / "bin/mouse-gestures", folder)
    # Nothing of it knows where it was built or put: it may be moved.
    moved = folder / "elsewhere"
    prefix.rename(moved)
    check_launcher(moved / "bin/mouse-gestures", moved, folder)
    use(moved, moved / "bin/mouse-gestures", folder / "again")


def debian_packages(folder):
    """cpack, and what dpkg-deb makes of the packages."""
    run(options.cpack, "--config", options.build / "CPackConfig.cmake", "-G", "DEB", "-B", folder)
    suffix = "" if options.qt == "5" else "-qt6"
    architecture = run("dpkg", "--print-architecture").strip()
    names = {f"gesturewidget{suffix}": built_files(),
             f"gesturewidget{suffix}-dev": built_devel_files(build_type())}
    if options.qt == "5":
        names["gesturewidget"] |= common_files()
        names["gesturewidget-dev"] |= common_devel_files()
    same("packages", {path.name for path in folder.glob("*.deb")},
         {f"{name}_{version()}_{architecture}.deb" for name in names})

    root = folder / "root"
    depends = {}
    for name, files in names.items():
        package = folder / f"{name}_{version()}_{architecture}.deb"
        alone = folder / name
        run("dpkg-deb", "-x", package, alone)
        same(name, files_below(alone), {f"usr/{file}" for file in files})
        run("dpkg-deb", "-x", package, root)
        assert run("dpkg-deb", "-f", package, "Package").strip() == name
        assert run("dpkg-deb", "-f", package, "Version").strip() == version()
        depends[name] = run("dpkg-deb", "-f", package, "Depends")
        for line in run("dpkg-deb", "-c", package).splitlines():
            mode, owner = line.split()[:2]
            assert owner == "root/root", line
            assert mode[0] == "l" or mode[5] != "w" and mode[8] != "w", line
    runtime = depends[f"gesturewidget{suffix}"]
    for needed in ("libc6", f"libqt{options.qt}widgets"):
        assert needed in runtime, runtime
    assert f"gesturewidget{suffix} (= {version()})" in depends[f"gesturewidget{suffix}-dev"], depends

    prefix = root / "usr"
    launcher = prefix / "bin/mouse-gestures"
    if options.qt == "6":
        assert f"gesturewidget (= {version()})" in runtime, runtime
        # What its packages leave to those of Qt 5.
        for component in ("RuntimeCommon", "DevelCommon"):
            run(options.cmake, "--install", options.build, "--prefix", prefix, "--component", component)
    check_launcher(launcher, prefix, folder)
    use(prefix, launcher, folder / "use")


TESTS = {"run_paths": run_paths, "installation": installation, "debian_packages": debian_packages}


def main():
    global options
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--build", type=Path, required=True, help="the build folder")
    parser.add_argument("--qt", choices=["5", "6"], required=True)
    parser.add_argument("--cmake", default="cmake")
    parser.add_argument("--cpack", default="cpack")
    parser.add_argument("--libdir", required=True, help="folder of the libraries, from the prefix")
    parser.add_argument("test", choices=TESTS)
    options = parser.parse_args()
    with tempfile.TemporaryDirectory() as folder:
        path = Path(folder).resolve()
        (path / "again").mkdir()
        (path / "use").mkdir()
        TESTS[options.test](path)


if __name__ == "__main__":
    sys.exit(main())
