#!/usr/bin/python3
"""Takes the screenshots for software centres from the running program.

Usage: make_screenshots.py WUFFER

It needs what the tests of the whole program need, and optipng. It writes timers.png and options.png
next to itself, and timers-dark.png and options-dark.png, taken on a dark desktop.
"""

import json
import os
import pathlib
import sys
import time
from typing import NamedTuple

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(1, str(HERE.parent.parent / "tests" / "desktop"))
from support import processes  # noqa: E402
from support.picture import Picture  # noqa: E402
from support.program import Program  # noqa: E402
from support.session import Session  # noqa: E402
from support.waiting import wait_until  # noqa: E402

SIZE = (1120, 630)
PRESETS = {
    "Preset 1": {"title": "Green tea", "minutes": 3},
    "Preset 2": {"title": "Sourdough", "minutes": 50, "seconds": 30},
    "Preset 3": {"title": "Laundry", "hours": 1, "minutes": 15},
    "Preset 4": {"title": "Soft eggs", "minutes": 0, "seconds": 9},
}
for preset in PRESETS.values():
    preset["finishOption"] = "Do Nothing"
PLACES = [(60, 40), (590, 40), (60, 330), (590, 330)]

# The colours of a dark desktop, as Plasma stores them for all programs.
DARK_COLORS = {
    "Window": ("42,46,50", "252,252,252"),
    "View": ("27,30,32", "252,252,252"),
    "Button": ("49,54,59", "252,252,252"),
    "Selection": ("61,174,233", "252,252,252"),
    "Tooltip": ("49,54,59", "252,252,252"),
}
DARK_DESKTOP = {"XDG_CURRENT_DESKTOP": "KDE", "KDE_FULL_SESSION": "true",
                "KDE_SESSION_VERSION": "5"}


class Desktop(NamedTuple):
    """A desktop on which pictures are taken."""

    suffix: str
    background: str
    frames: str
    colors: dict
    environment: dict


DESKTOPS = [Desktop("", "#6f9ea3", "Clearlooks", {}, {}),
            Desktop("-dark", "#2f4a4d", "Nightmare-02", DARK_COLORS, DARK_DESKTOP)]


def frame_windows(session, theme):
    """Gives the frames of all windows a theme of the window manager."""
    configuration = pathlib.Path("/etc/xdg/openbox/rc.xml").read_text(encoding="utf-8")
    folder = pathlib.Path(session.folder, ".config", "openbox")
    folder.mkdir(parents=True)
    (folder / "rc.xml").write_text(
        configuration.replace("<name>Clearlooks</name>", f"<name>{theme}</name>"), encoding="utf-8")
    processes.run(["openbox", "--reconfigure"], session.display.environment)
    display = session.display
    wait_until(lambda: display.x.text(display.x.root, "_OB_THEME") == theme, f"{theme} is used")


def start(session, desktop):
    """Starts the program with the presets."""
    program = Program(session, settings=json.dumps(PRESETS), environment=desktop.environment)
    if desktop.colors:
        scheme = "".join(f"[Colors:{part}]\nBackgroundNormal={ground}\nForegroundNormal={text}\n\n"
                         for part, (ground, text) in desktop.colors.items())
        pathlib.Path(program.home, "config", "kdeglobals").write_text(scheme, encoding="ascii")
    program.start()
    return program


def take_picture(display, name):
    path = str(HERE / name)
    Picture(display).save(path)
    # Without the time stamp, equal pictures are equal files.
    processes.run(["mogrify", "-strip", path], display.environment)
    processes.run(["optipng", "-quiet", "-o2", path], display.environment)


def timers(session, desktop):
    program = start(session, desktop)
    display = session.display
    for number in range(1, len(PRESETS) + 1):
        display.key(f"alt+{number}")
        program.wait_for_windows(number + 1)
    first, *windows = program.windows()
    display.close_window(first)
    program.wait_for_windows(len(windows))
    for window, place in zip(windows, PLACES):
        display.move_window(window, *place)
    display.key("ctrl+shift+s")
    wait_until(lambda: len(program.all("button", "Stop")) == len(windows), "all run")
    wait_until(lambda: any(label.name in ("4s", "5s")
                           for label in program.all("display", description="Time")),
               "the display of one is red")
    take_picture(display, f"timers{desktop.suffix}.png")
    program.kill()


def options(session, desktop):
    program = start(session, desktop)
    display = session.display
    display.key("alt+1")
    first, window = program.wait_for_windows(2)
    display.close_window(first)
    program.wait_for_windows(1)
    display.move_window(window, 320, 130)
    display.key("ctrl+o")
    wait_until(lambda: program.has("button", "Hide Options"), "the drawer opens")
    # Wait until the drawer has slid out.
    time.sleep(1)
    take_picture(display, f"options{desktop.suffix}.png")
    program.kill()


def take_pictures(desktop):
    session = Session(SIZE)
    frame_windows(session, desktop.frames)
    backdrop = processes.start(
        ["display", "-window", "root", "-size", "x".join(map(str, SIZE)),
         f"xc:{desktop.background}"], session.display.environment)
    try:
        backdrop.wait(timeout=10)
        timers(session, desktop)
        options(session, desktop)
    finally:
        processes.end(backdrop)
        session.close()


def main():
    Program.executable = os.path.abspath(sys.argv[1])
    for desktop in DESKTOPS:
        take_pictures(desktop)


if __name__ == "__main__":
    main()
