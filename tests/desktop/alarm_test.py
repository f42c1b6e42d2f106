#!/usr/bin/python3
"""Plays alarms on a real sound server, also on one that fails while they ring.

Usage: alarm_test.py WUFFER FOLDER [unittest arguments]
"""

import json
import os
import threading
import time

from support.case import DesktopTest, main
from support.samples import AUDIBLE, loudest, strength, write_tone
from support.waiting import wait_until

ALARM = 2.24
# The frequency of the user's own alarm sound, in hertz.
TONE = 1000


class AlarmTest(DesktopTest):
    sound = True

    def start_two(self, keep_wuffing=False, **options):
        """Starts two timers together, and returns the same as start_all()."""
        self.program = self.launch(**options)
        for seconds in (1, 3):
            if seconds == 3:
                self.program.open_timer()
            if keep_wuffing:
                self.display.key("ctrl+k")
            self.program.type_seconds(seconds)
        return self.start_all()

    def start_all(self):
        """Starts both timers; returns the earliest and latest time at which the later one ends."""
        self.session.notifications.take_all()
        self.waited = self.waits(self.program)
        before = time.monotonic()
        self.display.key("ctrl+shift+s")
        return before + 3, time.monotonic() + 3

    def wait_for_buttons(self, name, count):
        self.program.wait_for_count(count, "button", name)

    def wait_until_heard(self):
        self.heard().wait_for_sound(time.monotonic())

    def check_silence_after_reset(self):
        """Fails if a sound is heard later than 100 ms after the key is pressed."""
        waits = self.waits(self.program)
        self.display.key("Return")
        moment = time.monotonic()
        # Longer than the pauses within the alarm.
        delay = self.heard().wait_for_silence(1.3) - moment
        self.report(f"silent {delay * 1000:.0f} ms after the key")
        self.assertLess(delay, 0.1 + waits.seconds())

    def test_each_timer_that_keeps_wuffing_rings_until_it_is_reset(self):
        zero = self.start_two(keep_wuffing=True)
        self.wait_for_buttons("Reset", 2)
        self.wait_until_heard()
        self.display.key("Return")
        self.wait_for_buttons("Start", 1)
        self.heard().wait_for_sound(zero[1] + 2 * ALARM + 0.3)
        self.program.close_window()
        self.wait_until_heard()
        self.program.wait_for_text("Time", "Wuff!")
        self.check_silence_after_reset()
        self.program.wait_for_button("Start")
        self.session.sound.wait_for_no_stream()
        self.quit(self.program)

    # Failures

    # Each failure happens while one timer rings and the other beeps.

    def strike(self, break_down):
        zero = self.start_two()
        attempts = 1
        while not self.one_rings_and_one_runs():
            # On a busy computer this look may come too late.
            self.assertLess(attempts, 10)
            attempts += 1
            self.wait_for_buttons("Start", 2)
            zero = self.start_all()
        break_down()
        self.check_end(zero)

    def one_rings_and_one_runs(self):
        """Waits until a timer rings; returns whether the other one still runs."""
        wait_until(lambda: self.session.notifications.shown(), "a timer has ended")
        self.wait_until_heard()
        return self.program.has("button", "Reset") and self.program.has("button", "Stop")

    def check_end(self, zero):
        """Both alarms end by themselves at the time at which their sound would have ended."""
        self.check_life()
        self.wait_for_notifications(2)
        self.check_life()
        self.wait_for_buttons("Start", 2)
        self.check_moment_of_end(zero)
        self.program.wait_for_count(2, "display", "Wuffer", "Time")
        self.report(f"the program ends in {self.quit(self.program) * 1000:.0f} ms")

    def check_moment_of_end(self, zero):
        end = time.monotonic()
        earliest, latest = (moment + ALARM for moment in zero)
        self.report(f"the alarm phase is over {(end - latest) * 1000:.0f} ms after the end of its "
                    "sound")
        self.assertGreater(end, earliest - 0.2)
        self.assertLess(end, latest + 0.8 + self.waited.seconds())

    def check_life(self):
        self.check_answers(self.program)
        self.assertIsNone(self.program.process.poll())

    def test_the_sound_server_dies_and_comes_back(self):
        # The server restarts in a thread, while the timers ring.
        start = threading.Thread(target=self.session.sound.start)

        def break_down():
            self.session.sound.kill()
            self.check_life()
            start.start()

        try:
            self.strike(break_down)
        finally:
            start.join()

    def test_the_sink_goes_away(self):
        try:
            self.strike(self.session.sound.remove_sink)
        finally:
            self.session.sound.add_sink()

    def test_the_sound_server_freezes(self):
        try:
            self.strike(self.session.sound.freeze)
        finally:
            self.session.sound.thaw()

    def launch_with_own_alarm(self):
        """Launches with a sound file of the user's as the alarm; returns its path."""
        path = os.path.join(self.session.folder, "own.wav")
        write_tone(path, TONE, ALARM)
        self.program = self.launch(
            settings=json.dumps({"soundHistory": [path], "alarmPath": path}))
        return path

    def run_alarm(self, *keys):
        """Runs a timer of a second from the keys to the end of its alarm; returns when it must
        have begun to ring."""
        self.session.notifications.take_all()
        self.waited = self.waits(self.program)
        before = time.monotonic()
        self.display.key(*keys)
        zero = before + 1, time.monotonic() + 1
        self.wait_for_notifications(1)
        self.program.wait_for_button("Start")
        self.check_moment_of_end(zero)
        self.heard().catch_up()
        return zero[1]

    def check_built_in_alarm(self, zero):
        samples = self.heard().between(zero, zero + ALARM)
        self.assertGreater(loudest(samples), AUDIBLE)
        self.assertLess(strength(samples, TONE), 0.1 * loudest(samples))

    def test_the_file_of_the_alarm_is_deleted_before_the_alarm_first_rings(self):
        path = self.launch_with_own_alarm()
        os.remove(path)
        self.check_built_in_alarm(self.run_alarm("Tab", "1", "Return"))
        self.quit(self.program)

    def test_the_file_of_the_alarm_is_emptied_after_it_has_rung(self):
        path = self.launch_with_own_alarm()
        zero = self.run_alarm("Tab", "1", "Return")
        self.assertGreater(strength(self.heard().between(zero, zero + 1), TONE), AUDIBLE)
        os.truncate(path, 0)
        self.check_built_in_alarm(self.run_alarm("Return"))
        self.quit(self.program)

    def test_there_is_no_sound_server(self):
        nowhere = self.session.make_folder("no-sound")
        self.check_end(self.start_two(environment={"XDG_RUNTIME_DIR": nowhere}))


if __name__ == "__main__":
    main()
