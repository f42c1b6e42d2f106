#!/usr/bin/python3
"""Takes the screenshots for software centres from the running program.

Usage: make_screenshots.py WUFFER

It needs what the tests of the whole program need, and writes timers.png and options.png next to
itself.
"""

import json
import os
import pathlib
import sys
import time

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(1, str(HERE.parent.parent / "tests" / "desktop"))
from support import processes  # noqa: E402
from support.picture import Picture  # noqa: E402
from support.program import Program  # noqa: E402
from support.session import Session  # noqa: E402
from support.waiting import wait_until  # noqa: E402

SIZE = (1120, 630)
BACKGROUND = "#6f9ea3"
PRESETS = {
    "Preset 1": {"title": "Green tea", "minutes": 3},
    "Preset 2": {"title": "Sourdough", "minutes": 50, "seconds": 30},
    "Preset 3": {"title": "Laundry", "hours": 1, "minutes": 15},
    "Preset 4": {"title": "Soft eggs", "minutes": 0, "seconds": 9},
}
for preset in PRESETS.values():
    preset["finishOption"] = "Do Nothing"
PLACES = [(60, 40), (590, 40), (60, 330), (590, 330)]


def take_picture(display, name):
    Picture(display).save(HERE / name)
    # Without the time stamp, equal pictures are equal files.
    processes.run(["mogrify", "-strip", str(HERE / name)], display.environment)


def timers(session):
    program = Program(session, settings=json.dumps(PRESETS))
    program.start()
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
    take_picture(display, "timers.png")
    program.kill()


def options(session):
    program = Program(session, settings=json.dumps(PRESETS))
    program.start()
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
    take_picture(display, "options.png")
    program.kill()


def main():
    Program.executable = os.path.abspath(sys.argv[1])
    session = Session(SIZE)
    backdrop = processes.start(
        ["display", "-window", "root", "-size", "x".join(map(str, SIZE)), f"xc:{BACKGROUND}"],
        session.display.environment)
    try:
        backdrop.wait(timeout=10)
        timers(session)
        options(session)
    finally:
        processes.end(backdrop)
        session.close()


if __name__ == "__main__":
    main()
