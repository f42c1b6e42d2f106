#!/usr/bin/python3
"""Takes the session bus and what lives on it from the program while its timers ring.

Usage: bus_death_test.py WUFFER FOLDER [unittest arguments]
"""

import os
import time

from support.case import DesktopTest, main
from support.session import Session
from support.waiting import wait_until

RED = (230, 0, 0)
MUTED = '{"soundOff": 1}'
ALARM = 2.24


class BusDeathTest(DesktopTest):
    """The accessibility tree goes with the bus, so here only what can be seen and heard tells."""

    @classmethod
    def setUpClass(cls):
        """Each test takes its session apart."""

    def setUp(self):
        self.session = Session(self.size)
        self.addCleanup(self.session.close)
        self.display = self.session.display
        self.session.start_sound()
        super().setUp()

    def is_red(self, program):
        return RED in self.display.colors(self.display.geometry(program.windows()[0]))

    def ring(self, program):
        """Gives the moment at which the alarm has begun."""
        _, pressed = program.start_countdown(1)
        # It is red before, too.
        time.sleep(pressed + 1.2 - time.monotonic())
        self.assertTrue(self.is_red(program))
        return pressed + 1

    def wait_until_quiet(self, program):
        wait_until(lambda: not self.is_red(program), 5, "it rings no more", 0.02)

    def kill_bus(self):
        self.session.bus_daemon.kill()
        self.session.bus_daemon.wait()

    def check_calm(self, program):
        """Without work to do the program comes to rest and sleeps."""
        wait_until(lambda: self.work(program, 0.25)[0] < 5, 5, "the program has come to rest")
        wakeups, busy = self.work(program, 1)
        self.report(f"{wakeups} wake-ups and {busy * 1000:.0f} ms of work in a second")
        self.assertLess(wakeups, 20)
        self.assertLess(busy, 0.1)

    def work(self, program, seconds):
        """How often the program wakes up in so many seconds, and for how long it works."""
        before, ticks = program.wakeups(), self.ticks(program)
        time.sleep(seconds)
        return (program.wakeups() - before,
                (self.ticks(program) - ticks) / os.sysconf("SC_CLK_TCK"))

    def ticks(self, program):
        with open(f"/proc/{program.process.pid}/stat", encoding="ascii") as file:
            fields = file.read().rsplit(")", 1)[1].split()
        return int(fields[11]) + int(fields[12])

    def test_a_muted_alarm_lasts_until_it_is_reset(self):
        program = self.launch(settings=MUTED, accessible=False)
        self.ring(program)
        self.kill_bus()
        time.sleep(1)
        self.assertTrue(self.is_red(program))
        self.display.key("Return")
        self.wait_until_quiet(program)
        self.check_calm(program)
        # The next one rings, too.
        self.display.key("Return")
        time.sleep(1.2)
        self.assertTrue(self.is_red(program))
        self.display.key("Return")
        self.wait_until_quiet(program)
        self.quit(program)

    def test_an_alarm_is_heard_to_its_end(self):
        program = self.launch(accessible=False)
        zero = self.ring(program)
        self.kill_bus()
        self.wait_until_quiet(program)
        heard = self.heard().last_sound() - zero
        self.report(f"heard until {heard:.2f} s after zero")
        # The sound fades away, and its first 0.2 s are over before the bus dies.
        self.assertGreater(heard, ALARM - 0.8)
        self.check_calm(program)
        self.quit(program)

    def test_a_running_timer_ends_on_time(self):
        program = self.launch(settings=MUTED, accessible=False)
        timer, = program.windows()
        waits = self.waits(program)
        _, pressed = program.start_countdown(3)
        self.kill_bus()
        # In the other window it would not have to ask for attention.
        self.display.key("ctrl+comma")
        program.wait_for_windows(2)
        wait_until(lambda: self.display.active_window() != timer, 2, "it is not active")
        wait_until(lambda: self.display.is_urgent(timer), 5, "the timer asks for attention")
        self.assertAlmostEqual(time.monotonic() - pressed, 3, delta=0.3 + waits.seconds())
        self.quit(program)

    def test_an_accessible_program_goes_on_too(self):
        program = self.launch(settings=MUTED)
        self.ring(program)
        self.kill_bus()
        self.display.key("Return")
        self.wait_until_quiet(program)
        self.check_calm(program)
        self.quit(program)


if __name__ == "__main__":
    main()
