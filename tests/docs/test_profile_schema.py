#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""Checks that docs/profile.schema.json and the code agree about profiles.

The cases are those of tst_programprofile. The profiles are all that the project holds.
"""

import json
import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests" / "support"))
from schema_cases import is_valid, misjudged, validator_of  # noqa: E402


def text_of(case):
    return case.get("text") or '{"version": 1, "program": "drafter", %s}' % case["members"]


def main():
    validator = validator_of(ROOT / "docs/profile.schema.json")
    count, wrong = misjudged(
        validator, ROOT / "tests/host/files/fixtures/profile-cases.json", text_of)
    # Each button that the program knows.
    source = (ROOT / "host/files/TriggerText.cpp").read_text(encoding="utf-8")
    buttons = re.findall(r'{"(\w+)", Qt::\w+Button}', source)
    assert len(buttons) > 4
    for button in buttons:
        for member in ('"trigger": {"button": "%s"}', '"usedTriggers": ["ctrl+%s"]'):
            if not is_valid(validator, '{"version": 1, "program": "drafter", %s}' % member % button):
                wrong.append(f"{button}: should be taken in {member % button}")
    profiles = sorted((ROOT / "host/profiles").glob("*.json")) + sorted((ROOT / "docs/examples").glob("*.json"))
    assert len(profiles) > 5
    for path in profiles:
        profile = json.loads(path.read_text(encoding="utf-8"))
        wrong += [f"{path.name}: {error.message}" for error in validator.iter_errors(profile)]
        if profile["program"] != path.stem:
            wrong.append(f"{path.name}: the program is {profile['program']}")
    print("\n".join(wrong) or f"{count} cases and {len(profiles)} profiles judged")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
