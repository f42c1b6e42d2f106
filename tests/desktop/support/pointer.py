"""Reads the image of the mouse pointer from the X server."""

import ctypes


class CursorImage(ctypes.Structure):
    _fields_ = [("x", ctypes.c_short), ("y", ctypes.c_short), ("width", ctypes.c_ushort),
                ("height", ctypes.c_ushort), ("xhot", ctypes.c_ushort), ("yhot", ctypes.c_ushort),
                ("serial", ctypes.c_ulong), ("pixels", ctypes.POINTER(ctypes.c_ulong)),
                ("atom", ctypes.c_ulong), ("name", ctypes.c_char_p)]


X = ctypes.CDLL("libX11.so.6")
X.XOpenDisplay.restype = ctypes.c_void_p
X.XOpenDisplay.argtypes = [ctypes.c_char_p]
X.XFree.argtypes = X.XCloseDisplay.argtypes = [ctypes.c_void_p]
FIXES = ctypes.CDLL("libXfixes.so.3")
FIXES.XFixesGetCursorImage.restype = ctypes.POINTER(CursorImage)
FIXES.XFixesGetCursorImage.argtypes = [ctypes.c_void_p]


def is_visible(display):
    """Whether any point of the pointer's picture is not transparent."""
    connection = X.XOpenDisplay(display.environment["DISPLAY"].encode())
    if not connection:
        raise RuntimeError("the X server does not answer")
    image = FIXES.XFixesGetCursorImage(connection)
    contents = image.contents
    count = contents.width * contents.height
    visible = any(contents.pixels[i] & 0xff000000 for i in range(count))
    X.XFree(image)
    X.XCloseDisplay(connection)
    return visible
