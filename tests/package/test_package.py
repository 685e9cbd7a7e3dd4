#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""Installs and packs what was built, and uses it from there."""

import argparse
import os
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
CONSUMER = ROOT / "tests" / "consumer"
ENTRY = "Mouse Gestures..."
EARLIER = "0.0.9"  # any version below the present one

options = None


def run(*command, environment=None, status=0, directory=None):
    """Runs a command and returns its standard output. Any other status fails the test."""
    result = subprocess.run([str(part) for part in command], stdout=subprocess.PIPE,
                            stderr=subprocess.PIPE, text=True, env=environment, cwd=directory,
                            check=False)
    assert result.returncode == status, \
        f"{command} ended with {result.returncode}:\n{result.stdout}\n{result.stderr}"
    return result.stdout


def is_elf(path):
    if path.is_symlink() or not path.is_file():
        return False
    with path.open("rb") as file:
        return file.read(4) == b"\x7fELF"


def run_path_faults(path):
    """Returns the wrong entries among the folders that the dynamic loader searches for a binary's
    libraries. For the loader, an empty or relative entry is the current folder of whoever starts
    the program."""
    found = re.search(r"\((?:RUNPATH|RPATH)\)[^\[]*\[(.*)\]", run("readelf", "-dW", path))
    entries = found.group(1).split(":") if found else []
    return [entry for entry in entries if not entry.startswith(("/", "$ORIGIN"))]


def run_paths(_):
    """No binary of the build tree takes libraries from the current folder."""
    binaries = [path for folder in ("bin", "installed", "lib", "libexec", "plugins", "tests")
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


def library(name, qt):
    return f"{options.libdir}/libgesturewidget-{name}-qt{qt}.so"


def version():
    text = (ROOT / "CMakeLists.txt").read_text()
    return re.search(r"project\(GestureWidget VERSION ([0-9.]+)", text).group(1)


def built_files(qt):
    """What runs and has the Qt version in its name."""
    return {f"{library(name, qt)}.{number}" for name in ("sdk", "host") for number in ("0", version())} | {
        f"{options.libdir}/gesturewidget-module-qt{qt}.so",
        f"{options.libdir}/gesturewidget/qt{qt}/plugins/generic/libmousegestures-qt{qt}.so"}


def common_files():
    profiles = {f"share/gesturewidget/profiles/{path.name}"
                for path in (ROOT / "host" / "profiles").glob("*.json")}
    assert "share/gesturewidget/profiles/librecad.json" in profiles
    site = {f"share/doc/gesturewidget/html/{name}" for name in files_below(options.build / "docs")}
    for name in ("index.html", "user-guide.html", "manual.html", "_images/gesture.gif"):
        assert f"share/doc/gesturewidget/html/{name}" in site, f"{name} is not built"
    return profiles | site | {
        "bin/mouse-gestures",
        "bin/mouse-gestures-settings",
        "libexec/gesturewidget/mouse-gestures-sheet",
        "share/applications/mouse-gestures.desktop",
        "share/bash-completion/completions/mouse-gestures",
        "share/gesturewidget/bindings.schema.json",
        "share/gesturewidget/profile.schema.json",
        "share/icons/hicolor/scalable/apps/mouse-gestures.svg",
        "share/man/man1/mouse-gestures.1",
        "share/man/man1/mouse-gestures-settings.1",
        "share/metainfo/org.gesturewidget.mouse_gestures.metainfo.xml"}


def built_devel_files(build_type, qt):
    targets = f"{options.libdir}/cmake/GestureWidget/GestureWidgetQt{qt}Targets"
    return {library("sdk", qt), library("host", qt), f"{targets}.cmake", f"{targets}-{build_type}.cmake",
            *(f"{options.libdir}/pkgconfig/gesturewidget-{name}-qt{qt}.pc" for name in ("sdk", "host"))}


def common_devel_files():
    # The bridge between the Qt versions and the marks of our code are for this project's own sources.
    sdk = {f"include/gesturewidget/{path.relative_to(ROOT)}" for path in (ROOT / "sdk").rglob("*.h")
           if path.name not in ("QtBridge.h", "OwnCode.h")}
    assert "include/gesturewidget/sdk/chx/CHxString.h" in sdk
    config = f"{options.libdir}/cmake/GestureWidget/GestureWidgetConfig"
    return sdk | {"include/gesturewidget/GestureHost.h", "include/gesturewidget/HostExport.h",
                  f"{config}.cmake", f"{config}Version.cmake"}


def files_below(folder):
    return {str(path.relative_to(folder)) for path in folder.rglob("*")
            if path.is_symlink() or not path.is_dir()}


def build_type():
    cache = (options.build / "CMakeCache.txt").read_text()
    found = re.search(r"^CMAKE_BUILD_TYPE:\w+=(\w+)", cache, re.MULTILINE)
    return found.group(1).lower() if found else "noconfig"


def clean_environment(home):
    """An environment without anything of the build, of the user or of a desktop."""
    environment = {name: value for name, value in os.environ.items()
                   if name in ("PATH", "TMPDIR", "LD_PRELOAD")}
    return dict(environment, HOME=str(home), XDG_CONFIG_HOME=str(home / "config"),
                XDG_RUNTIME_DIR=str(home), QT_QPA_PLATFORM="offscreen", LANG="C.UTF-8")


def build_consumer(prefix, folder, sources=CONSUMER):
    run(options.cmake, "-S", sources, "-B", folder, f"-DCMAKE_PREFIX_PATH={prefix}",
        f"-DGESTUREWIDGET_QT={options.qt}", "-DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF")
    found = re.search(r"^GestureWidget_DIR:\w+=(.*)$", (folder / "CMakeCache.txt").read_text(),
                      re.MULTILINE).group(1)
    assert Path(found) == prefix / options.libdir / "cmake/GestureWidget", found
    run(options.cmake, "--build", folder)
    return folder / "consumer"


def public_headers(prefix):
    """The installed headers, as a program names them."""
    include = prefix / "include"
    names = sorted(str(path.relative_to(include)) for path in include.rglob("*") if path.is_file())
    assert "gesturewidget/sdk/chx/CHxString.h" in names, names
    return names


def check_headers(prefix):
    """Programs share macros and namespaces with these headers, so all have our name. A header that
    includes another one finds it whatever include folders a program has."""
    for name in public_headers(prefix):
        header = prefix / "include" / name
        text = header.read_text()
        macros = re.findall(r"^\s*#\s*define\s+(\w+)", text, re.MULTILINE)
        namespaces = re.findall(r"^\s*(?:inline\s+)?namespace\s+(\w+)", text, re.MULTILINE)
        strange = [macro for macro in macros if not macro.startswith("GESTUREWIDGET_")]
        strange += [space for space in namespaces if not space.startswith("gesturewidget")]
        assert not strange, f"{name} declares {strange}"
        for other in re.findall(r'^\s*#\s*include\s+"([^"]+)"', text, re.MULTILINE):
            assert (header.parent / other).is_file(), f"{name} does not find {other}"


def use_by_pkg_config(prefix, folder):
    """Builds the program, and a file with all headers, with the flags of the pkg-config file."""
    environment = clean_environment(folder)
    environment["PKG_CONFIG_PATH"] = str(prefix / options.libdir / "pkgconfig")
    for library_name in ("sdk", "host"):
        name = f"gesturewidget-{library_name}-qt{options.qt}"
        found = run("pkg-config", "--variable=prefix", name, environment=environment).strip()
        assert Path(found).resolve() == prefix, f"{name} is for {found}"
    flags = run("pkg-config", "--cflags", "--libs", name, environment=environment).split()
    assert run("pkg-config", "--modversion", name, environment=environment).strip() == version()
    headers = folder / "headers.cpp"
    headers.write_text("".join(f"#include <{header}>\n" for header in public_headers(prefix)))
    program = folder / "pkg-config-consumer"
    run("c++", "-std=c++17", "-fPIC", "-Wall", "-Wextra", "-Werror", CONSUMER / "main.cpp", headers,
        "-o", program, *flags)
    environment["LD_LIBRARY_PATH"] = str(prefix / options.libdir)
    check_loaded(run(program, environment=environment), prefix, library_names())


def library_names():
    return [f"libgesturewidget-sdk-qt{options.qt}", f"libgesturewidget-host-qt{options.qt}",
            f"gesturewidget-module-qt{options.qt}"]


def check_loaded(output, prefix, names):
    """Checks what a program wrote: its menu's entry, then the files that it has in memory."""
    lines = output.splitlines()
    assert lines and lines[0] == ENTRY, output[:200]
    loaded = {line.split(None, 5)[5] for line in lines[1:] if len(line.split(None, 5)) == 6}
    ours = {path for path in loaded if re.search(r"gesturewidget|mousegestures", path)}
    strange = {path for path in ours if not Path(path).resolve().is_relative_to(prefix.resolve())}
    assert not strange, f"loaded from elsewhere: {strange}"
    for name in names:
        assert any(name in Path(path).name for path in ours), f"{name} is not loaded: {sorted(ours)}"


def use(prefix, launcher, folder):
    """Uses gestures from `prefix`: in a program that hosts them, and brought into one."""
    environment = clean_environment(folder)
    program = build_consumer(prefix, folder / "consumer")
    check_loaded(run(program, environment=environment), prefix, library_names())
    # This one links the host library without using it, so gestures come from the plug-in.
    check_loaded(run(launcher, program, "as-a-guest", environment=environment), prefix,
                 library_names() + [f"libmousegestures-qt{options.qt}"])


def check_launcher(launcher, prefix, folder, versions):
    """Checks that the launcher finds the plug-ins of these Qt versions from its own place."""
    script = folder / "show-environment"
    script.write_text("#!/bin/sh\necho \"$QT_PLUGIN_PATH\"\n")
    script.chmod(0o755)
    path = run(launcher, script, environment=clean_environment(folder)).strip()
    expected = [str(prefix / options.libdir / f"gesturewidget/qt{qt}/plugins") for qt in versions]
    assert path == ":".join(expected), path
    assert version() in run(launcher, "--version")


def installation(folder):
    """Installs the components one by one, then everything."""
    # A Qt 6 build has separate components for the files that are the same for both Qt versions.
    expected = {"Runtime": built_files(options.qt),
                "Devel": built_devel_files(build_type(), options.qt)}
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
    check_launcher(prefix / "bin/mouse-gestures", prefix, folder, [options.qt])
    use(prefix, prefix / "bin/mouse-gestures", folder)
    # An installation may be moved: nothing in it knows its own path.
    moved = folder / "elsewhere"
    prefix.rename(moved)
    check_launcher(moved / "bin/mouse-gestures", moved, folder, [options.qt])
    use(moved, moved / "bin/mouse-gestures", folder / "again")
    check_headers(moved)
    use_by_pkg_config(moved, folder)
    # The program that docs/hosting.md shows; tests/docs looks at its ring.
    build_consumer(moved, folder / "drafter", ROOT / "docs/examples/drafter")


def copy_sources(folder):
    """Copies the files that git knows. The package build leaves its traces there, not in the tree."""
    if folder.exists():
        shutil.rmtree(folder)
    for name in run("git", "-C", ROOT, "ls-files", "-z").split("\0"):
        source = ROOT / name
        if name and source.is_file():
            (folder / name).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy2(source, folder / name)


def build_packages(folder):
    """Runs dpkg-buildpackage on a copy of the sources. The copy is always in the same place, and
    debhelper's build gets the cache that compiled files are in outside of it. To save time, it
    compiles several sources as one, with less optimisation than Debian does. The checks of the
    hardening need some."""
    for old in folder.glob("gesturewidget*_*"):
        old.unlink()
    copy_sources(folder / "source")
    environment = dict(os.environ, DEB_BUILD_OPTIONS=f"parallel={os.cpu_count()} noautodbgsym",
                       DEB_CXXFLAGS_APPEND="-g0 -O1",
                       GESTUREWIDGET_CMAKE_OPTIONS="-DGESTUREWIDGET_PRECOMPILE=ON "
                                                   "-DCMAKE_UNITY_BUILD=ON")
    if shutil.which("ccache"):
        environment["CCACHE_DIR"] = run("ccache", "--get-config", "cache_dir").strip()
    run("dpkg-buildpackage", "-us", "-uc", "-b", directory=folder / "source", environment=environment)


def check_lintian(folder, architecture):
    """Lintian prints nothing, and no override keeps it from doing so."""
    assert not list((ROOT / "debian").rglob("*lintian-overrides")), "there are overrides"
    changes = folder / f"gesturewidget_{version()}_{architecture}.changes"
    said = run("lintian", "--allow-root", "--tag-display-limit", "0", changes)
    assert not said, said


def check_hardening(folder, binaries):
    for binary in binaries:
        assert "BIND_NOW" in run("readelf", "-dW", binary), f"{binary} is not linked with bindnow"
    for qt in ("5", "6"):
        lines = (folder / f"source/debian/build/qt{qt}/build.ninja").read_text().splitlines()
        flags = [line for line in lines if line.strip().startswith("FLAGS =") and " -O" in line]
        defines = {line for line in flags if "-D_FORTIFY_SOURCE=2" not in line}
        assert flags and not defines, f"compiled without fortify: {sorted(defines)[:3]}"


def package_files():
    """What each package holds, from the root."""
    files = {}
    for qt, suffix in (("5", ""), ("6", "-qt6")):
        files[f"gesturewidget{suffix}"] = built_files(qt)
        files[f"gesturewidget{suffix}-dev"] = built_devel_files("none", qt)
    files["gesturewidget"] |= common_files()
    files["gesturewidget-dev"] |= common_devel_files()
    # The libraries are in a folder of their own, with links in their usual places.
    for qt, suffix in (("5", ""), ("6", "-qt6")):
        files[f"gesturewidget{suffix}"] |= {
            f"{options.libdir}/gesturewidget/{Path(file).name}" for file in built_files(qt)
            if re.search(r"(?:\d\.\d\.\d|module-qt\d\.so)$", file)}
    for name in ("mouse-gestures", "mouse-gestures-settings"):
        manual = f"share/man/man1/{name}.1"
        files["gesturewidget"] ^= {manual, f"{manual}.gz"}
    for name, content in files.items():
        content |= {f"share/doc/{name}/changelog.gz", f"share/doc/{name}/copyright"}
    files["gesturewidget"].add("share/doc-base/gesturewidget.gesturewidget")
    return {name: {f"usr/{file}" for file in content} for name, content in files.items()}


def unpack(package, name, root):
    """Puts a package below `root`; returns the files in it."""
    run("dpkg-deb", "-x", package, root)
    assert run("dpkg-deb", "-f", package, "Package").strip() == name
    assert run("dpkg-deb", "-f", package, "Version").strip() == version()
    names = set()
    for line in run("dpkg-deb", "-c", package).splitlines():
        mode, owner, _, _, _, path = line.split(None, 5)
        assert owner == "root/root", line
        assert mode[0] == "l" or mode[5] != "w" and mode[8] != "w", line
        if mode[0] != "d":
            names.add(path.split(" -> ")[0].removeprefix("./"))
    return names


def check_dependencies(packages):
    def depends(name):
        return run("dpkg-deb", "-f", packages[name], "Depends")

    for qt, suffix in (("5", ""), ("6", "-qt6")):
        for needed in ("libc6", f"libqt{qt}widgets"):
            assert needed in depends(f"gesturewidget{suffix}"), depends(f"gesturewidget{suffix}")
        assert f"gesturewidget{suffix} (= {version()})" in depends(f"gesturewidget{suffix}-dev")
    assert f"gesturewidget (= {version()})" in depends("gesturewidget-qt6")
    assert f"gesturewidget-dev (= {version()})" in depends("gesturewidget-qt6-dev")


def earlier(package, folder):
    """Makes an earlier version of a package, with one more file. Returns its path."""
    files = folder / package.stem
    run("dpkg-deb", "-R", package, files)
    control = files / "DEBIAN/control"
    control.write_text(control.read_text().replace(version(), EARLIER))
    (files / f"usr/share/doc/{package.name.split('_')[0]}/earlier").write_text("only then\n")
    result = folder / f"earlier_{package.name}"
    run("fakeroot", "dpkg-deb", "-b", files, result)
    return result


def switched_on(launcher, folder):
    """Switches on a program that records its arguments. Returns a function that starts it by its
    entry in the menu and returns these arguments."""
    program = folder / "drafting"
    program.write_text(f"#!/bin/sh\necho \"$@\" >>{folder}/arguments\n")
    program.chmod(0o755)
    entries = folder / "installed/applications"
    entries.mkdir(parents=True)
    (entries / "drafting.desktop").write_text(
        f"[Desktop Entry]\nType=Application\nName=Drafting\nExec={program} --new %F\n")
    environment = dict(clean_environment(folder), XDG_DATA_HOME=str(folder / "data"),
                       XDG_DATA_DIRS=str(folder / "installed"), PATH=f"{folder}:{os.environ['PATH']}")
    run(launcher, "--enable", "drafting", environment=environment)
    entry = (folder / "data/applications/drafting.desktop").read_text()
    assert str(launcher) in entry, entry

    def start():
        (folder / "arguments").unlink(missing_ok=True)
        # A value of the file is escaped, and what it then says is quoted as for a shell.
        command = re.search(r"^Exec=(.*)$", entry, re.MULTILINE)[1].replace("\\\\", "\\")
        run("sh", "-c", command.replace("%F", "a.dxf"), environment=environment)
        return (folder / "arguments").read_text()
    return start


def check_lifecycle(packages, folder):
    """Installs an earlier version into an empty root, upgrades it, and removes and purges the
    packages. Nothing is left behind, and a program that was switched on starts at every step."""
    folder.mkdir()
    root = folder / "root"
    for name in ("info", "updates"):
        (root / "var/lib/dpkg" / name).mkdir(parents=True)
    (root / "var/lib/dpkg/status").touch()

    def dpkg(*words):
        # The root has none of the packages that ours depend on.
        run("fakeroot", "dpkg", f"--root={root}", "--force-depends", "--force-not-root",
            "--force-script-chrootless", f"--log={folder / 'log'}", *words)

    def files():
        return {name for name in files_below(root) if not name.startswith("var/lib/dpkg/")}

    def versions():
        return run("dpkg-query", f"--root={root}", "-W", "-f", "${Package} ${Version}\n").split()

    before = files()
    dpkg("-i", *(earlier(package, folder) for package in packages.values()))
    same("earlier versions", set(versions()[1::2]), {EARLIER})
    start = switched_on(root / "usr/bin/mouse-gestures", folder)
    assert start() == "--new a.dxf\n", start()

    dpkg("-i", *packages.values())
    same("versions", set(versions()[1::2]), {version()})
    same("upgraded", files(), set().union(*package_files().values()))
    assert start() == "--new a.dxf\n", start()

    dpkg("-r", *packages)
    same("removed", files(), before)
    assert start() == "--new a.dxf\n", start()
    dpkg("-P", *packages)
    same("purged", versions(), [])
    same("purged files", files(), before)


def debian_packages(folder):
    """Builds the four packages of both Qt versions, and uses them from a folder of their own."""
    place = options.build / "debian"
    place.mkdir(exist_ok=True)
    build_packages(place)
    architecture = run("dpkg", "--print-architecture").strip()
    expected = package_files()
    packages = {name: place / f"{name}_{version()}_{architecture}.deb" for name in expected}
    same("packages", set(place.glob("*.deb")), set(packages.values()))
    root = folder / "root"
    for name, package in packages.items():
        same(name, unpack(package, name, root), expected[name])
    check_dependencies(packages)
    check_lintian(place, architecture)
    check_hardening(place, filter(is_elf, root.rglob("*")))
    check_lifecycle(packages, folder / "lifecycle")

    prefix = root / "usr"
    run("desktop-file-validate", *(prefix / "share/applications").iterdir())
    run("appstreamcli", "validate", "--no-net", "--pedantic", *(prefix / "share/metainfo").iterdir())
    check_launcher(prefix / "bin/mouse-gestures", prefix, folder, ["5", "6"])
    for qt in ("5", "6"):
        options.qt = qt
        (folder / f"use-qt{qt}").mkdir()
        use(prefix, prefix / "bin/mouse-gestures", folder / f"use-qt{qt}")

    # The packages' own tests, as they run where the packages are installed.
    environment = dict(clean_environment(folder), PATH=f"{prefix / 'bin'}:{os.environ['PATH']}")
    run(ROOT / "debian/tests/gesture", environment=environment)
    libraries = prefix / options.libdir
    environment.update(CMAKE_PREFIX_PATH=str(prefix), LD_LIBRARY_PATH=str(libraries),
                       PKG_CONFIG_PATH=str(libraries / "pkgconfig"))
    run(ROOT / "debian/tests/host", environment=environment)


TESTS = {"run_paths": run_paths, "installation": installation, "debian_packages": debian_packages}


def main():
    global options
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--build", type=Path, required=True, help="the build folder")
    parser.add_argument("--qt", choices=["5", "6"], required=True)
    parser.add_argument("--cmake", default="cmake")
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
