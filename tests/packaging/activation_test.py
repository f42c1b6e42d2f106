#!/usr/bin/python3
"""Lets the session bus start the installed program, as desktops do.

Usage: activation_test.py BUILD FOLDER [unittest arguments]
"""

import os
import pathlib
import signal
import sys
import unittest

from gi.repository import Gio, GLib

from installation import Installation, take_argument

sys.path.insert(1, str(pathlib.Path(__file__).resolve().parent.parent / "desktop"))
from support import processes  # noqa: E402
from support.case import DesktopTest  # noqa: E402
from support.session import ask  # noqa: E402
from support.waiting import PATIENCE, wait_until  # noqa: E402

BUILD = os.path.abspath(take_argument())
NAME = "org.wuffer.Wuffer"
PATH = "/org/wuffer/Wuffer"
INTERFACE = "org.freedesktop.Application"
BUS = ("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus")


class ActivationTest(DesktopTest):
    @classmethod
    def setUpClass(cls):
        cls.installed = Installation(BUILD)
        cls.addClassCleanup(cls.installed.remove)
        cls.service_folder = cls.installed.path("share/dbus-1/services")
        super().setUpClass()
        # The environment that a desktop passes to the bus when a session begins.
        names = {name: cls.session.environment[name]
                 for name in ("DISPLAY", "HOME", "XDG_RUNTIME_DIR", "LC_ALL")}
        ask(cls.session.bus, *BUS, "UpdateActivationEnvironment",
            GLib.Variant("(a{ss})", (names,)))

    def tearDown(self):
        for process_id in self.programs_of_the_bus():
            os.kill(process_id, signal.SIGKILL)
        wait_until(lambda: not self.session.owns(NAME), "the program has ended")
        super().tearDown()

    def programs_of_the_bus(self):
        return [process_id for process_id, command
                in processes.marked(self.session.folder).items() if command == "wuffer"]

    def call(self, method, signature, arguments):
        """Calls a method of the program; does not wait for the reply."""
        self.session.bus.call(NAME, PATH, INTERFACE, method, GLib.Variant(signature, arguments),
                              None, Gio.DBusCallFlags.NONE, 1000 * PATIENCE, None, None)
        self.session.bus.flush_sync()

    def wait_for_titles(self, *titles):
        """Waits until one process of the program runs, and its windows have these titles."""
        wait_until(lambda: self.session.owns(NAME), "the program owns its name")
        process_id, = ask(self.session.bus, *BUS, "GetConnectionUnixProcessID",
                          GLib.Variant("(s)", (NAME,)))

        def shown():
            return sorted(self.display.title(window)
                          for window in self.display.windows(process_id))

        wait_until(lambda: shown() == sorted(titles), f"the windows are {titles}")
        self.assertEqual(self.programs_of_the_bus(), [process_id])

    def test_it_is_started_with_one_timer(self):
        self.call("Activate", "(a{sv})", ({},))
        self.wait_for_titles("Wuffer")

    def test_two_calls_start_it_once(self):
        self.call("Activate", "(a{sv})", ({},))
        self.call("Activate", "(a{sv})", ({},))
        self.wait_for_titles("Wuffer")

    def test_it_is_started_for_an_action(self):
        self.call("ActivateAction", "(sava{sv})", ("converter", [], {}))
        self.wait_for_titles("Converter — Wuffer")

    def test_it_is_started_for_two_new_timers(self):
        self.call("ActivateAction", "(sava{sv})", ("new-timer", [], {}))
        self.call("ActivateAction", "(sava{sv})", ("new-timer", [], {}))
        self.wait_for_titles("Wuffer", "Wuffer")


if __name__ == "__main__":
    DesktopTest.output = os.path.abspath(take_argument())
    os.makedirs(DesktopTest.output, exist_ok=True)
    unittest.main(verbosity=2)
