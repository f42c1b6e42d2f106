#!/usr/bin/python3
"""Takes the session bus and what lives on it from the program while its timers ring.

Usage: bus_death_test.py WUFFER FOLDER [unittest arguments]
"""

import os
import time

from support.case import DesktopTest, main
from support.moments import measures_moments
from support.picture import Picture
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
        return RED in Picture(self.display).colors(self.display.geometry(program.windows()[0]))

    def ring(self, program):
        _, pressed = program.start_countdown(1)
        # It is red before, too.
        time.sleep(pressed + 1.2 - time.monotonic())
        self.assertTrue(self.is_red(program))

    def wait_until_quiet(self, program):
        wait_until(lambda: not self.is_red(program), 5, "it rings no more", 0.02)

    def kill_bus(self):
        self.session.bus_daemon.kill()
        self.session.bus_daemon.wait()

    def check_calm(self, program):
        """Without work to do the program sleeps."""
        time.sleep(0.5)
        before, ticks = program.wakeups(), self.ticks(program)
        time.sleep(1)
        more = program.wakeups() - before
        busy = (self.ticks(program) - ticks) / os.sysconf("SC_CLK_TCK")
        self.report(f"{more} wake-ups and {busy * 1000:.0f} ms of work in a second")
        self.assertLess(more, 20)
        self.assertLess(busy, 0.1)

    def ticks(self, program):
        with open(f"/proc/{program.process.pid}/stat", encoding="ascii") as file:
            fields = file.read().rsplit(")", 1)[1].split()
        return int(fields[11]) + int(fields[12])

    @measures_moments
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

    @measures_moments
    def test_an_alarm_is_heard_to_its_end(self):
        program = self.launch(accessible=False)
        self.ring(program)
        heard = self.heard().last_sound()
        self.kill_bus()
        self.wait_until_quiet(program)
        self.report(f"heard for {self.heard().last_sound() - heard:.2f} s more")
        self.assertGreater(self.heard().last_sound() - heard, ALARM - 1)
        self.check_calm(program)
        self.quit(program)

    @measures_moments
    def test_a_running_timer_ends_on_time(self):
        program = self.launch(settings=MUTED, accessible=False)
        timer, = program.windows()
        _, pressed = program.start_countdown(3)
        self.kill_bus()
        # In the other window it would not have to ask for attention.
        self.display.key("ctrl+comma")
        program.wait_for_windows(2)
        wait_until(lambda: self.display.active_window() != timer, 2, "it is not active")
        wait_until(lambda: self.display.is_urgent(timer), 5, "the timer asks for attention")
        self.assertAlmostEqual(time.monotonic() - pressed, 3, delta=0.3)
        self.quit(program)

    @measures_moments
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
