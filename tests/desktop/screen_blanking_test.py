#!/usr/bin/python3
"""Checks that the screen stays on during the full screen, and only then.

Usage: screen_blanking_test.py WUFFER FOLDER [unittest arguments]
"""

import time

from gi.repository import Gio, GLib

from support.blanking import Blanking
from support.case import DesktopTest, main
from support.session import ask
from support.waiting import wait_until

NAME = "org.freedesktop.ScreenSaver"
INTERFACE = Gio.DBusNodeInfo.new_for_xml(f"""<node><interface name="{NAME}">
  <method name="Inhibit"><arg direction="in" type="s"/><arg direction="in" type="s"/>
    <arg direction="out" type="u"/></method>
  <method name="UnInhibit"><arg direction="in" type="u"/></method>
</interface></node>""").interfaces[0]


class ScreenSaver:
    """A screen saver service on the session bus that counts its inhibitors."""

    def __init__(self, bus):
        self.bus = bus
        self.holders = {}
        self.asked = 0
        self.registration = bus.register_object("/org/freedesktop/ScreenSaver", INTERFACE,
                                                self.called, None, None)
        self.tell_bus("RequestName", "(su)", NAME, 0)

    def tell_bus(self, method, signature, *arguments):
        ask(self.bus, "org.freedesktop.DBus", "/", "org.freedesktop.DBus", method,
            GLib.Variant(signature, arguments))

    def called(self, _bus, sender, _path, _interface, method, arguments, answer):
        if method == "Inhibit":
            self.asked += 1
            self.holders[self.asked] = sender
            answer.return_value(GLib.Variant("(u)", (self.asked,)))
        else:
            self.holders.pop(arguments[0])
            answer.return_value(None)

    def held(self):
        """Returns the number of current inhibitors."""
        while GLib.MainContext.default().iteration(False):
            pass
        return len(self.holders)

    def close(self):
        self.tell_bus("ReleaseName", "(s)", NAME)
        self.bus.unregister_object(self.registration)


class ScreenBlankingTest(DesktopTest):
    def start(self):
        program = self.launch()
        program.wait_for_focus_in("Minutes")
        self.display.type("60")
        self.display.key("Return")
        program.wait_for_button("Stop")
        return program

    def enter(self, program):
        program.open("F11")

    def leave(self, program):
        program.close_window("Escape")

    def wait_for_blank(self, blanking):
        wait_until(blanking.is_blank, "the screen is blank")

    def test_the_x_server_blanks_the_screen_except_during_the_full_screen(self):
        program = self.start()
        blanking = Blanking(self.display)
        self.addCleanup(blanking.close)
        blanking.set_timeout(1)
        self.wait_for_blank(blanking)
        self.enter(program)
        # A busy computer may have blanked the screen before. A modifier leaves the full screen on.
        program.catch_up()
        self.display.act("key", "shift")
        end = time.monotonic() + 3
        while time.monotonic() < end:
            self.assertFalse(blanking.is_blank())
            time.sleep(0.05)
        self.leave(program)
        self.wait_for_blank(blanking)
        self.quit(program)

    def test_a_program_that_is_killed_lets_the_screen_go_blank(self):
        program = self.start()
        self.enter(program)
        blanking = Blanking(self.display)
        self.addCleanup(blanking.close)
        blanking.set_timeout(1)
        program.kill()
        self.wait_for_blank(blanking)

    def test_the_screen_saver_is_inhibited_during_the_full_screen_only(self):
        saver = ScreenSaver(self.session.bus)
        self.addCleanup(saver.close)
        program = self.start()
        program.catch_up()
        self.assertEqual((saver.held(), saver.asked), (0, 0))
        for count in (1, 2):
            self.enter(program)
            wait_until(lambda: saver.held() == 1, "the screen saver is inhibited")
            self.leave(program)
            wait_until(lambda: saver.held() == 0, "the screen saver is no longer inhibited")
            self.assertEqual(saver.asked, count)
        self.quit(program)

    def test_closing_a_timer_ends_its_inhibition_of_the_screen_saver(self):
        saver = ScreenSaver(self.session.bus)
        self.addCleanup(saver.close)
        program = self.start()
        window, = program.windows()
        self.enter(program)
        wait_until(lambda: saver.held() == 1, "the screen saver is inhibited")
        self.display.close_window(window)
        wait_until(lambda: saver.held() == 0, "the screen saver is no longer inhibited")


if __name__ == "__main__":
    main()
