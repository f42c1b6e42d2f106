"""Reads the messages that programs send to the root window of an X server."""

import ctypes
import time

PROPERTY_CHANGE_MASK = 1 << 22
CLIENT_MESSAGE = 33


class Message(ctypes.Structure):
    """XClientMessageEvent of Xlib, with the longest variant of its data union."""

    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong),
                ("message_type", ctypes.c_ulong), ("format", ctypes.c_int),
                ("data", ctypes.c_long * 5)]


class Event(ctypes.Union):
    _fields_ = [("type", ctypes.c_int), ("message", Message), ("space", ctypes.c_long * 24)]


class RootMessages:
    """Receives the messages to the root window of a display from now on."""

    def __init__(self, display):
        self.x = ctypes.CDLL("libX11.so.6")
        self.x.XOpenDisplay.restype = ctypes.c_void_p
        self.x.XDefaultRootWindow.restype = ctypes.c_ulong
        self.x.XGetAtomName.restype = ctypes.c_char_p
        self.connection = ctypes.c_void_p(
            self.x.XOpenDisplay(display.environment["DISPLAY"].encode("ascii")))
        root = ctypes.c_ulong(self.x.XDefaultRootWindow(self.connection))
        self.x.XSelectInput(self.connection, root, ctypes.c_long(PROPERTY_CHANGE_MASK))
        self.x.XSync(self.connection, 0)

    def startup_text(self, seconds):
        """Returns the first startup notification within the given seconds, with its final 0."""
        text = b""
        deadline = time.monotonic() + seconds
        event = Event()
        while not text.endswith(b"\0") and time.monotonic() < deadline:
            if not self.x.XPending(self.connection):
                time.sleep(0.01)
                continue
            self.x.XNextEvent(self.connection, ctypes.byref(event))
            if event.type == CLIENT_MESSAGE and self.name(event.message.message_type).startswith(
                    b"_NET_STARTUP_INFO"):
                piece = bytes(event.message.data)[:20]
                end = piece.find(b"\0")
                text += piece if end < 0 else piece[:end + 1]
        return text

    def name(self, atom):
        return self.x.XGetAtomName(self.connection, ctypes.c_ulong(atom))

    def close(self):
        self.x.XCloseDisplay(self.connection)
