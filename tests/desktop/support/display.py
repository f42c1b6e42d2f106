"""A virtual X server with a window manager; its windows, mouse and keys."""

import contextlib
import os
import re
import subprocess
import time
from typing import NamedTuple

from support import processes
from support.picture import Picture
from support.root_messages import ANSWERS, RootMessages
from support.waiting import PATIENCE, wait_until
from support.x_server import XServer

URGENT = 1 << 8  # XUrgencyHint of Xlib


class Rect(NamedTuple):
    x: int
    y: int
    width: int
    height: int

    @property
    def right(self):
        return self.x + self.width

    @property
    def bottom(self):
        return self.y + self.height


class Display:
    """One X display with a number that no other server uses."""

    def __init__(self, environment, size):
        processes.require("Xvfb", "openbox", "xprop", "xdotool", "wmctrl")
        self.width, self.height = size
        reader, writer = os.pipe()
        self.server = processes.start(
            ["Xvfb", "-displayfd", str(writer), "-screen", "0", f"{size[0]}x{size[1]}x24",
             "-noreset", "-nolisten", "tcp"], environment, pass_fds=[writer])
        os.close(writer)
        with os.fdopen(reader, encoding="ascii") as pipe:
            number = pipe.readline().strip()
        if not number:
            raise RuntimeError("Xvfb did not start")
        # What a program needs to find it.
        self.address = {"DISPLAY": f":{number}"}
        self.environment = dict(environment, **self.address)
        self.x = XServer(self.address["DISPLAY"])
        self.manager = None

    def start_manager(self):
        # Openbox announces itself before it is ready; it runs its start-up command after that.
        self.manager = processes.start(
            ["openbox", "--startup", "xprop -root -format MANAGED 8s -set MANAGED yes"],
            self.environment)
        wait_until(lambda: self.x.text(self.x.root, "MANAGED") == "yes",
                   "the window manager is ready")

    def close(self):
        if self.manager:
            processes.end(self.manager)
        self.x.close()
        processes.end(self.server)

    # Mouse and keys

    def act(self, *command):
        processes.run(["xdotool", *map(str, command)], self.environment)

    def key(self, *keys):
        self.wait_for_focus()
        self.act("key", "--delay", "0", *keys)

    def type(self, text):
        self.wait_for_focus()
        self.act("type", "--delay", "0", text)

    def wait_for_focus(self):
        """Waits until a window receives keys: for a moment after one has closed, none does."""
        wait_until(lambda: self.receives_keys(self.active_window()), "a window receives keys")

    def receives_keys(self, window):
        return window != 0 and window == self.active_window() == self.focused_window()

    def wait_until_active(self, window):
        wait_until(lambda: self.receives_keys(window), f"“{self.title(window)}” is active")

    def click(self, x, y, button=1):
        self.act("mousemove", x, y, "click", button)

    def move_pointer(self, x, y):
        self.x.move_pointer(x, y)

    @contextlib.contextmanager
    def dragging(self, start, end, button=1, key=None):
        """Drags from one point to another, and releases the button at the end of the block."""
        steps = 10
        self.move_pointer(*start)
        if key:
            self.act("keydown", key)
        self.act("mousedown", button)
        for step in range(1, steps + 1):
            self.move_pointer(*(a + (b - a) * step // steps for a, b in zip(start, end)))
            # No faster than a hand, so that the window under the pointer can answer.
            time.sleep(0.02)
        try:
            yield
        finally:
            self.act("mouseup", button)
            if key:
                self.act("keyup", key)

    def wait_for_answer(self, window):
        """Waits until a program has received all keys and clicks that were sent to its window."""
        messages = RootMessages(self, ANSWERS)
        try:
            for number in (1, 2):
                messages.ping(window, number)
        finally:
            messages.close()

    # Menus and the lists of combo boxes

    def popups(self):
        """Returns the windows of the open menus and lists."""
        return {window for window in self.x.children(self.x.root) if self.x.is_popup(window)
                and "_NET_WM_WINDOW_TYPE_TOOLTIP" not in
                self.x.names(window, "_NET_WM_WINDOW_TYPE")}

    def open_popup(self, *keys):
        """Presses keys that open a menu or a list, and waits until it is open."""
        before = self.popups()
        self.key(*keys)
        return self.wait_for_popup(before)

    def wait_for_popup(self, before):
        """Waits until a menu or a list is open that was not before; returns its window."""
        wait_until(lambda: self.popups() - before, "a menu or a list opens")
        return next(iter(self.popups() - before))

    # Colours

    def save_picture(self, path):
        Picture(self).save(path)

    def colors(self, area):
        """Returns the set of colours in a part of the screen."""
        pixels = set(memoryview(self.x.pixels(*area)).cast("I"))
        return {(pixel >> 16 & 255, pixel >> 8 & 255, pixel & 255) for pixel in pixels}

    def color_at(self, x, y):
        color, = self.colors(Rect(x, y, 1, 1))
        return color

    # Windows

    def move_window(self, window, x, y):
        """Moves a window and returns the new place of its frame.

        The place is that of the frame or of the window itself, as the window's gravity demands.
        """
        self.act("windowmove", window, x, y)
        wait_until(lambda: (x, y) in (self.geometry(window)[:2], self.frame(window)[:2]),
                   "the window is there")
        return self.frame(window)

    def close_window(self, window):
        """Asks the window manager to close a window, as a task bar does."""
        processes.run(["wmctrl", "-i", "-c", hex(window)], self.environment)

    def wait_until_at_rest(self, window):
        """Waits until a window stays where it is for a while; returns its frame."""
        def is_at_rest():
            before = self.frame(window)
            time.sleep(0.3)
            return self.frame(window) == before

        wait_until(is_at_rest, "the window has stopped moving")
        return self.frame(window)

    def activate(self, window):
        """Activates a window, as a task bar does, and waits until it receives keys."""
        processes.run(["wmctrl", "-i", "-a", hex(window)], self.environment)
        self.wait_until_active(window)

    def minimise(self, *windows):
        """Minimises windows, and waits until none of them is active."""
        for window in windows:
            self.act("windowminimize", window)
        self.wait_until_minimised(*windows)

    def wait_until_minimised(self, *windows):
        wait_until(lambda: self.active_window() not in windows and all(
            "_NET_WM_STATE_HIDDEN" in self.state(window) for window in windows),
                   "the windows are minimised")

    def maximise(self, window):
        """Asks the window manager to maximise a window, as a task bar does."""
        processes.run(["wmctrl", "-i", "-r", hex(window), "-b",
                       "add,maximized_vert,maximized_horz"], self.environment)

    def property(self, name, window=None):
        """Returns the value that xprop prints for a property, or its error text."""
        where = ["-id", str(window)] if window else ["-root"]
        result = subprocess.run(["xprop", *where, name], env=self.environment, check=False,
                                timeout=PATIENCE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                                text=True)
        return re.split(" = |# |: ", result.stdout.strip(), maxsplit=1)[-1]

    def windows(self, process_id):
        """Returns the managed windows of a process, oldest first."""
        return [window for window in self.x.property(self.x.root, "_NET_CLIENT_LIST")
                if self.x.property(window, "_NET_WM_PID") == [process_id]]

    def active_window(self):
        return next(iter(self.x.property(self.x.root, "_NET_ACTIVE_WINDOW")), 0)

    def focused_window(self):
        """Returns the window with the focus; 0 while no window has it."""
        return self.x.focus()

    def title(self, window):
        return self.x.text(window, "_NET_WM_NAME")

    def state(self, window):
        """Returns the names of the window's states."""
        return self.x.names(window, "_NET_WM_STATE")

    def is_urgent(self, window):
        flags, = self.x.property(window, "WM_HINTS")[:1] or [0]
        return "_NET_WM_STATE_DEMANDS_ATTENTION" in self.state(window) or bool(flags & URGENT)

    def geometry(self, window):
        """Returns the rectangle of a window without its decorations."""
        return Rect(*self.x.geometry(window))

    def frame(self, window):
        """Returns the rectangle of a window with its decorations."""
        parent = self.x.parent(window)
        return self.geometry(window if parent == self.x.root else parent)
