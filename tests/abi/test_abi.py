#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""Compares what a library offers with its record: test_abi.py LIBRARY CLASSES RECORD [--write]

The record holds the library's functions and, for each class that its users see, the size, the offsets of
bases and members in bytes, and the places of the virtual functions in the table. A program or module
that was built with others would crash. Prints the differences and exits with 1 if there are any.

CLASSES is a regular expression for the beginning of a class's name. --write writes the record. Do that
when a difference is meant. Raise the SOVERSION of the library then, unless something was only added.
"""

import argparse
import difflib
import re
import shlex
import subprocess
import sys
import tempfile
from pathlib import Path
from xml.etree import ElementTree

BITS = 8  # in a byte


def description(library):
    """The library's functions and their types, as libabigail sees them."""
    with tempfile.TemporaryDirectory() as folder:
        file = Path(folder) / "description.xml"
        subprocess.run(["abidw", "--no-show-locs", "--no-corpus-path", "--no-comp-dir-path",
                        "--type-id-style", "hash", "--out-file", file, library], check=True)
        return ElementTree.parse(file).getroot()


def functions(root):
    """Leaves out inline ones: the compiler decides whether the library holds a copy of those."""
    mangled = [symbol.get("name") for symbol in root.findall("elf-function-symbols/elf-symbol")
               if symbol.get("binding") == "global-binding"]
    names = subprocess.run(["c++filt"], input="\n".join(mangled), stdout=subprocess.PIPE, check=True,
                           text=True).stdout.splitlines()
    return sorted(set(names))  # a constructor has several symbols


class Types:
    """The types in a description, and their names in C++."""

    def __init__(self, root):
        self._parents = {child: parent for parent in root.iter() for child in parent}
        self._by_id = {element.get("id"): element for element in root.iter() if element.get("id")}
        self._root = root

    def name(self, type_id):
        element = self._by_id.get(type_id)
        if element is None:
            return "?"
        inner = element.get("type-id")
        if element.tag == "pointer-type-def":
            return self.name(inner) + " *"
        if element.tag == "reference-type-def":
            return self.name(inner) + " &"
        if element.tag == "qualified-type-def":
            marks = [mark for mark in ("const", "volatile") if element.get(mark) == "yes"]
            return " ".join([*marks, self.name(inner)])
        if element.tag == "function-type":
            return "function"
        return self.full_name(element)

    def full_name(self, element):
        names = [element.get("name", "?")]
        parent = self._parents.get(element)
        while parent is not None:
            if parent.tag in ("class-decl", "namespace-decl"):
                names.insert(0, parent.get("name"))
            parent = self._parents.get(parent)
        return "::".join(names)

    def classes(self, names):
        """The classes by name, without those that are only declared."""
        found = {}
        for element in self._root.iter("class-decl"):
            name = self.full_name(element)
            if names.match(name) and element.get("is-declaration-only") != "yes":
                found[name] = element
        return found

    def lines_of(self, name, element):
        lines = [f"class {name}, {int(element.get('size-in-bits', 0)) // BITS} bytes"]
        for base in element.findall("base-class"):
            offset = int(base.get("layout-offset-in-bits", 0)) // BITS
            lines.append(f"    {offset:>4}  base {self.name(base.get('type-id'))}")
        for member in element.findall("data-member"):
            if member.get("static") == "yes":
                continue
            offset = int(member.get("layout-offset-in-bits", 0)) // BITS
            variable = member.find("var-decl")
            lines.append(f"    {offset:>4}  {self.name(variable.get('type-id'))} "
                         f"{variable.get('name')}")
        places = {(int(member.get("vtable-offset")), member.find("function-decl").get("name"))
                  for member in element.findall("member-function") if member.get("vtable-offset")}
        # libabigail knows no place for a destructor, which has two.
        lines += [f"    virtual {place if place >= 0 else '':>2}  {function}()"
                  for place, function in sorted(places)]
        return lines


def record(library, names):
    root = description(library)
    lines = ["# Functions", *functions(root), "", "# Classes"]
    types = Types(root)
    for name, element in sorted(types.classes(names).items()):
        lines += types.lines_of(name, element)
    return [line + "\n" for line in lines]


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("built", metavar="LIBRARY", type=Path)
    parser.add_argument("classes", metavar="CLASSES", type=re.compile)
    parser.add_argument("record", metavar="RECORD", type=Path)
    parser.add_argument("--write", action="store_true", help="write the record")
    options = parser.parse_args()

    found = record(options.built, options.classes)
    if options.write:
        options.record.write_text("".join(found), encoding="utf-8")
        return 0
    expected = options.record.read_text(encoding="utf-8").splitlines(keepends=True)
    differences = list(difflib.unified_diff(expected, found, options.record.name,
                                            options.built.name, n=0))
    if not differences:
        return 0
    sys.stdout.writelines(differences)
    print(f"{options.built.name} offers something else than {options.record.name} says: "
          "programs that were built with it would crash.\nIf that is meant, see "
          f"`test_abi.py --help` and run:\n{shlex.join([*sys.argv, '--write'])}")
    return 1


if __name__ == "__main__":
    sys.exit(main())
