#!/usr/bin/python3
"""Runs the installed program in a desktop session of its own.

Usage: installed_program_test.py BUILD FOLDER [unittest arguments]
"""

import os
import pathlib
import sys
import unittest

from installation import Installation, take_argument

sys.path.insert(1, str(pathlib.Path(__file__).resolve().parent.parent / "desktop"))
from support.case import DesktopTest  # noqa: E402
from support.program import Program  # noqa: E402
from support.waiting import wait_until  # noqa: E402

BUILD = os.path.abspath(take_argument())

# Replaces the browser: writes the address that it is to open to a file.
OPENER = """#!/bin/sh
printf '%s' "$1" >"$0.part" && mv "$0.part" "$0.address"
"""


class InstalledProgramTest(DesktopTest):
    sound = True

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        # Another place than the configured prefix, so that no file is found by chance.
        cls.installed = Installation(BUILD, prefix="/usr", staged=True)
        cls.addClassCleanup(cls.installed.remove)
        Program.executable = cls.installed.path("bin/wuffer")

    def test_it_rings(self):
        program = self.launch()
        module = self.installed.path()
        _, pressed = program.start_countdown(1)
        self.wait_for_notifications(1)
        self.heard().wait_for_sound(pressed)
        with open(f"/proc/{program.process.pid}/maps", encoding="ascii") as file:
            modules = {line.split()[-1] for line in file if "/wuffer_sound.so" in line}
        self.assertEqual(len(modules), 1)
        self.assertTrue(modules.pop().startswith(module))
        self.quit(program)

    def test_it_opens_its_web_page(self):
        opener = os.path.join(self.session.folder, "xdg-open")
        with open(opener, "w", encoding="ascii") as file:
            file.write(OPENER)
        os.chmod(opener, 0o755)
        program = self.launch(environment={"PATH": f"{self.session.folder}:{os.environ['PATH']}"})
        self.display.open_popup("alt+h")
        self.display.key("w")
        wait_until(lambda: os.path.exists(f"{opener}.address"), "the page is opened")
        with open(f"{opener}.address", encoding="utf-8") as file:
            address = file.read()
        self.assertTrue(address.startswith("file://"))
        self.assertTrue(os.path.samefile(address.removeprefix("file://"),
                                         self.installed.path("share/wuffer/index.html")))
        self.quit(program)

    def test_its_windows_are_of_the_class_that_its_desktop_entry_names(self):
        program = self.launch()
        entry = self.installed.read("share/applications/org.wuffer.Wuffer.desktop")
        named, = (line.split("=")[1] for line in entry.splitlines()
                  if line.startswith("StartupWMClass="))
        shown = self.display.property("WM_CLASS", program.windows()[0])
        self.assertEqual(shown.split(", ")[1], f'"{named}"')
        self.quit(program)


if __name__ == "__main__":
    DesktopTest.output = os.path.abspath(take_argument())
    os.makedirs(DesktopTest.output, exist_ok=True)
    unittest.main(verbosity=2)
