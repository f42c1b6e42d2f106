"""Publishes the settings of a desktop for all programs on an X server (XSETTINGS)."""

import ctypes
import struct
import sys
from ctypes import c_char_p, c_int, c_long, c_uint, c_ulong, c_void_p

from support.x_server import ATOM, CLOSE, OPEN, ROOT, SYNC, X, declare

WINDOW = declare(X, "XCreateSimpleWindow", c_ulong, c_void_p, c_ulong, c_int, c_int, c_uint,
                 c_uint, c_uint, c_ulong, c_ulong)
OWN = declare(X, "XSetSelectionOwner", c_int, c_void_p, c_ulong, c_ulong, c_ulong)
CHANGE = declare(X, "XChangeProperty", c_int, c_void_p, c_ulong, c_ulong, c_ulong, c_int, c_int,
                 c_char_p, c_int)
SELECT = declare(X, "XSelectInput", c_int, c_void_p, c_ulong, c_long)
PENDING = declare(X, "XPending", c_int, c_void_p)
NEXT = declare(X, "XNextEvent", c_int, c_void_p, c_void_p)

REPLACE = 0
STRUCTURE_NOTIFY = 1 << 17
CONFIGURE_NOTIFY = 22
NUMBER = 0


class Configure(ctypes.Structure):
    """XConfigureEvent of Xlib, in the room of the largest event."""

    _fields_ = [("type", c_int), ("serial", c_ulong), ("send_event", c_int),
                ("display", c_void_p), ("event", c_ulong), ("window", c_ulong), ("x", c_int),
                ("y", c_int), ("width", c_int), ("height", c_int), ("rest", c_long * 24)]


class DesktopSettings:
    """Publishes numbers until it is closed."""

    def __init__(self, display, **numbers):
        self.x = OPEN(display.environment["DISPLAY"].encode("ascii"))
        window = WINDOW(self.x, ROOT(self.x), 0, 0, 1, 1, 0, 0, 0)
        little = sys.byteorder == "little"
        table = struct.pack("=BxxxII", 0 if little else 1, 1, len(numbers))
        for name, value in numbers.items():
            name = name.replace("_", "/").encode("ascii")
            padding = b"\0" * (-len(name) % 4)
            table += struct.pack("=BxH", NUMBER, len(name)) + name + padding
            table += struct.pack("=Ii", 1, value)
        kind = ATOM(self.x, b"_XSETTINGS_SETTINGS", False)
        CHANGE(self.x, window, kind, kind, 8, REPLACE, table, len(table))
        OWN(self.x, ATOM(self.x, b"_XSETTINGS_S0", False), window, 0)
        SYNC(self.x, False)

    def close(self):
        CLOSE(self.x)


class Heights:
    """Notes each height that a window gets from now on."""

    def __init__(self, display, window):
        self.x = OPEN(display.environment["DISPLAY"].encode("ascii"))
        self.noted = []
        SELECT(self.x, window, STRUCTURE_NOTIFY)
        SYNC(self.x, False)

    def all(self):
        event = Configure()
        while PENDING(self.x):
            NEXT(self.x, ctypes.byref(event))
            if event.type == CONFIGURE_NOTIFY and event.height not in self.noted:
                self.noted.append(event.height)
        return self.noted

    def close(self):
        CLOSE(self.x)
