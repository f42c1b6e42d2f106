#!/usr/bin/python3
"""Kills the session bus and the services on it while the timers run and ring, and starts it anew.

Usage: bus_death_test.py WUFFER FOLDER [unittest arguments]
"""

import json
import os
import time

from support.case import DesktopTest, main
from support.panel import XfcePanel
from support.samples import write_tone
from support.session import Session
from support.waiting import wait_until

NAME = "org.wuffer.Wuffer"
RED = (230, 0, 0)
MUTED = '{"soundOff": 1}'
# The length of the user's own alarm sound, in seconds.
ALARM = 6


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
        # The last seconds are red as well.
        self.wait_for_notifications(1)
        self.wait_until_red(program)
        return pressed + 1

    def wait_until_red(self, program):
        wait_until(lambda: self.is_red(program), "the display is red")

    def wait_until_quiet(self, program):
        wait_until(lambda: not self.is_red(program), "the timer has stopped ringing")

    def kill_bus(self):
        self.session.bus_daemon.kill()
        self.session.bus_daemon.wait()

    def start_bus(self):
        """Starts a bus at the address of the one that was killed, and a notification service."""
        self.session.end_notifications()
        self.session.start_bus()
        self.session.start_notifications()

    def check_calm(self, program):
        """The program sleeps when it has nothing to do."""
        wakeups, busy = min(self.work(program, 1) for _ in range(3))
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
        self.wait_until_red(program)
        self.display.key("Return")
        self.wait_until_quiet(program)
        self.quit(program)

    def test_an_alarm_is_heard_to_its_end(self):
        path = os.path.join(self.session.folder, "alarm.wav")
        write_tone(path, 1000, ALARM)
        program = self.launch(accessible=False, settings=json.dumps(
            {"soundHistory": [path], "alarmPath": path}))
        zero = self.ring(program)
        self.kill_bus()
        killed = time.monotonic()
        self.wait_until_quiet(program)
        end = self.heard().last_sound()
        self.report(f"heard until {end - zero:.2f} s after zero, {end - killed:.2f} s after the "
                    "death of the bus")
        self.assertGreater(end - zero, ALARM - 0.1)
        self.assertGreater(end, killed)
        self.check_calm(program)
        self.quit(program)

    def test_a_running_timer_ends_on_time(self):
        program = self.launch(settings=MUTED, accessible=False)
        timer, = program.windows()
        waits = self.waits(program)
        _, pressed = program.start_countdown(8)
        self.kill_bus()
        # A timer asks for attention only if its window is not active: activate another one.
        program.open("ctrl+comma")
        wait_until(lambda: self.display.is_urgent(timer), "the timer asks for attention")
        self.assertAlmostEqual(time.monotonic() - pressed, 8, delta=0.3 + waits.seconds())
        self.quit(program)

    def test_an_accessible_program_goes_on_too(self):
        program = self.launch(settings=MUTED)
        self.ring(program)
        self.kill_bus()
        self.display.key("Return")
        self.wait_until_quiet(program)
        self.check_calm(program)
        self.quit(program)

    def test_a_bus_that_starts_anew_at_its_address_is_found(self):
        program = self.launch(settings=MUTED, accessible=False)
        wait_until(lambda: self.session.owns(NAME), "the program owns its name")
        for _ in range(2):
            self.kill_bus()
            self.check_calm(program)
            self.start_bus()
            wait_until(lambda: self.session.owns(NAME), "the program owns its name again")
            panel = XfcePanel(self.session)
            panel.look_at_empty()
            program.start_countdown(3)
            panel.wait_for_item()
            wait_until(lambda: self.session.notifications.shown() == 1, "the notification shows")
            self.display.key("Return")
            wait_until(lambda: self.session.notifications.shown() == 0,
                       "the notification is withdrawn")
            panel.wait_for_no_item()
            panel.close()
        self.quit(program)

    def test_a_notification_without_a_bus_shows_on_the_next(self):
        program = self.launch(settings=MUTED, accessible=False)
        program.start_countdown(3)
        self.kill_bus()
        wait_until(lambda: self.is_red(program), "the timer rings")
        self.start_bus()
        wait_until(lambda: self.session.notifications.shown() == 1, "the notification shows")
        self.display.key("Return")
        wait_until(lambda: self.session.notifications.shown() == 0,
                   "the notification is withdrawn")
        self.quit(program)


if __name__ == "__main__":
    main()
