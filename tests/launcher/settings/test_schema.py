#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""Checks docs/bindings.schema.json with the same files of fixtures/ as the code."""

import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[3]
FIXTURES = ROOT / "tests" / "launcher" / "settings" / "fixtures"
sys.path.insert(0, str(ROOT / "tests" / "support"))
from schema_cases import misjudged, validator_of  # noqa: E402


def main():
    exported = (FIXTURES / "exported.json").read_text(encoding="utf-8")

    def text_of(case):
        if "replace" not in case:
            return case["text"]
        assert case["replace"] in exported, case["name"]
        return exported.replace(case["replace"], case["by"], 1)

    validator = validator_of(ROOT / "docs" / "bindings.schema.json")
    count, wrong = misjudged(validator, FIXTURES / "cases.json", text_of)
    print("\n".join(wrong) or f"{count} files judged")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
