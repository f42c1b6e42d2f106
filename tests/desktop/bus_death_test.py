#!/usr/bin/python3
"""Kills the session bus and the services on it while the timers run and ring.

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
    """The accessibility tree dies with the bus, so these tests judge pixels and sound only."""

    @classmethod
    def setUpClass(cls):
        """No shared session: each test destroys its own."""

    def setUp(self):
        self.session = Session(self.size)
        self.addCleanup(self.session.close)
        self.display = self.session.display
        self.session.start_sound()
        super().setUp()

    def is_red(self, program):
        return RED in self.display.colors(self.display.geometry(program.windows()[0]))

    def ring(self, program):
        """Starts a countdown of a second, waits for its alarm, and returns when that began."""
        _, pressed = program.start_countdown(1)
        # The last seconds are red as well, so wait until the alarm must have begun.
        time.sleep(pressed + 1.2 - time.monotonic())
        self.assertTrue(self.is_red(program))
        return pressed + 1

    def wait_until_quiet(self, program):
        wait_until(lambda: not self.is_red(program), 5, "the timer has stopped ringing", 0.02)

    def kill_bus(self):
        self.session.bus_daemon.kill()
        self.session.bus_daemon.wait()

    def check_calm(self, program):
        """The program sleeps when it has nothing to do."""
        wait_until(lambda: self.work(program, 0.25)[0] < 5, 5, "the program is idle")
        wakeups, busy = self.work(program, 1)
        self.report(f"{wakeups} wake-ups and {busy * 1000:.0f} ms of work in a second")
        self.assertLess(wakeups, 20)
        self.assertLess(busy, 0.1)

    def work(self, program, seconds):
        """Returns the wake-ups within the given seconds, and the processor time used."""
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
        # The next alarm rings, too.
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
        # A timer asks for attention only if its window is not active: activate another one.
        self.display.key("ctrl+comma")
        program.wait_for_windows(2)
        wait_until(lambda: self.display.active_window() != timer, 2, "the timer is not active")
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
