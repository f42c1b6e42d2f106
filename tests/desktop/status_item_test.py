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

    def check_one_timer(self, panel):
        program = self.start(panel)
        window, = program.windows()
        self.start_minutes(program, 5)
        wait_until(lambda: self.is_square(panel.wait_for_item()), "the item is a square")
        self.display.minimise(window)
        self.bring_back(program, panel.press, window)
        self.display.act("set_desktop", 1)
        wait_until(lambda: self.display.active_window() != window, "the window is not active")
        self.bring_back(program, panel.press, window)
        self.assert_soon(lambda: self.display.property("_NET_CURRENT_DESKTOP"), "0")
        self.display.move_pointer(self.display.width // 2, self.display.height // 2)
        self.display.key("Return")
        program.wait_for_button("Start")
        panel.wait_for_no_item()
        return program

    def is_square(self, item):
        return abs(item.width - item.height) < 4

    def bring_back(self, program, act, window):
        """Does what brings a window back, and waits until the program has done all it does then."""
        act()
        self.display.wait_until_active(window)
        program.catch_up()

    def test_one_timer_shows_and_a_press_brings_it_back(self):
        self.quit(self.check_one_timer(XfcePanel(self.session)))

    def test_without_a_watcher_on_the_bus_the_item_is_in_the_tray(self):
        self.quit(self.check_one_timer(Tint2(self.session)))

    def test_the_last_seconds_and_the_alarm_are_red(self):
        panel = XfcePanel(self.session)
        program = self.start(panel)
        program.start_countdown(14)
        for _ in range(3):
            panel.wait_for_item()
            self.assertNotIn(RED, panel.colors())
            self.wait_until_red(panel)
            shown = program.shown("Time")
            if shown in ("10s", "9s"):
                break
            # On a busy computer the look may come late, so start again.
            self.display.key("Return")
            panel.wait_for_no_item()
            program.wait_for_focus_in("Seconds")
            self.display.type("14")
            self.display.key("Return")
        self.assertIn(shown, ("10s", "9s"))
        program.wait_for_button("Reset")
        time.sleep(0.5)
        self.wait_until_red(panel)
        self.display.key("Return")
        panel.wait_for_no_item()
        self.quit(program)

    def wait_until_red(self, panel):
        wait_until(lambda: RED in panel.colors(), "the item is red")

    def open_three(self, program, minutes):
        """Opens three windows with running timers; returns the windows."""
        self.start_minutes(program, minutes[0])
        for each in minutes[1:]:
            program.open_timer()
            self.start_minutes(program, each)
        program.wait_for_count(3, "button", "Stop")
        return program.windows()

    def check_list(self, panel):
        program = self.start(panel)
        later, latest, first = self.open_three(program, (20, 60, 10))
        for presses, window in ((2, later), (1, first), (3, latest)):
            self.display.minimise(later, latest, first)
            panel.open_menu()
            program.answers()
            # The menu receives the keys, although no window is active.
            keys = ["Down"] * presses + ["Return"]
            self.bring_back(program, lambda k=keys: self.display.act("key", "--delay", "0", *k),
                            window)
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
            self.check_answers(program)
            panel.start()
            panel.wait_for_item()
        window, = program.windows()
        self.display.minimise(window)
        self.bring_back(program, panel.press, window)
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
        program.catch_up()
        processes.signal_group(self.session.bus_daemon, signal.SIGSTOP)
        try:
            self.start_minutes(program, 5)
            program.wait_for_button("Stop")
            program.wait_for_text("Time", *(f"4m {seconds}s" for seconds in range(30, 59)))
            self.check_answers(program)
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
        program.wait_for_button("Stop")
        time.sleep(1)
        self.assertIsNone(panel.item())
        self.quit(program)


if __name__ == "__main__":
    main()
