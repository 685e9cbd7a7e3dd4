# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""Input: one gesture-driver process. xinput/Commands.h describes its commands."""

import subprocess


class DriverError(Exception):
    pass


class Driver:
    def __init__(self, build):
        self._process = subprocess.Popen(
            [str(build / "bin" / "gesture-driver")],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True, bufsize=1)

    def ask(self, *words):
        """Sends one command. Returns what follows "ok", as a string."""
        line = " ".join(f'"{word}"' if " " in str(word) else str(word) for word in words)
        self._process.stdin.write(line + "\n")
        answer = self._process.stdout.readline().rstrip("\n")
        if answer != "ok" and not answer.startswith("ok "):
            raise DriverError(f"{line}: {answer or 'the driver ended'}")
        return answer[3:]

    def succeeds(self, *words):
        try:
            self.ask(*words)
        except DriverError:
            return False
        return True

    def close(self):
        self._process.stdin.close()
        self._process.wait(timeout=10)
        self._process.stdout.close()
