#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT
"""Gives a TigerVNC server several monitors.

    monitors.py SOCKET WIDTHxHEIGHT+X+Y...

Speaks version 3.8 of the RFB protocol with the server's Unix socket, as a viewer does whose windows
lie on several monitors: RFC 6143, and the extension of its registry for the desktop's size. The
monitors stay when it has hung up. Exits 1 with a line if the server refuses them.
"""

import re
import socket
import struct
import sys

NO_AUTHENTICATION = 1
EXTENDED_DESKTOP_SIZE = -308  # encoding of a rectangle
SET_ENCODINGS = 2
UPDATE_REQUEST = 3
SET_DESKTOP_SIZE = 251
BY_THIS_CLIENT = 1  # reason for a new size


class Server:
    def __init__(self, path):
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.connect(path)
        self.take(len(b"RFB 003.008\n"))
        self.send("12s", b"RFB 003.008\n")
        self.take(self.read("B"))
        self.send("B", NO_AUTHENTICATION)
        if self.read("I"):
            raise OSError("the server wants a password")
        self.send("B", True)  # other viewers may stay
        self.take(20)
        self.take(self.read("I"))
        self.send("BxHi", SET_ENCODINGS, 1, EXTENDED_DESKTOP_SIZE)

    def send(self, layout, *values):
        self.socket.sendall(struct.pack(">" + layout, *values))

    def take(self, size):
        data = self.socket.recv(size, socket.MSG_WAITALL)
        if len(data) < size:
            raise OSError("the server hung up")
        return data

    def read(self, layout):
        values = struct.unpack(">" + layout, self.take(struct.calcsize(">" + layout)))
        return values[0] if len(values) == 1 else values

    # The answers to new sizes, of which the server tells this client's in an update of its own.
    def answers(self):
        self.send("BBHHHH", UPDATE_REQUEST, True, 0, 0, 1, 1)
        for _ in range(self.read("xxH")):
            reason, status, _, _, encoding = self.read("HHHHi")
            if encoding != EXTENDED_DESKTOP_SIZE:
                raise OSError(f"the server sent encoding {encoding}")
            self.take(16 * self.read("Bxxx"))
            if reason == BY_THIS_CLIENT:
                yield status

    def set_monitors(self, monitors):
        self.send(
            "BxHHBx",
            SET_DESKTOP_SIZE,
            max(x + width for width, _, x, _ in monitors),
            max(y + height for _, height, _, y in monitors),
            len(monitors),
        )
        for number, (width, height, x, y) in enumerate(monitors):
            self.send("IHHHHI", number, x, y, width, height, 0)
        while True:
            for status in self.answers():
                if status:
                    raise OSError(f"the server refuses these monitors: {status}")
                return


def main():
    path, *wanted = sys.argv[1:]
    monitors = []
    for text in wanted:
        numbers = re.fullmatch(r"(\d+)x(\d+)\+(\d+)\+(\d+)", text)
        if not numbers:
            sys.exit(f"monitors: not a monitor: {text}")
        monitors.append(tuple(map(int, numbers.groups())))
    try:
        Server(path).set_monitors(monitors)
    except OSError as error:
        sys.exit(f"monitors: {error}")


main()
