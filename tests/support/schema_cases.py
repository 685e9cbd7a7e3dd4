# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""Judges texts by a JSON schema, for the tests that hold it beside the code's own judgement."""

import json

import jsonschema


def validator_of(schema):
    """A validator for a schema file, which is checked first."""
    content = json.loads(schema.read_text(encoding="utf-8"))
    jsonschema.Draft202012Validator.check_schema(content)
    return jsonschema.Draft202012Validator(content)


def misjudged(validator, file, text_of):
    """How many cases a file holds, and a line for each that the schema judges wrongly.

    A case has a name and says what the code says of it, nothing if it takes it. text_of(case) is the
    text to be judged.
    """
    cases = json.loads(file.read_text(encoding="utf-8"))
    assert len(cases) > 50
    wrong = []
    for case in cases:
        # A schema cannot express some of the rules.
        expected = case["says"] == "" or case.get("beyondSchema", False)
        if is_valid(validator, text_of(case)) != expected:
            wrong.append(f"{case['name']}: should be {'taken' if expected else 'refused'}")
    return len(cases), wrong


def is_valid(validator, text):
    """Whether a text is JSON that the schema takes."""
    try:
        return validator.is_valid(json.loads(text))
    except json.JSONDecodeError:
        return False
