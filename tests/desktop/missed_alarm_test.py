#!/usr/bin/python3
"""The notification that a missed alarm leaves, what removes it, and its Stop button.

Usage: missed_alarm_test.py WUFFER FOLDER [unittest arguments]
"""

import json
import os
import time

from support.case import DesktopTest, main
from support.samples import write_tone
from support.waiting import wait_until

# In seconds: an activation this soon after an alarm may be the one the program asked for.
OWN_ACTIVATION = 2


def of_two_seconds(sound=None, **settings):
    """Returns settings for a first timer of two seconds and presets of five minutes; also for an
    alarm with this sound file."""
    sounds = {"soundHistory": [sound], "alarmPath": sound} if sound else {}
    return json.dumps({
        "defaultWufferSettings": {"hours": 0, "minutes": 0, "seconds": 2, **settings},
        "Preset 1": {"title": "Tea", "hours": 0, "minutes": 5, "seconds": 0}, **sounds})


class MissedAlarmTest(DesktopTest):
    sound = True

    def start_and_leave(self, **settings):
        """Starts the timer and opens another; returns the program and both windows."""
        program = self.launch(settings=of_two_seconds(**settings))
        program.wait_for_focus_in("Minutes")
        first, = program.windows()
        self.display.key("Return")
        return program, first, program.open_timer()

    def miss(self):
        """Waits for an alarm to end while another window is active."""
        # Longer than the built-in sound, so that a busy computer looks at the buttons in time.
        tone = os.path.join(self.session.folder, "alarm.wav")
        write_tone(tone, 1000, 5)
        program, first, second = self.start_and_leave(sound=tone)
        self.wait_for_notifications(1)
        self.assertEqual(self.session.notifications.buttons(), ["Show", "Stop"])
        program.wait_for_count(2, "button", "Start")
        program.catch_up()
        self.assertEqual(self.session.notifications.shown(), 1)
        return program, first, second

    def test_the_end_of_the_sound_leaves_the_notification_with_only_show(self):
        program, first, _ = self.miss()
        self.assert_soon(self.session.notifications.buttons, ["Show"])
        self.session.notifications.press("Show")
        self.display.wait_until_active(first)
        self.wait_for_notifications(0)
        shown, = self.session.notifications.take_all()
        self.assertEqual(shown["body"], "Wuffer: 2s")
        self.quit(program)

    def test_activating_the_window_removes_the_notification(self):
        program, first, _ = self.miss()
        self.display.activate(first)
        self.wait_for_notifications(0)
        self.quit(program)

    def test_the_next_start_removes_the_notification(self):
        program = self.launch(settings=of_two_seconds())
        self.display.key("Return")
        self.wait_for_notifications(1)
        program.wait_for_button("Start")
        program.wait_for_focus_in("Minutes")
        self.display.type("5")
        program.wait_for_field("Minutes", "5")
        self.assertEqual(self.session.notifications.shown(), 1)
        self.display.key("Return")
        program.wait_for_button("Stop")
        self.wait_for_notifications(0)
        self.quit(program)

    def test_closing_the_window_removes_the_notification(self):
        program, first, _ = self.miss()
        self.display.close_window(first)
        program.wait_for_windows(1)
        self.wait_for_notifications(0)
        self.quit(program)

    def test_quitting_removes_the_notification(self):
        program, _, _ = self.miss()
        self.quit(program)
        self.wait_for_notifications(0)

    def test_a_preset_that_starts_keeps_the_notification(self):
        program, first, second = self.start_and_leave(finishOption="Start a Preset")
        self.wait_for_notifications(1)
        # The preset brings the window forward.
        self.display.wait_until_active(first)
        program.wait_for_button("Stop")
        time.sleep(OWN_ACTIVATION + 0.5)
        self.assertEqual(self.session.notifications.shown(), 1)
        self.assertEqual(self.session.notifications.buttons(), ["Show"])
        self.display.activate(second)
        program.catch_up()
        self.assertEqual(self.session.notifications.shown(), 1)
        self.display.activate(first)
        self.wait_for_notifications(0)
        self.quit(program)

    def test_an_alarm_on_the_full_screen_leaves_a_notification(self):
        program = self.launch(settings=of_two_seconds(fullScreen=True))
        window, = program.windows()
        self.display.key("Return")
        wait_until(lambda: self.display.active_window() not in (window, 0),
                   "the display fills the screen")
        self.wait_for_notifications(1)
        self.display.wait_until_active(window)
        program.wait_for_button("Start")
        time.sleep(OWN_ACTIVATION + 0.5)
        self.assertEqual(self.session.notifications.shown(), 1)
        self.quit(program)

    def test_an_alarm_that_goes_on_can_be_stopped_at_any_time(self):
        self.session.end_notifications()
        self.session.start_notifications(seconds=3)
        try:
            program, _, _ = self.start_and_leave(keepWuffing=True, finishOption="Do Nothing")
            waits = self.waits(program)
            for _ in range(2):
                self.wait_for_notifications(1)
                self.wait_for_notifications(0)
                gone = time.monotonic()
            self.wait_for_notifications(1)
            pause = time.monotonic() - gone
            self.report(f"the notification comes back after {pause:.1f} s")
            self.assertGreater(pause, 1 - waits.seconds())
            self.assertEqual(self.session.notifications.buttons(), ["Show", "Stop"])
            self.session.notifications.press("Stop")
            program.wait_for_count(2, "button", "Start")
            self.wait_for_notifications(0)
            time.sleep(6)
            self.assertEqual(self.session.notifications.shown(), 0)
            self.quit(program)
        finally:
            self.session.end_notifications()
            self.session.start_notifications()


if __name__ == "__main__":
    main()
