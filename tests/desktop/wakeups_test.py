#!/usr/bin/python3
"""Counts how often the program wakes up, which no speed of the computer changes.

Usage: wakeups_test.py WUFFER FOLDER [unittest arguments]
"""

import time

from support.case import DesktopTest, main
from support.waiting import wait_until

TICKS = 1 / 0.037


class WakeupsTest(DesktopTest):
    """Nobody listens to the accessibility tree here, as on most desktops."""

    def wakeups(self, program, seconds):
        """How often all threads of the program wake up in a second."""
        before = program.wakeups()
        start = time.monotonic()
        time.sleep(seconds)
        return (program.wakeups() - before) / (time.monotonic() - start)

    def wait_until_calm(self, program):
        wait_until(lambda: self.wakeups(program, 0.5) == 0, 10, "the program has come to rest")

    def test_an_idle_program_sleeps(self):
        program = self.launch(accessible=False)
        self.wait_until_calm(program)
        self.assertTrue(program.has_focus())
        self.assertEqual(self.wakeups(program, 4), 0)
        self.quit(program)

    def test_an_idle_program_sleeps_after_a_run_with_sound(self):
        self.session.start_sound()
        program = self.launch(accessible=False)
        self.display.key("ctrl+n")
        program.wait_for_windows(2)
        program.start_countdown(1)
        time.sleep(1.2)
        self.assertEqual(self.session.sound.streams(), 1)
        self.display.key("Return")
        wait_until(lambda: self.session.sound.streams() == 0, 3, "the stream is closed")
        self.wait_until_calm(program)
        self.assertEqual(self.wakeups(program, 3), 0)
        self.quit(program)

    def test_ten_running_timers_wake_the_program_no_more_often_than_one(self):
        program = self.launch(accessible=False)
        self.display.key("ctrl+t")
        self.display.key("Return")
        time.sleep(0.5)
        one = self.wakeups(program, 3)
        for count in range(2, 11):
            self.display.key("ctrl+n")
            window = program.wait_for_windows(count)[-1]
            wait_until(lambda w=window: self.display.active_window() == w, 3, "it is active")
            self.display.key("ctrl+t")
        self.display.key("ctrl+shift+s")
        time.sleep(0.5)
        ten = self.wakeups(program, 3)
        self.report(f"{one:.1f} wake-ups a second with one timer, {ten:.1f} with ten")
        for rate in (one, ten):
            self.assertGreater(rate, TICKS * 0.8)
            self.assertLess(rate, TICKS * 1.3)
        self.quit(program)


if __name__ == "__main__":
    main()
