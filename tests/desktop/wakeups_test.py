#!/usr/bin/python3
"""Counts how often the program wakes up, which does not depend on the computer's speed.

Usage: wakeups_test.py WUFFER FOLDER [unittest arguments]
"""

import time

from support.case import DesktopTest, main
from support.processor import Waits
from support.waiting import wait_until

TICKS = 1 / 0.037


class WakeupsTest(DesktopTest):
    """Runs the program without accessibility clients, as on most desktops."""

    def wakeups(self, program, seconds):
        """Returns the wake-ups of all threads of the program per second."""
        before = program.wakeups()
        start = time.monotonic()
        time.sleep(seconds)
        return (program.wakeups() - before) / (time.monotonic() - start)

    def rate(self, program):
        """Returns the wake-ups per second, measured again if the program had to wait for a
        processor: it then misses ticks. After ten attempts returns the last result."""
        for _ in range(10):
            waits = Waits(program.process.pid)
            rate = self.wakeups(program, 2)
            if waits.seconds() < 0.05:
                break
        return rate

    def wait_until_calm(self, program):
        wait_until(lambda: self.wakeups(program, 0.5) == 0, "the program is idle")

    def check_sleep(self, program):
        """No wake-up for three seconds, in the calmest of some measurements: other programs of the
        desktop may wake this one."""
        self.wait_until_calm(program)
        rates = []
        while not rates or (rates[-1] > 0 and len(rates) < 5):
            rates.append(self.wakeups(program, 3))
        self.report(f"wake-ups a second: {rates}")
        self.assertEqual(min(rates), 0)

    def test_an_idle_program_sleeps(self):
        program = self.launch(accessible=False)
        self.check_sleep(program)
        self.assertTrue(program.has_focus())
        self.quit(program)

    def test_an_idle_program_sleeps_after_a_run_with_sound(self):
        self.session.start_sound()
        program = self.launch(accessible=False)
        program.open("ctrl+n")
        # The alarm lasts until the test ends it.
        self.display.key("ctrl+k")
        program.start_countdown(1)
        self.wait_for_notifications(1)
        self.assert_soon(self.session.sound.streams, 1)
        self.display.key("Return")
        self.session.sound.wait_for_no_stream()
        self.check_sleep(program)
        self.quit(program)

    def start_stopwatch(self):
        self.display.key("ctrl+t")
        self.display.key("Return")

    def test_ten_running_timers_wake_the_program_no_more_often_than_one(self):
        program = self.launch(accessible=False)
        self.start_stopwatch()
        program.catch_up()
        seen = self.rate(program)
        # A minimised window is not drawn. Drawing exchanges messages with the X server, and each
        # reply is another wake-up.
        rates = [self.wakeups_unseen(program)]
        for _ in range(9):
            program.open("ctrl+n")
            self.start_stopwatch()
        rates.append(self.wakeups_unseen(program))
        self.report(f"{rates[0]:.1f} wake-ups a second with one timer, {rates[1]:.1f} with ten; "
                    f"{seen:.1f} with one that is visible")
        # An unseen timer works at every fifth of its ticks, and each counts its own.
        self.assertLess(rates[0], TICKS / 5 * 1.5)
        for rate in rates:
            self.assertGreater(rate, TICKS / 5 * 0.8)
            self.assertLess(rate, TICKS * 1.2)
        self.assertGreater(seen, TICKS * 0.8)
        self.assertLess(seen, TICKS * 4.5)
        # One of the windows is visible again.
        self.assertGreater(self.rate(program), TICKS * 0.8)
        self.quit(program)

    def wakeups_unseen(self, program):
        windows = program.windows()
        self.display.minimise(*windows)
        program.catch_up()
        rate = self.rate(program)
        self.display.activate(windows[-1])
        return rate


if __name__ == "__main__":
    main()
