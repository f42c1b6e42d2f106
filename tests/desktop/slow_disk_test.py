#!/usr/bin/python3
"""Uses sound files on a disk that answers slowly or not at all, while timers run and ring.

Usage: slow_disk_test.py WUFFER FOLDER LIBRARY [unittest arguments]

The library makes the disk slow: tests/support/slowdisk.cpp.
"""

import json
import os
import sys
import time

from support.case import DesktopTest, main
from support.samples import AUDIBLE, strength, write_tone
from support.waiting import wait_until

LIBRARY = ""

# The length of the built-in alarm, with and without its faint end, and how long a file may deliver
# nothing, in seconds.
ALARM = 2.24
AUDIBLE_ALARM = 1.4
PATIENCE = 2
# The frequency of the user's own sound, in hertz.
TONE = 1000
# Longer than any test.
FOREVER = 10000


class SlowDiskTest(DesktopTest):
    sound = True

    def setUp(self):
        super().setUp()
        self.disk = self.session.make_folder(f"disk-{self._testMethodName}")
        self.path = os.path.join(self.disk, "own.wav")
        self.pause = f"{self.disk}.pause"
        write_tone(self.path, TONE, 20)

    def slow_down(self, seconds):
        with open(f"{self.pause}.new", "w", encoding="ascii") as file:
            file.write(str(seconds))
        os.rename(f"{self.pause}.new", self.pause)

    def launch_with_own_sounds(self):
        self.program = self.launch(
            settings=json.dumps({"soundHistory": [self.path], "alarmPath": self.path,
                                 "countdownPath": self.path, "suppressCountdown": 1}),
            environment={"LD_PRELOAD": LIBRARY, "WUFFER_SLOW_FOLDER": self.disk,
                         "WUFFER_SLOW_PAUSE": self.pause,
                         # The library comes before the one of the sanitizer.
                         "ASAN_OPTIONS": os.environ.get("ASAN_OPTIONS", "")
                                         + ":verify_asan_link_order=0"})
        self.slowest = 0.0

    def check_answer(self):
        """The program answers at once. Its main thread does, which also moves the timers."""
        waits = self.waits(self.program)
        seconds = self.program.answers()
        self.slowest = max(self.slowest, seconds)
        self.assertLess(seconds, 0.5 + waits.seconds())

    def answers_until(self, condition, what):
        def holds():
            self.check_answer()
            return condition()

        wait_until(holds, what)

    def ring(self):
        """Lets a timer ring while it is checked that the program answers; returns the earliest
        moment at which it may have come to zero."""
        self.waits_of_run = self.waits(self.program)
        pressed, _ = self.program.start_countdown(2)
        self.answers_until(lambda: self.program.shown("Time") == "Wuff!", "the timer rings")
        return pressed + 2

    def check_built_in_alarm(self, zero):
        """The built-in alarm alone is heard, from two seconds after zero to its end."""
        self.answers_until(lambda: self.heard().first_sound_after(zero), "a sound is heard")
        onset = self.heard().first_sound_after(zero)
        self.slow_down(0)
        self.answers_until(lambda: self.program.has("button", "Start"), "the alarm is over")
        end = time.monotonic()
        length = self.heard().last_sound() - onset
        self.report(f"heard {(onset - zero) * 1000:.0f} ms after zero, for {length * 1000:.0f} ms; "
                    f"slowest answer {self.slowest * 1000:.0f} ms")
        self.assertGreater(onset - zero, PATIENCE - 0.1)
        self.assertGreater(length, AUDIBLE_ALARM)
        late = end - zero - PATIENCE - ALARM
        self.assertGreater(late, -0.3)
        self.assertLess(late, 1 + self.waits_of_run.seconds())
        samples = self.heard().between(onset, end)
        self.assertLess(strength(samples, TONE), AUDIBLE, "the late file does not join")

    def check_kept(self):
        """The sounds are still in the list and in use, and the program ends at once."""
        self.report(f"the program ends in {self.quit(self.program) * 1000:.0f} ms")
        with open(self.program.settings_path, encoding="utf-8") as file:
            stored = json.load(file)
        self.assertEqual(stored["soundHistory"], [self.path])
        self.assertEqual(stored["alarmPath"], self.path)

    def test_the_sound_itself_is_heard_while_the_disk_answers(self):
        self.slow_down(0)
        self.launch_with_own_sounds()
        zero = self.ring()
        self.answers_until(lambda: self.heard().first_sound_after(zero), "a sound is heard")
        self.assertGreater(strength(self.heard().hear(0.5), TONE), AUDIBLE)
        self.check_kept()

    def test_the_disk_hangs_when_the_alarm_begins(self):
        self.slow_down(0)
        self.launch_with_own_sounds()
        self.check_answer()
        self.slow_down(FOREVER)
        self.check_built_in_alarm(self.ring())
        self.check_kept()

    def test_the_disk_hangs_from_the_launch_on(self):
        self.slow_down(FOREVER)
        self.launch_with_own_sounds()
        self.check_answer()
        zero = self.ring()
        self.display.key("ctrl+comma")
        self.program.wait_for_windows(2)
        self.check_answer()
        self.display.key("ctrl+w")
        self.program.wait_for_windows(1)
        self.check_built_in_alarm(zero)
        self.slow_down(FOREVER)
        self.check_kept()

    def test_each_access_takes_a_second(self):
        self.slow_down(1)
        self.launch_with_own_sounds()
        self.check_answer()
        self.check_built_in_alarm(self.ring())
        self.check_kept()

    def test_the_disk_with_the_music_hangs_when_a_sound_is_chosen(self):
        self.slow_down(0)
        self.launch_with_own_sounds()
        with open(f"{self.program.home}/config/user-dirs.dirs", "w", encoding="utf-8") as file:
            file.write(f'XDG_MUSIC_DIR="{self.disk}"\n')
        self.program.open("ctrl+comma")
        self.display.key("alt+s")
        self.answers_until(lambda: self.program.shown("Alarm sound in use"), "the sounds show")
        self.slow_down(FOREVER)
        before = self.program.windows()
        self.program.pick("alt+a", "End", "Up")
        self.answers_until(lambda: len(self.program.windows()) > len(before), "the dialog opens")
        self.report(f"slowest answer {self.slowest * 1000:.0f} ms")
        self.assertIn("Select a sound file",
                      self.display.title(self.program.wait_for_new_window(before)))
        self.check_answer()
        self.program.close_window("Escape")
        self.report(f"the program ends in {self.quit(self.program) * 1000:.0f} ms")

    def test_the_program_ends_while_the_disk_hangs(self):
        self.slow_down(0)
        self.launch_with_own_sounds()
        self.slow_down(FOREVER)
        self.ring()
        self.check_kept()


if __name__ == "__main__":
    LIBRARY = os.path.abspath(sys.argv.pop(3))
    main()
