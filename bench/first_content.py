"""Watches an X display for the first window of a program that shows something."""

import ctypes
import subprocess
import time

# Only what is used of Xlib, by its documented binary interface.
_x = ctypes.CDLL("libX11.so.6")
_IS_VIEWABLE = 2
_Z_PIXMAP = 2
_ALL_PLANES = ctypes.c_ulong(-1)
# Of a window in the middle of these is enough seen to know whether it has been drawn.
_SAMPLE_ROWS = 60


class _Attributes(ctypes.Structure):
    _fields_ = [("x", ctypes.c_int), ("y", ctypes.c_int),
                ("width", ctypes.c_int), ("height", ctypes.c_int),
                ("border_width", ctypes.c_int), ("depth", ctypes.c_int),
                ("visual", ctypes.c_void_p), ("root", ctypes.c_ulong), ("class", ctypes.c_int),
                ("bit_gravity", ctypes.c_int), ("win_gravity", ctypes.c_int),
                ("backing_store", ctypes.c_int), ("backing_planes", ctypes.c_ulong),
                ("backing_pixel", ctypes.c_ulong), ("save_under", ctypes.c_int),
                ("colormap", ctypes.c_ulong), ("map_installed", ctypes.c_int),
                ("map_state", ctypes.c_int), ("all_event_masks", ctypes.c_long),
                ("your_event_mask", ctypes.c_long), ("do_not_propagate_mask", ctypes.c_long),
                ("override_redirect", ctypes.c_int), ("screen", ctypes.c_void_p)]


class _Image(ctypes.Structure):
    _fields_ = [("width", ctypes.c_int), ("height", ctypes.c_int), ("xoffset", ctypes.c_int),
                ("format", ctypes.c_int), ("data", ctypes.c_void_p),
                ("byte_order", ctypes.c_int), ("bitmap_unit", ctypes.c_int),
                ("bitmap_bit_order", ctypes.c_int), ("bitmap_pad", ctypes.c_int),
                ("depth", ctypes.c_int), ("bytes_per_line", ctypes.c_int)]


class _ClassHint(ctypes.Structure):
    _fields_ = [("name", ctypes.c_char_p), ("class_name", ctypes.c_char_p)]


_x.XOpenDisplay.restype = ctypes.c_void_p
_x.XDefaultRootWindow.restype = ctypes.c_ulong
_x.XGetImage.restype = ctypes.POINTER(_Image)
_display = ctypes.c_void_p(_x.XOpenDisplay(None))
if not _display:
    raise OSError("there is no X display")
_root = ctypes.c_ulong(_x.XDefaultRootWindow(_display))
# A window may vanish while it is looked at, which is no reason to end.
_IGNORE = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)(lambda _d, _e: 0)
_x.XSetErrorHandler(_IGNORE)


def _children(window):
    root, parent, count = ctypes.c_ulong(), ctypes.c_ulong(), ctypes.c_uint()
    windows = ctypes.POINTER(ctypes.c_ulong)()
    if not _x.XQueryTree(_display, window, ctypes.byref(root), ctypes.byref(parent),
                         ctypes.byref(windows), ctypes.byref(count)):
        return []
    found = [ctypes.c_ulong(windows[i]) for i in range(count.value)]
    if windows:
        _x.XFree(windows)
    return found


def _class_name(window):
    hint = _ClassHint()
    return hint.class_name if _x.XGetClassHint(_display, window, ctypes.byref(hint)) else None


def _shows_something(window):
    attributes = _Attributes()
    if not _x.XGetWindowAttributes(_display, window, ctypes.byref(attributes)):
        return False
    if attributes.map_state != _IS_VIEWABLE or attributes.height <= _SAMPLE_ROWS:
        return False
    image = _x.XGetImage(_display, window, 0, attributes.height // 2 - _SAMPLE_ROWS // 2,
                         attributes.width, _SAMPLE_ROWS, _ALL_PLANES, _Z_PIXMAP)
    if not image:
        return False
    pixels = ctypes.string_at(image.contents.data,
                              image.contents.bytes_per_line * _SAMPLE_ROWS)
    _x.XDestroyImage(image)
    return pixels != pixels[:4] * (len(pixels) // 4)


def _drawn_window_exists(class_name):
    """Looks at the windows on the root and at those that a window manager has framed."""
    for frame in _children(_root):
        for window in [frame, *_children(frame)]:
            if _class_name(window) == class_name and _shows_something(window):
                return True
    return False


def milliseconds(program, class_name, limit=10):
    """How long after its start the program shows the content of a window. Ends it again."""
    start = time.perf_counter()
    with subprocess.Popen([program]) as process:
        try:
            while not _drawn_window_exists(class_name):
                if time.perf_counter() - start > limit:
                    raise TimeoutError(f"{program} shows no window")
                time.sleep(0.001)
            return (time.perf_counter() - start) * 1000
        finally:
            process.terminate()
