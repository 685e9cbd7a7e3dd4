#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""Checks docs/bindings.schema.json with the same files of fixtures/ as the code."""

import json
import sys
from pathlib import Path

import jsonschema

ROOT = Path(__file__).resolve().parents[3]
FIXTURES = ROOT / "tests" / "launcher" / "settings" / "fixtures"


def text_of(case, exported):
    if "replace" not in case:
        return case["text"]
    assert case["replace"] in exported, case["name"]
    return exported.replace(case["replace"], case["by"], 1)


def is_valid(validator, text):
    try:
        return validator.is_valid(json.loads(text))
    except json.JSONDecodeError:
        return False


def main():
    schema = json.loads((ROOT / "docs" / "bindings.schema.json").read_text(encoding="utf-8"))
    jsonschema.Draft202012Validator.check_schema(schema)
    validator = jsonschema.Draft202012Validator(schema)
    exported = (FIXTURES / "exported.json").read_text(encoding="utf-8")
    cases = json.loads((FIXTURES / "cases.json").read_text(encoding="utf-8"))
    assert len(cases) > 50
    wrong = []
    for case in cases:
        # A schema cannot express some of the rules.
        expected = case["says"] == "" or case.get("beyondSchema", False)
        if is_valid(validator, text_of(case, exported)) != expected:
            wrong.append(f"{case['name']}: should be {'taken' if expected else 'refused'}")
    print("\n".join(wrong) or f"{len(cases)} files judged")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
