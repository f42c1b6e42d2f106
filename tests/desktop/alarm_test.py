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
        """Starts two timers, one soon after the other; returns when the later one reaches zero."""
        self.program = self.launch(**options)
        for count in (1, 2):
            if count == 2:
                self.display.key("ctrl+n")
                window = self.program.wait_for_windows(2)[1]
                wait_until(lambda: self.display.active_window() == window, 5,
                           "the window is active")
            if keep_wuffing:
                self.display.key("ctrl+k")
            # Only the waits since the last start count: that timer rings last.
            waits = self.waits(self.program)
            _, pressed = self.program.start_countdown(count)
        self.waited = waits
        return pressed + 2

    def wait_for_buttons(self, name, count):
        wait_until(lambda: len(self.program.all("button", name)) == count, 5,
                   f"{count} buttons “{name}”", 0.02)

    def wait_until_heard(self):
        moment = time.monotonic()
        wait_until(lambda: self.heard().first_sound_after(moment), 1, "the alarm is heard")

    def check_silence_after_reset(self):
        """Fails if a sound is heard later than 100 ms after the key is pressed."""
        waits = self.waits(self.program)
        self.display.key("Return")
        moment = time.monotonic()
        time.sleep(0.3)
        delay = self.heard().last_sound() - moment
        self.report(f"silent {delay * 1000:.0f} ms after the key")
        self.assertLess(delay, 0.1 + waits.seconds())

    def test_each_timer_that_keeps_wuffing_rings_until_it_is_reset(self):
        zero = self.start_two(keep_wuffing=True)
        self.wait_for_buttons("Reset", 2)
        self.wait_until_heard()
        self.display.key("Return")
        self.wait_for_buttons("Start", 1)
        time.sleep(zero + 2 * ALARM + 0.3 - time.monotonic())
        self.wait_until_heard()
        self.display.key("ctrl+w")
        self.program.wait_for_windows(1)
        self.wait_until_heard()
        self.assertEqual(self.program.shown("Time"), "Wuff!")
        self.check_silence_after_reset()
        self.program.wait_for_button("Start")
        wait_until(lambda: self.session.sound.streams() == 0, 2, "the stream is closed")
        self.quit(self.program)

    # Failures

    # Each failure happens while one timer rings and the other beeps.

    def strike(self, break_down):
        zero = self.start_two()
        self.wait_for_buttons("Reset", 1)
        self.wait_until_heard()
        break_down()
        self.check_end(zero)

    def check_end(self, zero):
        """Both alarms end by themselves at the time at which their sound would have ended."""
        self.check_life()
        self.wait_for_buttons("Reset", 2)
        self.check_life()
        self.wait_for_buttons("Start", 2)
        late = time.monotonic() - zero - ALARM
        self.assertGreater(late, -0.2)
        self.assertLess(late, 0.8 + self.waited.seconds())
        self.assertEqual({label.name
                          for label in self.program.all("display", description="Time")},
                         {"Wuffer"})
        self.report(f"the alarm phase is over {late * 1000:.0f} ms after the end of its sound, "
                    f"the program ends in {self.quit(self.program) * 1000:.0f} ms")

    def check_life(self):
        waits = self.waits(self.program)
        self.assertLess(self.program.answers(), 0.5 + waits.seconds())
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
        write_tone(path, TONE, 1)
        self.program = self.launch(
            settings=json.dumps({"soundHistory": [path], "alarmPath": path}))
        return path

    def check_built_in_alarm(self):
        """The built-in alarm is heard, from zero to its end."""
        waits = self.waits(self.program)
        self.program.wait_for_text("Time", "Wuff!", 3)
        zero = time.monotonic()
        # Longer than the pauses within the built-in alarm.
        samples = self.heard().hear(1.2)
        self.assertGreater(loudest(samples), AUDIBLE)
        self.assertLess(strength(samples, TONE), 0.1 * loudest(samples))
        self.program.wait_for_button("Start")
        late = time.monotonic() - zero - ALARM
        self.report(f"the alarm phase is over {late * 1000:.0f} ms after the end of its sound")
        self.assertGreater(late, -0.2)
        self.assertLess(late, 0.8 + waits.seconds())

    def test_the_file_of_the_alarm_is_deleted_before_the_alarm_first_rings(self):
        path = self.launch_with_own_alarm()
        os.remove(path)
        self.program.start_countdown(1)
        self.check_built_in_alarm()
        self.quit(self.program)

    def test_the_file_of_the_alarm_is_emptied_after_it_has_rung(self):
        path = self.launch_with_own_alarm()
        self.program.start_countdown(1)
        self.program.wait_for_text("Time", "Wuff!", 3)
        self.assertGreater(strength(self.heard().hear(0.5), TONE), AUDIBLE)
        self.program.wait_for_button("Start")
        os.truncate(path, 0)
        self.display.key("Return")
        self.check_built_in_alarm()
        self.quit(self.program)

    def test_there_is_no_sound_server(self):
        nowhere = self.session.make_folder("no-sound")
        self.check_end(self.start_two(environment={"XDG_RUNTIME_DIR": nowhere}))


if __name__ == "__main__":
    main()
