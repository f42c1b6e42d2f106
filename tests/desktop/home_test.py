#!/usr/bin/python3
"""Launches the program again while it runs, and closes all of its windows.

Usage: home_test.py WUFFER FOLDER [unittest arguments]
"""

import os
import signal
import subprocess
import time

from gi.repository import Gio, GLib

from support.case import DesktopTest, main
from support.program import Program
from support.root_messages import RootMessages
from support.waiting import PATIENCE, wait_until

NAME = "org.wuffer.Wuffer"
PATH = "/org/wuffer/Wuffer"


class HomeTest(DesktopTest):
    def launch_again(self, program, *arguments, environment=None):
        """Launches the program while it runs; returns how many seconds that took."""
        start = time.monotonic()
        result = subprocess.run([program.executable, *arguments], timeout=PATIENCE, check=False,
                                env=dict(program.environment, **(environment or {})),
                                capture_output=True, text=True)
        self.assertEqual((result.returncode, result.stdout, result.stderr), (0, "", ""))
        return time.monotonic() - start

    def wait_until_active(self, title):
        wait_until(lambda: title in self.display.title(self.display.active_window()),
                   f"{title} is active")

    def test_the_home_window_takes_the_place_of_the_last_one(self):
        program = self.launch()
        timer, = program.windows()
        self.display.key("ctrl+w")
        self.assertNotEqual(program.wait_for_home(), timer)
        self.display.key("Return")
        program.find("field", "Minutes")
        program.wait_for_windows(1)
        program.wait_for_focus_in("Minutes")
        self.display.key("ctrl+w")
        self.close_home(program)

    def test_presets_open_from_the_home_window_by_mouse_and_by_key(self):
        program = self.launch(settings='{"launchBehavior": "Do Nothing",'
                                       ' "Preset 4": {"title": "Eggs", "minutes": 6}}')
        program.click("button", "Eggs - 0h 6m 0s")
        self.wait_until_active("Eggs")
        self.display.key("ctrl+w")
        program.wait_for_home()
        self.display.key("alt+4")
        self.wait_until_active("Eggs")
        program.wait_for_windows(1)
        self.quit(program)

    def test_a_launch_while_it_runs_reaches_the_program(self):
        program = self.launch()
        timer, = program.windows()
        program.wait_for_focus_in("Minutes")
        self.display.type("5")
        self.report(f"{self.launch_again(program, '--new-timer'):.3f} s")
        program.wait_for_new_window([timer])
        program.wait_for_focus_in("Minutes")
        self.display.type("5")
        # The program may hear of the launch before the key.
        program.catch_up()
        self.launch_again(program, "--start-all")
        program.wait_for_count(2, "button", "Stop")
        self.launch_again(program, "--converter")
        self.wait_until_active("Converter")
        self.launch_again(program, "--preferences")
        self.wait_until_active("Preferences")
        self.assertEqual(len(program.windows()), 4)
        self.assertIn(timer, program.windows())
        self.quit(program)

    def test_a_launch_brings_a_minimized_timer_back(self):
        program = self.launch()
        timer, = program.windows()
        self.display.key("ctrl+m")
        self.display.wait_until_minimised(timer)
        self.launch_again(program)
        self.display.wait_until_active(timer)
        self.quit(program)

    def test_the_desktop_is_told_that_the_launch_is_over(self):
        program = self.launch()
        messages = RootMessages(self.display)
        self.addCleanup(messages.close)
        self.launch_again(program, environment={"DESKTOP_STARTUP_ID": 'a "launch"_TIME0'})
        self.assertEqual(messages.startup_text(), b'remove: ID="a \\"launch\\"_TIME0"\0')
        self.quit(program)

    def call(self, method, arguments):
        self.session.bus.call_sync(NAME, PATH, "org.freedesktop.Application", method, arguments,
                                   None, Gio.DBusCallFlags.NO_AUTO_START, 1000 * PATIENCE, None)

    def test_started_as_a_service_it_opens_no_window_until_it_is_called(self):
        program = self.launch_service()
        self.assertEqual(program.windows(), [])
        self.call("ActivateAction", GLib.Variant("(sava{sv})", ("converter", [], {})))
        program.wait_for_windows(1)
        self.wait_until_active("Converter")
        self.call("Activate", GLib.Variant("(a{sv})", ({},)))
        self.wait_until_active("Converter")
        program.kill()

    def launch_service(self):
        program = Program(self.session, accessible=False, arguments=["--service"])
        self.programs.append(program)
        program.spawn()
        wait_until(lambda: self.session.owns(NAME), "the program owns its name")
        return program

    def test_a_launch_opens_a_window_if_the_running_program_hangs(self):
        program = self.launch()
        os.kill(program.process.pid, signal.SIGSTOP)
        try:
            second = self.launch(accessible=False)
            self.assertEqual(len(second.windows()), 1)
            self.quit(second)
        finally:
            os.kill(program.process.pid, signal.SIGCONT)
        self.quit_when_active(program)

    def quit_when_active(self, program):
        window, = program.windows()
        self.display.activate(window)
        self.quit(program)

    def test_a_launch_opens_a_window_if_the_bus_hangs(self):
        self.session.bus_daemon.send_signal(signal.SIGSTOP)
        try:
            start = time.monotonic()
            program = self.launch(accessible=False)
            self.report(f"a window after {time.monotonic() - start:.1f} s")
            program.start_countdown(60)
            self.quit(program)
        finally:
            self.session.bus_daemon.send_signal(signal.SIGCONT)

    def test_without_a_display_it_ends_with_one_line(self):
        # No variable at all, as the session bus starts it, and displays that cannot be reached.
        for variables in ({}, {"DISPLAY": ":9999"},
                          {"WAYLAND_DISPLAY": "nowhere", "XDG_SESSION_TYPE": "wayland"}):
            environment = {name: value for name, value in self.session.environment.items()
                           if name not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
            ended = subprocess.run([Program.executable, "--service"], env=environment | variables,
                                   capture_output=True, text=True, timeout=30, check=False)
            with self.subTest(variables):
                self.assertEqual(ended.returncode, 1)
                self.assertEqual(ended.stderr,
                                 "wuffer: There is no display that the program can open.\n")


if __name__ == "__main__":
    main()
