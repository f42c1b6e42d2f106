"""Sets when the X server blanks its screen, and asks whether it is blank."""

import ctypes


class Information(ctypes.Structure):
    _fields_ = [("window", ctypes.c_ulong), ("state", ctypes.c_int), ("kind", ctypes.c_int),
                ("til_or_since", ctypes.c_ulong), ("idle", ctypes.c_ulong),
                ("event_mask", ctypes.c_ulong)]


ON = 1
X = ctypes.CDLL("libX11.so.6")
X.XOpenDisplay.restype = ctypes.c_void_p
X.XOpenDisplay.argtypes = [ctypes.c_char_p]
X.XDefaultRootWindow.restype = ctypes.c_ulong
X.XDefaultRootWindow.argtypes = [ctypes.c_void_p]
X.XCloseDisplay.argtypes = [ctypes.c_void_p]
X.XSetScreenSaver.argtypes = [ctypes.c_void_p, ctypes.c_int, ctypes.c_int, ctypes.c_int,
                              ctypes.c_int]
SAVER = ctypes.CDLL("libXss.so.1")
SAVER.XScreenSaverQueryInfo.argtypes = [ctypes.c_void_p, ctypes.c_ulong,
                                        ctypes.POINTER(Information)]


class Blanking:
    """A connection to the X server of a display."""

    def __init__(self, display):
        self.connection = X.XOpenDisplay(display.environment["DISPLAY"].encode())
        if not self.connection:
            raise RuntimeError("the X server does not answer")

    def set_timeout(self, seconds):
        """Blanks the screen after this many seconds without input; 0 for never."""
        prefer_blanking, allow_exposures = 1, 1
        X.XSetScreenSaver(self.connection, seconds, 0, prefer_blanking, allow_exposures)
        self.is_blank()

    def is_blank(self):
        information = Information()
        if not SAVER.XScreenSaverQueryInfo(self.connection,
                                           X.XDefaultRootWindow(self.connection),
                                           ctypes.byref(information)):
            raise RuntimeError("the X server has no screen saver")
        return information.state == ON

    def close(self):
        self.set_timeout(0)
        X.XCloseDisplay(self.connection)
