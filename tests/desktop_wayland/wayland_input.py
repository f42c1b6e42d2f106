"""A virtual mouse and keyboard for a Wayland compositor, which sees them as real ones.

Speaks the protocol of Wayland itself: xdotool knows X servers only.
"""

import array
import os
import socket
import struct

KEYMAP = b"""xkb_keymap {
    xkb_keycodes { include "evdev+aliases(qwerty)" };
    xkb_types { include "complete" };
    xkb_compat { include "complete" };
    xkb_symbols { include "pc+us" };
};\0"""

# The key codes of the Linux kernel.
ROWS = {2: "1234567890", 16: "qwertyuiop", 30: "asdfghjkl", 44: "zxcvbnm"}
KEYS = {character: first + place for first, row in ROWS.items()
        for place, character in enumerate(row)}
KEYS.update(Escape=1, Tab=15, Return=28, comma=51, space=57, F11=87, Down=108)
# Each modifier with its key code and its bit in the state of the keyboard.
MODIFIERS = {"shift": (42, 1), "ctrl": (29, 4), "alt": (56, 8)}
# As X11 counts them, the left one first.
BUTTONS = {1: 0x110, 2: 0x112, 3: 0x111}

# The requests that are used, with their numbers in the protocol of their receiver.
SYNC, GET_REGISTRY = 0, 1
BIND = 0
CREATE_DEVICE = 0
SET_KEYMAP, SET_KEY, SET_MODIFIERS = 0, 1, 2
MOVE_TO, SET_BUTTON, END_FRAME = 1, 2, 4
GET_TOKEN, COMMIT_TOKEN = 1, 3
# The same for events.
ERROR, GLOBAL = 0, 0

# The object that every connection begins with.
DISPLAY = 1
XKB_V1 = 1
PRESSED, RELEASED = 1, 0


def text(value):
    data = value.encode("ascii") + b"\0"
    return struct.pack("=I", len(data)) + data + b"\0" * (-len(data) % 4)


def numbers(*values):
    return struct.pack(f"={len(values)}I", *values)


class WaylandInput:
    """One client of the compositor, which owns a mouse and a keyboard."""

    def __init__(self, path, size):
        self.size = size
        self.socket = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
        self.socket.settimeout(10)
        self.socket.connect(path)
        self.received = b""
        self.last = DISPLAY
        self.globals = {}
        self.time = 0
        self.held = 0
        registry = self.new()
        self.send(DISPLAY, GET_REGISTRY, numbers(registry))
        self.registry = registry
        self.round_trip()
        seat = self.bind("wl_seat")
        self.pointer = self.make("zwlr_virtual_pointer_manager_v1", seat)
        self.keyboard = self.make("zwp_virtual_keyboard_manager_v1", seat)
        self.send_keymap()
        self.round_trip()

    def close(self):
        self.socket.close()

    # The protocol

    def new(self):
        self.last += 1
        return self.last

    def send(self, receiver, request, arguments=b"", files=()):
        size = 8 + len(arguments)
        message = struct.pack("=II", receiver, size << 16 | request) + arguments
        passed = [(socket.SOL_SOCKET, socket.SCM_RIGHTS, array.array("i", files))] if files else []
        self.socket.sendmsg([message], passed)

    def bind(self, interface):
        number = self.new()
        self.send(self.registry, BIND, numbers(self.globals[interface]) + text(interface)
                  + numbers(1, number))
        return number

    def make(self, manager, seat):
        """Lets a manager make the device that is its purpose."""
        maker = self.bind(manager)
        number = self.new()
        self.send(maker, CREATE_DEVICE, numbers(seat, number))
        return number

    def round_trip(self):
        """Waits until the compositor has handled all that was sent."""
        done = self.new()
        self.send(DISPLAY, SYNC, numbers(done))
        while True:
            sender, event, arguments = self.next_event()
            if (sender, event) == (DISPLAY, ERROR):
                raise RuntimeError(f"the compositor refuses a request: {arguments}")
            if sender == self.registry and event == GLOBAL:
                name, length = struct.unpack_from("=II", arguments)
                self.globals[arguments[8:7 + length].decode("ascii")] = name
            if sender == done:
                return

    def activation_token(self):
        """Returns a token that lets a program take the focus, as panels and services get it."""
        maker = self.bind("xdg_activation_v1")
        token = self.new()
        self.send(maker, GET_TOKEN, numbers(token))
        self.send(token, COMMIT_TOKEN)
        while True:
            sender, _, arguments = self.next_event()
            if sender == token:
                length, = struct.unpack_from("=I", arguments)
                return arguments[4:3 + length].decode("ascii")

    def next_event(self):
        header = self.receive(8)
        sender, word = struct.unpack("=II", header)
        return sender, word & 0xffff, self.receive((word >> 16) - 8)

    def receive(self, count):
        while len(self.received) < count:
            data = self.socket.recv(4096)
            if not data:
                raise ConnectionError("the compositor has ended")
            self.received += data
        data, self.received = self.received[:count], self.received[count:]
        return data

    def send_keymap(self):
        file = os.memfd_create("keymap")
        os.write(file, KEYMAP)
        self.send(self.keyboard, SET_KEYMAP, numbers(XKB_V1, len(KEYMAP)), [file])
        os.close(file)

    def now(self):
        self.time += 1
        return self.time

    # The keyboard

    def press(self, key):
        self.change(key, PRESSED)

    def release(self, key):
        self.change(key, RELEASED)

    def change(self, key, state):
        code, bit = MODIFIERS.get(key) or (KEYS[key], 0)
        self.send(self.keyboard, SET_KEY, numbers(self.now(), code, state))
        if bit:
            self.held = self.held | bit if state == PRESSED else self.held & ~bit
            self.send(self.keyboard, SET_MODIFIERS, numbers(self.held, 0, 0, 0))
        self.round_trip()

    def key(self, combination):
        """Presses keys such as "ctrl+n" together."""
        keys = combination.split("+")
        for key in keys:
            self.press(key)
        for key in reversed(keys):
            self.release(key)

    # The mouse

    def move(self, x, y):
        self.send(self.pointer, MOVE_TO, numbers(self.now(), x, y, *self.size))
        self.end_of_mouse_event()

    def button(self, number, pressed):
        self.send(self.pointer, SET_BUTTON, numbers(self.now(), BUTTONS[number], int(pressed)))
        self.end_of_mouse_event()

    def end_of_mouse_event(self):
        self.send(self.pointer, END_FRAME)
        self.round_trip()
