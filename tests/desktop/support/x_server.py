"""Queries the windows of an X server over one connection."""

import ctypes
from ctypes import POINTER, byref, c_char_p, c_int, c_long, c_uint, c_ulong, c_void_p

from support.waiting import Gone

ANY_TYPE = 0
ALL_PLANES = 0xffffffff
Z_PIXMAP = 2
# In units of 32 bits; longer than any property of a window.
LONGEST_PROPERTY = 1 << 20
NO_WINDOWS = (0, 1)  # None and PointerRoot
VIEWABLE = 2
INPUT_OUTPUT = 1


class Error(ctypes.Structure):
    """XErrorEvent of Xlib."""

    _fields_ = [("type", c_int), ("display", c_void_p), ("resource", c_ulong),
                ("serial", c_ulong), ("code", ctypes.c_ubyte), ("request", ctypes.c_ubyte),
                ("minor", ctypes.c_ubyte)]


class Attributes(ctypes.Structure):
    """XWindowAttributes of Xlib."""

    _fields_ = [("x", c_int), ("y", c_int), ("width", c_int), ("height", c_int),
                ("border_width", c_int), ("depth", c_int), ("visual", c_void_p), ("root", c_ulong),
                ("window_class", c_int), ("bit_gravity", c_int), ("win_gravity", c_int),
                ("backing_store", c_int), ("backing_planes", c_ulong), ("backing_pixel", c_ulong),
                ("save_under", c_int), ("colormap", c_ulong), ("map_installed", c_int),
                ("map_state", c_int), ("all_event_masks", c_long), ("your_event_mask", c_long),
                ("do_not_propagate_mask", c_long), ("override_redirect", c_int),
                ("screen", c_void_p)]


class Image(ctypes.Structure):
    """The first fields of XImage of Xlib."""

    _fields_ = [("width", c_int), ("height", c_int), ("xoffset", c_int), ("format", c_int),
                ("data", c_void_p), ("byte_order", c_int), ("bitmap_unit", c_int),
                ("bitmap_bit_order", c_int), ("bitmap_pad", c_int), ("depth", c_int),
                ("bytes_per_line", c_int), ("bits_per_pixel", c_int)]


def declare(library, name, result, *arguments):
    function = getattr(library, name)
    function.restype, function.argtypes = result, arguments
    return function


X = ctypes.CDLL("libX11.so.6")
OPEN = declare(X, "XOpenDisplay", c_void_p, c_char_p)
CLOSE = declare(X, "XCloseDisplay", c_int, c_void_p)
SYNC = declare(X, "XSync", c_int, c_void_p, c_int)
ROOT = declare(X, "XDefaultRootWindow", c_ulong, c_void_p)
FREE = declare(X, "XFree", c_int, c_void_p)
ATOM = declare(X, "XInternAtom", c_ulong, c_void_p, c_char_p, c_int)
ATOM_NAME = declare(X, "XGetAtomName", c_void_p, c_void_p, c_ulong)
PROPERTY = declare(X, "XGetWindowProperty", c_int, c_void_p, c_ulong, c_ulong, c_long, c_long,
                   c_int, c_ulong, POINTER(c_ulong), POINTER(c_int), POINTER(c_ulong),
                   POINTER(c_ulong), POINTER(c_void_p))
ATTRIBUTES = declare(X, "XGetWindowAttributes", c_int, c_void_p, c_ulong, POINTER(Attributes))
TRANSLATE = declare(X, "XTranslateCoordinates", c_int, c_void_p, c_ulong, c_ulong, c_int, c_int,
                    POINTER(c_int), POINTER(c_int), POINTER(c_ulong))
TREE = declare(X, "XQueryTree", c_int, c_void_p, c_ulong, POINTER(c_ulong), POINTER(c_ulong),
               POINTER(c_void_p), POINTER(c_uint))
OWNER = declare(X, "XGetSelectionOwner", c_ulong, c_void_p, c_ulong)
FOCUS = declare(X, "XGetInputFocus", c_int, c_void_p, POINTER(c_ulong), POINTER(c_int))
IMAGE = declare(X, "XGetImage", POINTER(Image), c_void_p, c_ulong, c_int, c_int, c_uint, c_uint,
                c_ulong, c_int)
DESTROY_IMAGE = declare(X, "XDestroyImage", c_int, POINTER(Image))
MOTION = declare(ctypes.CDLL("libXtst.so.6"), "XTestFakeMotionEvent", c_int, c_void_p, c_int,
                 c_int, c_int, c_ulong)


@ctypes.CFUNCTYPE(c_int, c_void_p, POINTER(Error))
def pass_over(_display, _error):
    """Ignores X errors, which would end the test: each query returns whether it failed."""
    return 0


X.XSetErrorHandler(pass_over)


class WindowGone(Gone):
    """A window that was listed a moment ago is gone."""


class XServer:
    """A connection to the X server of a display."""

    def __init__(self, name):
        self.connection = OPEN(name.encode("ascii"))
        if not self.connection:
            raise RuntimeError("the X server does not answer")
        self.root = ROOT(self.connection)
        self.atoms = {}

    def close(self):
        CLOSE(self.connection)

    def atom(self, name):
        if name not in self.atoms:
            self.atoms[name] = ATOM(self.connection, name.encode("ascii"), False)
        return self.atoms[name]

    def atom_name(self, atom):
        name = ATOM_NAME(self.connection, atom)
        if not name:
            return ""
        text = ctypes.string_at(name).decode("ascii")
        FREE(name)
        return text

    def property(self, window, name):
        """Returns the bytes or the list of numbers of a property; empty if there is none."""
        kind, size, count, left, data = c_ulong(), c_int(), c_ulong(), c_ulong(), c_void_p()
        failed = PROPERTY(self.connection, window, self.atom(name), 0, LONGEST_PROPERTY, False,
                          ANY_TYPE, byref(kind), byref(size), byref(count), byref(left),
                          byref(data))
        if failed or not data:
            return b""
        if size.value == 32:
            found = list(ctypes.cast(data, POINTER(c_ulong))[:count.value])
        else:
            found = ctypes.string_at(data, count.value * size.value // 8)
        FREE(data)
        return found

    def text(self, window, name):
        return bytes(self.property(window, name)).decode("utf-8")

    def names(self, window, name):
        """Returns the names of the atoms in a property."""
        return [self.atom_name(atom) for atom in self.property(window, name)]

    def geometry(self, window):
        """Returns x, y, width and height of a window on the screen."""
        attributes, x, y, child = Attributes(), c_int(), c_int(), c_ulong()
        if not (ATTRIBUTES(self.connection, window, byref(attributes))
                and TRANSLATE(self.connection, window, self.root, 0, 0, byref(x), byref(y),
                              byref(child))):
            raise WindowGone(hex(window))
        return x.value, y.value, attributes.width, attributes.height

    def parent(self, window):
        return self.family(window)[0]

    def children(self, window):
        return self.family(window)[1]

    def family(self, window):
        """Returns the parent and the children of a window."""
        root, parent, children, count = c_ulong(), c_ulong(), c_void_p(), c_uint()
        if not TREE(self.connection, window, byref(root), byref(parent), byref(children),
                    byref(count)):
            raise WindowGone(hex(window))
        found = list(ctypes.cast(children, POINTER(c_ulong))[:count.value]) if children else []
        if children:
            FREE(children)
        return parent.value, found

    def is_popup(self, window):
        """Whether a window is visible and not under the control of the window manager."""
        attributes = Attributes()
        return (ATTRIBUTES(self.connection, window, byref(attributes)) != 0
                and attributes.window_class == INPUT_OUTPUT and attributes.map_state == VIEWABLE
                and attributes.override_redirect != 0 and self.property(window, "WM_CLASS") != b"")

    def has_owner(self, selection):
        return OWNER(self.connection, self.atom(selection)) != 0

    def focus(self):
        """Returns the top-level window with the keyboard focus; 0 if none has it."""
        window, revert_to = c_ulong(), c_int()
        FOCUS(self.connection, byref(window), byref(revert_to))
        found = window.value
        while found not in (*NO_WINDOWS, self.root):
            if self.property(found, "WM_CLASS"):
                return found
            try:
                found = self.parent(found)
            except WindowGone:
                return 0
        return 0

    def pixels(self, x, y, width, height):
        """Returns the pixels of a rectangle, four bytes each: blue, green, red, unused."""
        image = IMAGE(self.connection, self.root, x, y, width, height, ALL_PLANES, Z_PIXMAP)
        if not image:
            raise ValueError("a part of the rectangle is not on the screen")
        if image.contents.bits_per_pixel != 32 or image.contents.bytes_per_line != 4 * width:
            raise RuntimeError("the image has an unexpected format")
        data = ctypes.string_at(image.contents.data, 4 * width * height)
        DESTROY_IMAGE(image)
        return data

    def move_pointer(self, x, y):
        current_screen, now = -1, 0
        MOTION(self.connection, current_screen, x, y, now)
        SYNC(self.connection, False)
