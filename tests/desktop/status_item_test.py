#!/usr/bin/python3
"""Looks at the status item in the panel, and clicks it.

Usage: status_item_test.py WUFFER FOLDER [unittest arguments]
"""

import signal
import time

from support import processes
from support.case import DesktopTest, main
from support.panel import Tint2, XfcePanel
from support.waiting import wait_until

RED = (230, 0, 0)
MUTED = '{"soundOff": 1, "growlDisabled": 1}'


class StatusItemTest(DesktopTest):
    def start(self, panel, settings=MUTED):
        """Starts a panel, and the program with one timer that does not run."""
        self.addCleanup(panel.close)
        program = self.launch(settings=settings)
        program.wait_for_focus_in("Minutes")
        # Keep the pointer off the panel, so that no tooltip pops up.
        self.display.move_pointer(self.display.width // 2, self.display.height // 2)
        panel.look_at_empty()
        return program

    def start_minutes(self, program, minutes):
        program.wait_for_focus_in("Minutes")
        self.display.type(str(minutes))
        self.display.key("Return")

    def wait_until_active(self, window):
        wait_until(lambda: self.display.active_window() == window, 5, "the window is active")

    def leave(self, window):
        self.display.act("windowminimize", window)
        wait_until(lambda: self.display.active_window() != window, 3, "the window is not active")

    def check_one_timer(self, panel):
        program = self.start(panel)
        window, = program.windows()
        self.start_minutes(program, 5)
        item = panel.wait_for_item()
        self.assertLess(abs(item.width - item.height), 4)
        self.leave(window)
        panel.press()
        self.wait_until_active(window)
        self.display.act("set_desktop", 1)
        wait_until(lambda: self.display.active_window() != window, 3, "the window is not active")
        panel.press()
        self.wait_until_active(window)
        self.assertEqual(self.display.property("_NET_CURRENT_DESKTOP"), "0")
        self.display.move_pointer(self.display.width // 2, self.display.height // 2)
        self.display.key("Return")
        program.wait_for_button("Start")
        panel.wait_for_no_item()
        return program

    def test_one_timer_shows_and_a_press_brings_it_back(self):
        self.quit(self.check_one_timer(XfcePanel(self.session)))

    def test_without_a_watcher_on_the_bus_the_item_is_in_the_tray(self):
        self.quit(self.check_one_timer(Tint2(self.session)))

    def test_the_last_seconds_and_the_alarm_are_red(self):
        panel = XfcePanel(self.session)
        program = self.start(panel)
        program.start_countdown(14)
        panel.wait_for_item()
        self.assertNotIn(RED, panel.colors())
        wait_until(lambda: RED in panel.colors(), 6, "the item is red", 0.1)
        self.assertIn(program.shown("Time"), ("10s", "9s"))
        program.wait_for_button("Reset", 15)
        time.sleep(0.5)
        self.assertIn(RED, panel.colors())
        self.display.key("Return")
        panel.wait_for_no_item()
        self.quit(program)

    def open_three(self, program, minutes):
        """Opens three windows with running timers; returns the windows."""
        self.start_minutes(program, minutes[0])
        for count, each in enumerate(minutes[1:], start=2):
            self.display.key("ctrl+n")
            window = program.wait_for_windows(count)[-1]
            self.wait_until_active(window)
            self.start_minutes(program, each)
        wait_until(lambda: len(program.all("button", "Stop")) == 3, 5, "three timers run")
        return program.windows()

    def check_list(self, panel):
        program = self.start(panel)
        later, latest, first = self.open_three(program, (20, 60, 10))
        for presses, window in ((2, later), (1, first), (3, latest)):
            for each in (later, latest, first):
                self.display.act("windowminimize", each)
            time.sleep(0.3)
            panel.press()
            # From outside, an open menu shows only by grabbing the keys, so just wait.
            time.sleep(0.7)
            self.display.key(*["Down"] * presses)
            time.sleep(0.1)
            self.display.key("Return")
            self.wait_until_active(window)
        self.quit(program)

    def test_several_timers_are_listed_and_a_line_brings_its_timer_back(self):
        self.check_list(XfcePanel(self.session))

    def test_the_list_opens_from_the_tray_too(self):
        self.check_list(Tint2(self.session))

    def test_the_panel_goes_and_comes_back(self):
        panel = XfcePanel(self.session)
        program = self.start(panel)
        self.start_minutes(program, 5)
        panel.wait_for_item()
        for _ in range(2):
            panel.stop()
            self.assertLess(program.answers(), 0.5)
            panel.start()
            panel.wait_for_item()
        window, = program.windows()
        self.leave(window)
        panel.press()
        self.wait_until_active(window)
        self.quit(program)

    def test_the_item_leaves_the_tray_when_a_watcher_appears(self):
        tray = Tint2(self.session)
        program = self.start(tray)
        self.start_minutes(program, 5)
        tray.wait_for_item()
        panel = XfcePanel(self.session)
        self.addCleanup(panel.close)
        tray.wait_for_no_item()
        panel.stop()
        tray.wait_for_item()
        self.quit(program)

    def test_the_program_ends_with_its_last_window_whatever_the_panel_shows(self):
        panel = Tint2(self.session)
        program = self.start(panel)
        self.start_minutes(program, 5)
        panel.wait_for_item()
        seconds, status = program.close_all()
        self.assertEqual(status, 0)
        self.assertLess(seconds, 1.5)

    def check_frozen_bus(self):
        program = self.launch(settings=MUTED)
        program.wait_for_focus_in("Minutes")
        time.sleep(0.5)
        processes.signal_group(self.session.bus_daemon, signal.SIGSTOP)
        try:
            self.start_minutes(program, 5)
            program.wait_for_button("Stop")
            program.wait_for_text("Time", "4m 58s")
            self.assertLess(program.answers(), 0.5)
            self.quit(program)
        finally:
            processes.signal_group(self.session.bus_daemon, signal.SIGCONT)

    def test_the_program_works_on_when_the_bus_hangs(self):
        self.check_frozen_bus()

    def test_the_program_works_on_when_the_bus_hangs_beside_a_panel(self):
        panel = XfcePanel(self.session)
        self.addCleanup(panel.close)
        self.check_frozen_bus()

    def test_a_setting_switches_the_item_off(self):
        panel = XfcePanel(self.session)
        program = self.start(panel, '{"noStatusBar": 1, "growlDisabled": 1}')
        self.start_minutes(program, 5)
        time.sleep(1)
        self.assertIsNone(panel.item())
        self.quit(program)


if __name__ == "__main__":
    main()
