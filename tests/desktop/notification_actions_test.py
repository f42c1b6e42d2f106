#!/usr/bin/python3
"""The buttons of an alarm's notification, what removes it, and many alarms at once.

Usage: notification_actions_test.py WUFFER FOLDER [unittest arguments]
"""

import time

from support.case import DesktopTest, main
from support.waiting import wait_until

MUTED = '{"soundOff": 1}'


class NotificationActionsTest(DesktopTest):
    """The sound is off, so that an alarm lasts until the test ends it."""

    def ring(self):
        program = self.launch(settings=MUTED)
        program.start_countdown(1)
        program.wait_for_button("Reset")
        self.wait_for_notifications(1)
        return program

    def test_a_click_brings_the_timer_forward(self):
        program = self.ring()
        first, = program.windows()
        program.open_timer()
        self.session.notifications.click()
        self.display.wait_until_active(first)
        program.wait_for_button("Reset")
        self.quit(program)

    def test_show_brings_back_a_minimized_timer(self):
        program = self.ring()
        window, = program.windows()
        self.display.key("ctrl+m")
        self.display.wait_until_minimised(window)
        self.session.notifications.press("Show")
        wait_until(lambda: "_NET_WM_STATE_HIDDEN" not in self.display.state(window),
                   "the timer is no longer minimized")
        self.display.wait_until_active(window)
        self.quit(program)

    def test_stop_ends_the_alarm(self):
        program = self.ring()
        self.session.notifications.press("Stop")
        program.wait_for_button("Start")
        program.wait_for_text("Time", "Wuffer")
        self.wait_for_notifications(0)
        self.quit(program)

    def test_reset_removes_the_notification(self):
        program = self.ring()
        self.display.key("Return")
        program.wait_for_button("Start")
        self.wait_for_notifications(0)
        self.quit(program)

    def test_closing_the_window_removes_the_notification(self):
        program = self.ring()
        first, = program.windows()
        program.open_timer()
        self.display.close_window(first)
        program.wait_for_windows(1)
        self.wait_for_notifications(0)
        self.quit(program)

    def test_quitting_removes_the_notification(self):
        program = self.ring()
        self.quit(program)
        self.wait_for_notifications(0)

    def start_merging_notifications(self):
        self.session.end_notifications()
        self.session.start_notifications(merges=True)
        self.addCleanup(self.session.start_notifications)
        self.addCleanup(self.session.end_notifications)

    def test_stop_reaches_all_timers_whose_notifications_are_merged(self):
        self.start_merging_notifications()
        program = self.launch(settings=MUTED)
        for _ in range(2):
            program.open_timer()
        self.display.key("ctrl+shift+s")
        program.wait_for_count(3, "button", "Reset")
        self.wait_for_notifications(1)
        self.session.notifications.press("Stop")
        program.wait_for_count(0, "button", "Reset")
        self.wait_for_notifications(0)
        self.quit(program)

    def test_thirty_timers_that_end_at_once_are_one_notification(self):
        program = self.launch(settings=MUTED)
        for _ in range(2, 31):
            program.open("ctrl+n")
        most = 0
        self.display.key("ctrl+shift+s")
        wait_until(self.session.notifications.shown, "the first timers have ended")
        end = time.monotonic() + 3
        while time.monotonic() < end:
            most = max(most, self.session.notifications.shown())
            time.sleep(0.01)
        self.assertLessEqual(most, 4)
        self.wait_for_notifications(1)
        program.wait_for_count(30, "button", "Reset")
        self.session.notifications.press("Stop")
        program.wait_for_count(0, "button", "Reset")
        self.wait_for_notifications(0)
        last = self.session.notifications.take_all()[0]
        self.assertEqual(last["summary"], "30 timers have ended")
        self.assertEqual(last["body"].split("\n"), ["Wuffer"] * 8 + ["and 22 more"])
        self.quit(program)


if __name__ == "__main__":
    main()
