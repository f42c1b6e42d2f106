#!/usr/bin/python3
"""Notifications at the end of a countdown, also without a daemon that answers.

Usage: notification_test.py WUFFER FOLDER [unittest arguments]
"""

import os
import signal
import time

from support import processes
from support.case import DesktopTest, main
from support.waiting import wait_until

RED = (230, 0, 0)
MUTED = '{"soundOff": 1}'


class NotificationTest(DesktopTest):
    """The sound is off, so that an alarm lasts until it is reset."""

    def ring(self, program):
        program.start_countdown(1)
        program.wait_for_button("Reset")

    def stop(self, program):
        self.display.key("Return")
        program.wait_for_button("Start")

    def test_each_alarm_of_a_timer_shows_the_only_notification(self):
        program = self.launch(settings=MUTED)
        self.ring(program)
        self.wait_for_notifications(1)
        self.stop(program)
        self.wait_for_notifications(0)
        # The focus returns to the field in which the time was typed.
        program.wait_for_focus_in("Seconds")
        self.display.type("2")
        self.display.key("Return")
        program.wait_for_button("Reset")
        program.wait_for_text("Elapsed time", "2s")
        self.wait_for_notifications(1)
        self.assertEqual([shown["body"] for shown in self.session.notifications.take_all()],
                         ["Wuffer: 2s", "Wuffer: 1s"])
        self.quit(program)

    def test_two_timers_show_two_notifications_with_their_names(self):
        program = self.launch(settings=MUTED)
        program.click_field("Name")
        self.display.type("Tea & <b>cake</b>")
        self.display.key("Return")
        program.click_field("Minutes")
        self.ring(program)
        program.open_timer()
        program.start_countdown(1)
        self.wait_for_notifications(2)
        bodies = {shown["body"] for shown in self.session.notifications.take_all()}
        self.assertEqual(bodies, {"Wuffer: 1s", "Tea & <b>cake</b>: 1s"})
        self.quit(program)

    def check_alarm(self, program):
        """Everything of an alarm works except for the notification."""
        self.ring(program)
        program.wait_for_text("Time", "Wuff!")
        self.check_answers(program)
        self.stop(program)

    def test_there_is_no_notification_daemon_until_later(self):
        self.session.end_notifications()
        try:
            program = self.launch(settings=MUTED)
            self.check_alarm(program)
        finally:
            self.session.start_notifications()
        self.display.key("Return")
        self.wait_for_notifications(1)
        self.quit(program)

    def test_the_daemon_dies_and_comes_back_while_a_timer_rings(self):
        program = self.launch(settings=MUTED)
        self.ring(program)
        self.wait_for_notifications(1)
        daemon = self.session.notifications.process
        processes.signal_group(daemon, signal.SIGKILL)
        daemon.wait()
        self.session.start_notifications()
        program.wait_for_text("Time", "Wuff!")
        self.check_answers(program)
        self.stop(program)
        # The new daemon does not know the notification of the first alarm, which the next would
        # replace.
        self.display.key("Return")
        program.wait_for_button("Reset")
        self.wait_for_notifications(1)
        self.stop(program)
        self.quit(program)

    def test_the_notification_daemon_is_frozen(self):
        daemon = self.session.notifications.process
        processes.signal_group(daemon, signal.SIGSTOP)
        try:
            program = self.launch(settings=MUTED)
            self.check_alarm(program)
            self.quit(program)
        finally:
            processes.signal_group(daemon, signal.SIGCONT)

    def test_there_is_no_session_bus_and_none_is_started(self):
        others = set(processes.marked(self.session.folder))
        nowhere = self.session.make_folder("no-bus")
        program = self.launch(settings=MUTED, accessible=False, environment={
            "DBUS_SESSION_BUS_ADDRESS": None, "XDG_RUNTIME_DIR": nowhere})
        window, = program.windows()
        program.start_countdown(1)
        wait_until(lambda: self.is_red(window), "the display is red")
        time.sleep(1)
        started = processes.marked(self.session.folder)
        for known in others | {program.process.pid}:
            started.pop(known, None)
        self.assertEqual(started, {})
        self.display.key("Return")
        wait_until(lambda: not self.is_red(window), "the display is black")
        self.assertEqual(os.listdir(nowhere), [])
        self.quit(program)

    def is_red(self, window):
        return RED in self.display.colors(self.display.geometry(window))

    def test_a_muted_timer_asks_for_attention_and_opens_no_stream(self):
        self.session.start_sound()
        program = self.launch(settings=MUTED)
        timer = program.windows()[0]
        # Long enough for a busy computer to open the other window first.
        begin = time.monotonic()
        program.start_countdown(5)
        program.open("ctrl+comma")
        self.assertFalse(self.display.is_urgent(timer))
        program.wait_for_button("Reset")
        zero = time.monotonic()
        wait_until(lambda: self.display.is_urgent(timer), "the timer asks for attention")
        while time.monotonic() < zero + 2:
            self.assertEqual(self.session.sound.streams(), 0)
            time.sleep(0.02)
        program.wait_for_text("Time", "Wuff!")
        self.assertIsNone(self.session.sound.recorder.first_sound_after(begin))
        self.quit(program)


if __name__ == "__main__":
    main()
