# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""Input for Wayland sessions, in which XTEST reaches X programs but not the compositor.

The program under test runs on the session's X server (XWayland), so gesture-driver still reads
windows, focus and grabs. Only the pointer and the keyboard go to the compositor, through the
protocol that it has for this.
"""

import array
import ctypes
import os
import signal
import socket
import struct
import subprocess
import time

from .driver import Driver, DriverError

# Codes of the kernel's input events.
BUTTONS = {1: 0x110, 2: 0x112, 3: 0x111}
KEYS = {"Escape": 1, "Tab": 15, "Return": 28, "ctrl": 29, "shift": 42, "alt": 56, "F9": 67, "F11": 87}
# Bits of the modifiers in a keymap.
MODIFIERS = {"shift": 1, "ctrl": 4, "alt": 8}

PR_SET_PDEATHSIG = 1
PR_SET_DUMPABLE = 4

CLICK_SECONDS = 0.03
SECONDS_PER_STEP = 0.008


class Connection:
    """The few parts of the Wayland protocol that a client without windows needs."""

    def __init__(self, path):
        self._socket = socket.socket(socket.AF_UNIX)
        connect(self._socket, path)
        self._received = b""
        self._last_id = 1
        self._globals = {}
        self._registry = self.new_id()
        self.request(1, 1, "n", self._registry)  # wl_display.get_registry
        self.round_trip()

    def close(self):
        self._socket.close()

    def new_id(self):
        self._last_id += 1
        return self._last_id

    def bind(self, interface, version):
        name, offered = self._globals[interface]
        if offered < version:
            raise RuntimeError(f"{interface} has version {offered}, not {version}")
        bound = self.new_id()
        self.request(self._registry, 0, "usun", name, interface, version, bound)
        return bound

    def request(self, target, opcode, types, *values, descriptor=None):
        """`types` has a letter for each value, as in the protocol: u(int), n(ew id), o(bject),
        f(ixed), s(tring)."""
        body = b""
        for kind, value in zip(types, values, strict=True):
            if kind == "s":
                text = value.encode() + b"\0"
                body += struct.pack("=I", len(text)) + text + bytes(-len(text) % 4)
            elif kind == "f":
                body += struct.pack("=i", round(value * 256))
            else:
                body += struct.pack("=I", value)
        message = struct.pack("=II", target, (len(body) + 8) << 16 | opcode) + body
        passed = [] if descriptor is None else [
            (socket.SOL_SOCKET, socket.SCM_RIGHTS, array.array("i", [descriptor]))]
        self._socket.sendmsg([message], passed)

    def round_trip(self):
        """Waits until the compositor has handled all requests so far."""
        callback = self.new_id()
        self.request(1, 0, "n", callback)  # wl_display.sync
        while True:
            sender, opcode, body = self._next_event()
            if sender == callback:
                return
            if sender == 1 and opcode == 0:
                raise RuntimeError(f"the compositor refuses: {body[12:].decode(errors='replace')}")
            if sender == self._registry and opcode == 0:
                name, length = struct.unpack_from("=II", body)
                version, = struct.unpack_from("=I", body, 8 + (length + 3) // 4 * 4)
                self._globals[body[8:8 + length - 1].decode()] = name, version

    def _next_event(self):
        while len(self._received) < 8 or len(self._received) < self._size():
            data = self._socket.recv(65536)
            if not data:
                raise RuntimeError("the compositor has closed the connection")
            self._received += data
        size = self._size()
        sender, head = struct.unpack_from("=II", self._received)
        event = sender, head & 0xffff, self._received[8:size]
        self._received = self._received[size:]
        return event

    def _size(self):
        return struct.unpack_from("=I", self._received, 4)[0] >> 16


def connect(client, path):
    """Connects to a compositor that runs as the user DESKTOP_USER.

    KWin offers input only to a process whose executable it can identify, which it cannot for
    other users. So a process of that user connects, and lives as long as this one.
    """
    user = os.environ.get("DESKTOP_USER")
    if not user:
        client.connect(path)
        return
    ready, connected = os.pipe()
    parent = os.getpid()
    if os.fork() == 0:
        uid, gid = (int(number) for number in user.split(":"))
        os.setgroups([])
        os.setresgid(gid, gid, gid)
        os.setresuid(uid, uid, uid)
        libc = ctypes.CDLL(None)
        libc.prctl(PR_SET_DUMPABLE, 1)  # lost with the change of users
        libc.prctl(PR_SET_PDEATHSIG, signal.SIGKILL)
        if os.getppid() == parent:
            client.connect(path)
            os.write(connected, b"x")
            signal.pause()
        os._exit(1)
    os.close(connected)
    with os.fdopen(ready, "rb") as answer:
        if answer.read(1) != b"x":
            raise RuntimeError(f"cannot connect to {path} as user {user}")


class KWinInput:
    """Through org_kde_kwin_fake_input."""

    def __init__(self, wayland):
        self._connection = Connection(wayland)
        self._input = self._connection.bind("org_kde_kwin_fake_input", 4)
        self._connection.request(self._input, 0, "ss", "gesture tests", "input of a test")

    def close(self):
        self._connection.close()

    def move(self, x, y):
        self._send(9, "ff", x, y)

    def button(self, code, down):
        self._send(2, "uu", code, down)

    def key(self, code, down, _modifiers):
        self._send(10, "uu", code, down)

    def _send(self, opcode, types, *values):
        self._connection.request(self._input, opcode, types, *values)
        self._connection.round_trip()


class WlrootsInput:
    """Through zwlr_virtual_pointer_v1 and zwp_virtual_keyboard_v1, which sway has."""

    def __init__(self, wayland, size):
        self._size = size
        self._connection = Connection(wayland)
        seat = self._connection.bind("wl_seat", 1)
        pointers = self._connection.bind("zwlr_virtual_pointer_manager_v1", 1)
        keyboards = self._connection.bind("zwp_virtual_keyboard_manager_v1", 1)
        self._pointer = self._connection.new_id()
        self._connection.request(pointers, 0, "on", seat, self._pointer)
        self._keyboard = self._connection.new_id()
        self._connection.request(keyboards, 0, "on", seat, self._keyboard)
        keymap = subprocess.run(["xkbcomp", "-xkb", os.environ["DISPLAY"], "-"], check=True,
                                stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout + b"\0"
        memory = os.memfd_create("keymap")
        os.write(memory, keymap)
        self._connection.request(self._keyboard, 0, "uu", 1, len(keymap), descriptor=memory)
        self._connection.round_trip()
        os.close(memory)

    def close(self):
        self._connection.close()

    def move(self, x, y):
        self._send(self._pointer, 1, "uuuuu", now(), x, y, *self._size)
        self._send(self._pointer, 4, "")

    def button(self, code, down):
        self._send(self._pointer, 2, "uuu", now(), code, down)
        self._send(self._pointer, 4, "")

    def key(self, code, down, modifiers):
        self._send(self._keyboard, 1, "uuu", now(), code, down)
        self._send(self._keyboard, 2, "uuuu", modifiers, 0, 0, 0)

    def _send(self, target, opcode, types, *values):
        self._connection.request(target, opcode, types, *values)
        self._connection.round_trip()


class MutterInput:
    """Through Mutter's interface for remote desktops, on the session bus."""

    def __init__(self):
        import dbus  # only this needs it

        bus = dbus.SessionBus()
        name = "org.gnome.Mutter.RemoteDesktop"
        desktop = dbus.Interface(bus.get_object(name, "/org/gnome/Mutter/RemoteDesktop"), name)
        self._session = dbus.Interface(bus.get_object(name, desktop.CreateSession()),
                                       f"{name}.Session")
        self._session.Start()
        self._at = (0, 0)
        self._session.NotifyPointerMotionRelative(-10000.0, -10000.0)
        # The session has no keyboard before the first key, which is therefore lost.
        self.key(KEYS["shift"], 1, 0)
        self.key(KEYS["shift"], 0, 0)

    def close(self):
        self._session.Stop()

    def move(self, x, y):
        self._session.NotifyPointerMotionRelative(float(x - self._at[0]), float(y - self._at[1]))
        self._at = (x, y)

    def button(self, code, down):
        self._session.NotifyPointerButton(code, bool(down))

    def key(self, code, down, _modifiers):
        self._session.NotifyKeyboardKeycode(code, bool(down))


class WaylandDriver(Driver):
    """A driver whose input goes to the compositor."""

    def __init__(self, build, kind, size):
        wayland = os.environ["DESKTOP_WAYLAND"]
        self._at = (0, 0)
        if kind == "kwin":
            self._input = KWinInput(wayland)
        elif kind == "sway":
            self._input = WlrootsInput(wayland, size)
        else:
            self._input = MutterInput()
        # Started last: a process that connects for this one must not inherit its pipes.
        super().__init__(build)

    def close(self):
        super().close()
        self._input.close()

    def ask(self, *words):
        name, *values = words
        action = {"move": self._move, "press": self._press, "release": self._release,
                  "click": self._click, "drag": self._drag, "key": self._key,
                  "remember": self._remember, "wait-steady": self._wait_steady,
                  "wait-pointer-in": self._wait_pointer_in}.get(name)
        if action is None:
            return super().ask(*words)
        action(*values)
        return ""

    def _move(self, x, y):
        # If a movement brings the pointer into another window, XWayland applies it twice. The next
        # movement corrects the position.
        self._step(x + 1, y)
        self._step(x, y)

    def _step(self, x, y):
        self._input.move(x, y)
        self._at = (x, y)

    def _press(self, button):
        self._input.button(BUTTONS[button], 1)

    def _release(self, button):
        self._input.button(BUTTONS[button], 0)

    def _click(self, button):
        self._press(button)
        time.sleep(CLICK_SECONDS)
        self._release(button)

    def _drag(self, x, y, milliseconds):
        begun = time.monotonic()
        start = self._at
        steps = max(8, round(milliseconds / 1000 / SECONDS_PER_STEP))
        for step in range(1, steps + 1):
            time.sleep(max(0, begun + milliseconds / 1000 * step / steps - time.monotonic()))
            self._step(start[0] + x * step // steps, start[1] + y * step // steps)

    def _wait_pointer_in(self, title, milliseconds):
        # XWayland's pointer starts in the middle of the screen, where the window may already be. It
        # follows when the compositor has put the window on screen; a press before that is lost.
        end = time.monotonic() + milliseconds / 1000
        while super().ask("pointer") != f"{self._at[0]} {self._at[1]}":
            if time.monotonic() > end:
                raise DriverError(f"wait-pointer-in {title}: timeout")
            self._move(*self._at)
            time.sleep(0.02)
        super().ask("wait-pointer-in", title, milliseconds)

    # The X server does not see the screen here. So these compare the windows, not the picture.

    def _remember(self, *_area):
        pass

    def _wait_steady(self, milliseconds):
        end = time.monotonic() + milliseconds / 1000
        seen = []
        while len(seen) < 5 or len(set(seen[-5:])) > 1:
            if time.monotonic() > end:
                raise DriverError("wait-steady: timeout")
            seen.append(super().ask("windows"))
            time.sleep(0.01)

    def _key(self, name):
        parts = name.split("+")
        modifiers = 0
        for part in parts:
            modifiers |= MODIFIERS.get(part, 0)
            self._input.key(KEYS[part], 1, modifiers)
        for part in reversed(parts):
            modifiers &= ~MODIFIERS.get(part, 0)
            self._input.key(KEYS[part], 0, modifiers)


def now():
    return int(time.monotonic() * 1000) & 0xffffffff
