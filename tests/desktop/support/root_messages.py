"""Reads the messages that programs send to the root window of an X server."""

import ctypes

from support.waiting import wait_until

PROPERTY_CHANGE = 1 << 22
# The masks with which programs answer a ping.
ANSWERS = 1 << 17 | 1 << 19
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

    def __init__(self, display, mask=PROPERTY_CHANGE):
        self.x = ctypes.CDLL("libX11.so.6")
        self.x.XOpenDisplay.restype = ctypes.c_void_p
        self.x.XDefaultRootWindow.restype = ctypes.c_ulong
        self.x.XGetAtomName.restype = ctypes.c_char_p
        self.connection = ctypes.c_void_p(
            self.x.XOpenDisplay(display.environment["DISPLAY"].encode("ascii")))
        self.x.XInternAtom.restype = ctypes.c_ulong
        root = ctypes.c_ulong(self.x.XDefaultRootWindow(self.connection))
        self.x.XSelectInput(self.connection, root, ctypes.c_long(mask))
        self.x.XSync(self.connection, 0)

    def received(self):
        """Returns the messages since the last call."""
        found = []
        while self.x.XPending(self.connection):
            event = Event()
            self.x.XNextEvent(self.connection, ctypes.byref(event))
            if event.type == CLIENT_MESSAGE:
                found.append(event.message)
        return found

    def startup_text(self):
        """Waits for a startup notification; returns its text with the final 0."""
        text = b""

        def is_complete():
            nonlocal text
            for message in self.received():
                if self.name(message.message_type).startswith(b"_NET_STARTUP_INFO"):
                    piece = bytes(message.data)[:20]
                    end = piece.find(b"\0")
                    text += piece if end < 0 else piece[:end + 1]
            return text.endswith(b"\0")

        wait_until(is_complete, "the desktop is told about the launch")
        return text

    def ping(self, window, number):
        """Asks a window for an answer, as window managers do, and waits for it."""
        event = Event()
        event.message = Message(type=CLIENT_MESSAGE, window=window, format=32,
                                message_type=self.atom(b"WM_PROTOCOLS"))
        event.message.data[:3] = self.atom(b"_NET_WM_PING"), number, window
        self.x.XSendEvent(self.connection, ctypes.c_ulong(window), 0, ctypes.c_long(0),
                          ctypes.byref(event))
        self.x.XFlush(self.connection)
        wait_until(lambda: any(message.data[:2] == event.message.data[:2]
                               for message in self.received()), "the window answers")

    def atom(self, name):
        return self.x.XInternAtom(self.connection, name, 0)

    def name(self, atom):
        return self.x.XGetAtomName(self.connection, ctypes.c_ulong(atom))

    def close(self):
        self.x.XCloseDisplay(self.connection)
