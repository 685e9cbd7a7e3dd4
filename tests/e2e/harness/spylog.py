# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""Reads what the spy in the program writes, see spy/ActionSpy.h."""

import os
import re
import select
import threading
import time


def without_numbers(line):
    """The line with a # for each number, to compare what two runs of a program print."""
    return re.sub(r"0x[0-9a-f]+|\d+", "#", line)


class SpyLog:
    """Reads a named pipe in a thread of its own, so that the program never waits for it.

    A line is a list of fields. A mark is a position in the log: take a mark() before an action,
    then wait for lines after it.
    """

    def __init__(self, pipe, copy):
        self.path = pipe
        self._lines = []
        self._changed = threading.Condition()
        os.mkfifo(pipe)
        # Opened to read and write, so that the pipe stays open when the program closes it.
        self._descriptor = os.open(pipe, os.O_RDWR | os.O_NONBLOCK)
        self._copy = open(copy, "w", encoding="utf-8", buffering=1)
        self._closing = os.pipe()
        self._thread = threading.Thread(target=self._read, daemon=True)
        self._thread.start()

    def mark(self):
        with self._changed:
            return len(self._lines)

    def since(self, mark, *names):
        """The lines after `mark`, of these kinds or of all."""
        with self._changed:
            return [line for line in self._lines[mark:] if not names or line[0] in names]

    def wait(self, mark, wanted, timeout, alive=lambda: True):
        """Waits for a line after `mark` that `wanted` accepts, and returns it. Returns None after
        `timeout` seconds, or if `alive` returns False: no more lines will come."""
        end = time.monotonic() + timeout
        with self._changed:
            while True:
                for line in self._lines[mark:]:
                    if wanted(line):
                        return line
                mark = len(self._lines)
                left = end - time.monotonic()
                if left <= 0 or not alive():
                    return None
                self._changed.wait(min(left, 0.5))

    def close(self):
        os.write(self._closing[1], b"x")
        self._thread.join(timeout=10)
        for descriptor in (self._descriptor, *self._closing):
            os.close(descriptor)
        self._copy.close()

    def _read(self):
        rest = b""
        while True:
            readable, _, _ = select.select([self._descriptor, self._closing[0]], [], [])
            if self._descriptor in readable:
                rest += os.read(self._descriptor, 65536)
                *lines, rest = rest.split(b"\n")
                self._add([line.decode("utf-8", "replace") for line in lines])
            elif self._closing[0] in readable:
                return

    def _add(self, lines):
        for line in lines:
            self._copy.write(line + "\n")
        with self._changed:
            self._lines.extend(line.split("\t") for line in lines)
            self._changed.notify_all()
