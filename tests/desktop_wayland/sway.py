"""A Wayland compositor without a screen; its windows, mouse and keys."""

import contextlib
import json
import os
import shutil
import socket
import struct
import tempfile
import time

from support import processes
from support.display import Rect
from support.waiting import wait_until
from wayland_input import WaylandInput

# Windows lie where they want to, as on most desktops. The last command tells that all is ready.
CONFIGURATION = """
output HEADLESS-1 resolution {width}x{height}
default_floating_border normal
for_window [title=".*"] floating enable
focus_follows_mouse no
focus_on_window_activation focus
xwayland disable
bar {{
    swaybar_command true
    tray_output *
}}
exec echo "$WAYLAND_DISPLAY" > {ready}.new && mv {ready}.new {ready}
"""

COMMAND, GET_TREE = 0, 4


class Sway:
    """One compositor. It has the operations of a Display that have a meaning on Wayland."""

    def __init__(self, environment, size):
        processes.require("sway", "swaybar", "grim")
        self.width, self.height = size
        # The folder of the session cannot be entered by the user that unprivileged() takes.
        self.folder = tempfile.mkdtemp(prefix="sway-")
        self.server = self.input = None
        try:
            self.start(environment)
        except BaseException:
            self.close()
            raise

    def start(self, environment):
        ready = os.path.join(self.folder, "ready")
        configuration = os.path.join(self.folder, "config")
        with open(configuration, "w", encoding="ascii") as file:
            file.write(CONFIGURATION.format(width=self.width, height=self.height, ready=ready))
        self.path = os.path.join(self.folder, "ipc")
        with open(os.path.join(self.folder, "log"), "w", encoding="ascii") as log:
            self.server = processes.start(
                [*self.unprivileged(), "sway", "--config", configuration],
                dict(environment, XDG_RUNTIME_DIR=self.folder, SWAYSOCK=self.path,
                     WLR_BACKENDS="headless", WLR_LIBINPUT_NO_DEVICES="1", WLR_RENDERER="pixman"),
                stdout=log, stderr=log)
        self.manager = self.server
        wait_until(lambda: os.path.exists(ready), "the compositor is ready")
        with open(ready, encoding="ascii") as file:
            name = file.read().strip()
        place = os.path.join(self.folder, name)
        self.address = {"WAYLAND_DISPLAY": place}
        self.environment = dict(environment, **self.address)
        self.input = WaylandInput(place, (self.width, self.height))

    def unprivileged(self):
        """Returns the command that runs another as an ordinary user: sway refuses to run as the
        administrator, who runs tests in containers."""
        if os.geteuid() != 0:
            return []
        nobody = 65534
        os.chown(self.folder, nobody, nobody)
        return ["setpriv", "--reuid", str(nobody), "--regid", str(nobody), "--clear-groups",
                "--pdeathsig", "KILL"]

    def close(self):
        if self.input:
            self.input.close()
        if self.server:
            processes.end(self.server)
        shutil.rmtree(self.folder)

    def kill(self):
        """Lets the compositor die without a word to its clients."""
        self.server.kill()
        self.server.wait()

    # Its own language

    def ask(self, kind, payload=""):
        with socket.socket(socket.AF_UNIX, socket.SOCK_STREAM) as connection:
            connection.settimeout(10)
            connection.connect(self.path)
            data = payload.encode("utf-8")
            connection.sendall(b"i3-ipc" + struct.pack("=II", len(data), kind) + data)
            with connection.makefile("rb") as stream:
                length, _ = struct.unpack("=II", stream.read(14)[6:])
                return json.loads(stream.read(length))

    def command(self, text):
        for result in self.ask(COMMAND, text):
            if not result["success"]:
                raise RuntimeError(f"{text}: {result['error']}")

    def nodes(self):
        """Returns the windows as the compositor describes them, oldest first."""
        def below(node):
            if node.get("pid"):
                yield node
            for child in node["nodes"] + node["floating_nodes"]:
                yield from below(child)

        return sorted(below(self.ask(GET_TREE)), key=lambda node: node["id"])

    def node(self, window):
        found = [node for node in self.nodes() if node["id"] == window]
        return found[0] if found else None

    # Mouse and keys

    def key(self, *keys):
        self.wait_for_focus()
        for key in keys:
            self.input.key(key)

    def type(self, text):
        self.key(*text)

    def wait_for_focus(self):
        """Waits until a window receives keys: for a moment after one has closed, none does."""
        wait_until(lambda: self.receives_keys(self.active_window()), "a window receives keys")

    def receives_keys(self, window):
        return window != 0 and window == self.active_window()

    def wait_until_active(self, window):
        wait_until(lambda: self.receives_keys(window), "the window is active")

    def wait_for_answer(self, _window):
        """Waits until the compositor has passed on all keys and clicks."""
        self.input.round_trip()

    def move_pointer(self, x, y):
        self.input.move(x, y)

    def click(self, x, y, button=1):
        self.move_pointer(x, y)
        self.press_button(button)

    def press_button(self, button=1):
        self.input.button(button, True)
        self.input.button(button, False)

    @contextlib.contextmanager
    def dragging(self, start, end, button=1, key=None):
        """Drags from one point to another, and releases the button at the end of the block."""
        steps = 10
        self.move_pointer(*start)
        if key:
            self.input.press(key)
        self.input.button(button, True)
        for step in range(1, steps + 1):
            self.move_pointer(*(a + (b - a) * step // steps for a, b in zip(start, end)))
            # No faster than a hand, so that the window under the pointer can answer.
            time.sleep(0.02)
        try:
            yield
        finally:
            self.input.button(button, False)
            if key:
                self.input.release(key)

    # Colours

    def colors(self, area):
        """Returns the set of colours in a part of the screen, on which the pointer is drawn."""
        place = f"{area.x},{area.y} {area.width}x{area.height}"
        data = processes.run_for_bytes(["grim", "-s", "1", "-t", "ppm", "-g", place, "-"],
                                       self.environment)
        pixels = data[-3 * area.width * area.height:]
        return set(zip(pixels[::3], pixels[1::3], pixels[2::3]))

    def color_at(self, x, y):
        color, = self.colors(Rect(x, y, 1, 1))
        return color

    def save_picture(self, path):
        processes.run(["grim", path], self.environment)

    # Windows

    def windows(self, process_id):
        """Returns the windows of a process, oldest first."""
        return [node["id"] for node in self.nodes() if node["pid"] == process_id]

    def active_window(self):
        return next((node["id"] for node in self.nodes() if node["focused"]), 0)

    def title(self, window):
        return self.node(window)["name"]

    def geometry(self, window):
        """Returns the rectangle of a window without its decorations."""
        node = self.node(window)
        outside, inside = node["rect"], node["window_rect"]
        return Rect(outside["x"] + inside["x"], outside["y"] + inside["y"],
                    inside["width"], inside["height"])

    def move_window(self, window, x, y):
        self.command(f"[con_id={window}] move absolute position {x} {y}")

    def activate(self, window):
        """Activates a window, as a task bar does."""
        self.command(f"[con_id={window}] focus")
        self.wait_until_active(window)
