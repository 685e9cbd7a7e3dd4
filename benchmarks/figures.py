# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""The options of the scripts that measure whole programs, and the form of their figures."""

import argparse
import json
from pathlib import Path


def options(description, rounds):
    """Reads --build, a folder, and --rounds, a number that is `rounds` if not given."""
    parser = argparse.ArgumentParser(description=description)
    parser.add_argument("--build", type=Path, required=True)
    parser.add_argument("--rounds", type=int, default=rounds)
    return parser.parse_args()


def show(figures):
    """Prints the JSON of a Google Benchmark program. A figure is a name, a value and its unit."""
    print(json.dumps({"benchmarks": [
        {"run_name": name, "run_type": "iteration", "real_time": value, "time_unit": unit}
        for name, value, unit in figures]}))
