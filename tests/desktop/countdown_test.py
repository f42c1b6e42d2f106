#!/usr/bin/python3
"""Counts down on a real desktop and judges what a person would see and hear.

Usage: countdown_test.py WUFFER FOLDER [unittest arguments]
"""

import time

from support.case import DesktopTest, main
from support.moments import measures_moments
from support.samples import RATE, loudest, rms

RED = (230, 0, 0)
# Samples in ten milliseconds: recordings are searched in steps of this length.
STRETCH = RATE // 100


class CountdownTest(DesktopTest):
    sound = True

    def red_display(self, program):
        area = program.place(program.find("display", description="Time"))
        return RED in self.display.colors(area)

    def test_a_countdown_typed_and_started_with_the_keyboard_ends_with_an_alarm(self):
        program = self.launch()
        program.wait_for_focus_in("Minutes")
        program.wait_for_text("Time", "Wuffer")
        program.type_seconds(3)
        program.wait_for_focus_in("Seconds")
        waits = self.waits(program)
        before = time.monotonic()
        self.display.key("Return")
        after = time.monotonic()
        self.wait_for_notifications(1)
        program.wait_for_button("Start")
        end = time.monotonic()
        program.wait_for_text("Time", "Wuffer")
        self.assertFalse(self.red_display(program))

        notification, = self.session.notifications.take_all()
        self.assertEqual(notification["appname"], "Wuffer")
        self.assertEqual(notification["summary"], "Wuff!")
        self.assertEqual(notification["body"], "Wuffer: 3s")

        alarm = self.heard().wait_for_sound(before + 2.9)
        self.report(f"the alarm is heard {(alarm - after - 3) * 1000:.0f} to "
                    f"{(alarm - before - 3) * 1000:.0f} ms after zero and is over after "
                    f"{end - alarm:.2f} s")
        self.assertGreater(alarm, before + 3)
        self.assertLess(alarm, after + 3.1 + waits.seconds())
        self.assertAlmostEqual(end - alarm, 2.24, delta=0.5 + waits.seconds())
        self.quit(program)

    def test_the_last_seconds_and_the_alarm_are_shown_in_red(self):
        program = self.launch()
        program.wait_for_focus_in("Minutes")
        # The alarm lasts until the test ends it.
        self.display.key("ctrl+k")
        program.start_countdown(8)
        program.wait_for_button("Stop")
        program.wait_for_text("Time", *(f"{seconds}s" for seconds in range(1, 8)))
        self.assertTrue(self.red_display(program), "the last seconds are red")
        program.wait_for_text("Time", "Wuff!")
        program.wait_for_button("Reset")
        program.wait_for_text("Elapsed time", "8s")
        self.assertTrue(self.red_display(program), "the alarm is red")
        self.display.key("Return")
        program.wait_for_text("Time", "Wuffer")
        self.assertFalse(self.red_display(program))
        self.quit(program)

    @measures_moments
    def test_the_last_twelve_seconds_beep_ever_louder(self):
        # On a busy computer, a gap in the playback may split a beep in two or make it too quiet.
        program = self.launch()
        waits = self.waits(program)
        before, after = program.start_countdown(13)
        self.wait_for_notifications(1)
        self.heard().catch_up()
        beeps = self.beeps(before, after + 13)
        waited = waits.seconds()
        steps = [b - a for (a, _), (b, _) in zip(beeps, beeps[1:])]
        volumes = [volume for _, volume in beeps]
        self.report("beeps with " + ", ".join(f"{after + 13 - moment:.2f}" for moment, _ in beeps)
                    + " s left, the last " + f"{volumes[-1] / volumes[0]:.1f} times the first")
        # The first of the twelve beeps, between 12 and 11 seconds, has volume 0.
        self.assertEqual(len(beeps), 11)
        self.assertAlmostEqual(after + 13 - beeps[0][0], 11, delta=0.2 + waited)
        for step in steps:
            self.assertAlmostEqual(step, 1.02, delta=0.1 + waited)
        for quieter, louder in zip(volumes[1:], volumes[2:]):
            self.assertGreater(louder, quieter * 1.05)
        # The volume rises by 0.03 each second. The beeps come up to 37 ms later than a second after
        # each other, so the last is not exactly 11 times as loud as the first.
        self.assertAlmostEqual(volumes[-1] / volumes[0], 10.4, delta=0.8)
        program.wait_for_button("Start")
        self.quit(program)

    def beeps(self, start, end):
        """Returns the start and the loudness of each beep between two moments."""
        found = []
        heard = self.heard().between(start, end)
        for place in range(0, len(heard), STRETCH):
            stretch, moment = heard[place:place + STRETCH], start + place / RATE
            if loudest(stretch) > 0:
                if not found or moment - found[-1][1] > 0.2:
                    found.append([moment, moment, []])
                found[-1][1] = moment
                found[-1][2].extend(stretch)
        # All beeps have the same length, so the search cuts the same little off each of them.
        return [(first, rms(samples)) for first, _, samples in found]


if __name__ == "__main__":
    main()
