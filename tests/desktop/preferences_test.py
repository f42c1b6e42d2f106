#!/usr/bin/python3
"""Chooses and plays sounds in the preferences, and mutes timers.

Usage: preferences_test.py WUFFER FOLDER [unittest arguments]
"""

import json
import os
import time

from support.case import DesktopTest, main
from support.samples import AUDIBLE, frequency, longest_silence, loudest, strength, write_tone
from support.waiting import wait_until

TONE = 1000
OTHER_TONE = 1500


class PreferencesTest(DesktopTest):
    sound = True

    def settings(self, program):
        try:
            with open(program.settings_path, encoding="utf-8") as file:
                return json.load(file)
        except FileNotFoundError:
            return {}

    def wait_for_setting(self, program, key, value):
        wait_until(lambda: self.settings(program).get(key) == value, 3, f"{key} is {value}", 0.05)

    def open_sounds(self, program):
        count = len(program.windows())
        self.display.key("ctrl+comma")
        window = program.wait_for_windows(count + 1)[-1]
        wait_until(lambda: self.display.active_window() == window, 5, "the preferences are active")
        self.display.key("alt+s")
        wait_until(lambda: self.sound_in_use(program), 5,
                   "the sounds are in sight", 0.02)
        return window

    def pick(self, mnemonic, *keys):
        """Opens the list of a combo box and selects an entry with the keyboard."""
        self.display.key(mnemonic)
        time.sleep(0.2)
        self.display.key("Down")
        time.sleep(0.3)
        self.display.key(*keys, "Return")

    def add_sound(self, program, mnemonic, path):
        count = len(program.windows())
        self.pick(mnemonic, "End", "Up")
        dialog = program.wait_for_windows(count + 1)[-1]
        self.assertIn("Select a sound file", self.display.title(dialog))
        wait_until(lambda: self.display.active_window() == dialog, 5, "the dialog is active")
        time.sleep(0.3)
        self.display.type(path)
        self.display.key("Return")
        program.wait_for_windows(count)

    def sound_in_use(self, program, kind="Alarm"):
        return program.shown(f"{kind} sound in use")

    def close(self, program, window):
        self.display.key("ctrl+w")
        wait_until(lambda: window not in program.windows(), 5, "the preferences are closed")

    def ring(self, program):
        program.start_countdown(1)
        program.wait_for_text("Time", "Wuff!", 3)

    def reset(self, program):
        self.display.key("Return")
        program.wait_for_button("Start")

    def file(self, program, name, tone):
        path = os.path.join(program.home, name)
        write_tone(path, tone, 3)
        return path

    def hear(self, program, seconds):
        return self.heard().hear_undisturbed(seconds, program.process.pid,
                                             self.session.sound.process.pid)

    def check_tone(self, program, tone):
        moment = time.monotonic()
        wait_until(lambda: self.heard().first_sound_after(moment), 1, "the sound is heard")
        samples = self.hear(program, 0.5)
        self.report(f"heard at {frequency(samples):.1f} Hz")
        self.assertAlmostEqual(frequency(samples), tone, delta=10)

    def test_a_sound_of_the_users_rings_outlives_a_restart_and_is_cleared(self):
        program = self.launch()
        path = self.file(program, "my  chime.wav", TONE)
        window = self.open_sounds(program)
        self.add_sound(program, "alt+a", path)
        wait_until(lambda: self.sound_in_use(program) == "my  chime", 5,
                   "the added sound is in use", 0.02)
        self.wait_for_setting(program, "alarmPath", path)
        self.assertEqual(self.settings(program)["soundHistory"], [path])
        self.close(program, window)
        self.quit(program)

        program.start()
        self.ring(program)
        self.check_tone(program, TONE)
        self.reset(program)
        window = self.open_sounds(program)
        self.assertEqual(self.sound_in_use(program), "my  chime")
        self.pick("alt+a", "End")
        wait_until(lambda: self.sound_in_use(program) == "Wuff (Default)", 5,
                   "the built-in sound is back", 0.02)
        self.wait_for_setting(program, "alarmPath", None)
        self.assertNotIn("soundHistory", self.settings(program))
        self.close(program, window)
        self.ring(program)
        # Longer than the pauses within the built-in alarm.
        samples = self.heard().hear(1.2)
        self.reset(program)
        self.assertGreater(loudest(samples), AUDIBLE)
        self.assertLess(strength(samples, TONE), 0.1 * loudest(samples))
        self.quit(program)

    def test_a_new_timer_rings_with_the_sound_that_was_added(self):
        program = self.launch()
        self.open_sounds(program)
        self.add_sound(program, "alt+a", self.file(program, "tone.wav", OTHER_TONE))
        wait_until(lambda: self.sound_in_use(program) == "tone", 5,
                   "the added sound is in use", 0.02)
        self.display.key("ctrl+n")
        window = program.wait_for_windows(3)[-1]
        wait_until(lambda: self.display.active_window() == window, 5, "the timer is active")
        _, pressed = program.start_countdown(1)
        # Skip the beeps of the last seconds.
        time.sleep(pressed + 1.2 - time.monotonic())
        self.check_tone(program, OTHER_TONE)
        self.quit(program)

    def test_a_chosen_sound_is_heard_and_stopped_by_its_button(self):
        program = self.launch()
        self.open_sounds(program)
        self.add_sound(program, "alt+c", self.file(program, "tone.wav", TONE))
        wait_until(lambda: self.sound_in_use(program, "Countdown") == "tone", 5,
                   "the added sound is in use")
        self.display.key("Tab", "space")
        program.wait_for_button("Stop the countdown sound")
        self.check_tone(program, TONE)
        self.display.key("space")
        program.wait_for_button("Play the countdown sound")
        wait_until(lambda: self.session.sound.streams() == 0, 3, "the stream is closed", 0.05)
        # Play to the end, at which the button changes back to Play.
        self.display.key("space")
        program.wait_for_button("Stop the countdown sound")
        program.wait_for_button("Play the countdown sound", 5)
        self.quit(program)

    def test_a_file_that_is_no_sound_is_not_added_and_a_cancel_changes_nothing_else(self):
        program = self.launch()
        self.open_sounds(program)
        self.add_sound(program, "alt+a", program.log)
        self.assertEqual(self.sound_in_use(program), "Wuff (Default)")
        self.pick("alt+a", "End", "Up")
        program.wait_for_windows(3)
        self.display.key("Escape")
        program.wait_for_windows(2)
        self.assertEqual(self.sound_in_use(program), "Wuff (Default)")
        self.assertNotIn("soundHistory", self.settings(program))
        self.quit(program)

    def test_quitting_while_a_file_is_chosen_keeps_the_sound(self):
        program = self.launch()
        timer = program.windows()[0]
        path = self.file(program, "tone.wav", TONE)
        self.open_sounds(program)
        self.add_sound(program, "alt+a", path)
        self.wait_for_setting(program, "alarmPath", path)
        self.pick("alt+a", "End", "Up")
        program.wait_for_windows(3)
        self.display.act("windowactivate", "--sync", timer)
        self.quit(program)
        self.assertEqual(self.settings(program)["alarmPath"], path)

    def test_a_click_on_the_speaker_silences_a_ringing_alarm(self):
        # A sound without pauses, so that only the click can silence it.
        tone = os.path.join(self.session.folder, "tone.wav")
        write_tone(tone, TONE, 10)
        program = self.launch(settings=json.dumps({"soundHistory": [tone], "alarmPath": tone}))
        self.display.key("ctrl+k")
        speaker = program.place(program.find("button", "Mute all timers"))
        program.start_countdown(1)
        program.wait_for_text("Time", "Wuff!", 3)
        start = time.monotonic()
        wait_until(lambda: self.heard().first_sound_after(start), 1, "the alarm is heard")
        self.display.move_pointer(speaker.x + speaker.width // 2, speaker.y + speaker.height // 2)
        self.assertLess(longest_silence(self.hear(program, 0.2)), 5)
        waits = self.waits(program)
        self.display.act("click", 1)
        clicked = time.monotonic()
        time.sleep(0.5)
        delay = self.heard().last_sound() - clicked
        self.report(f"silent {delay * 1000:.0f} ms after the click")
        self.assertLess(delay, 0.1 + waits.seconds())
        self.assertEqual(loudest(self.heard().hear(0.3)), 0)
        self.assertTrue(program.has("button", "Let all timers be heard again"))
        self.wait_for_setting(program, "soundOff", 1)
        self.quit(program)


if __name__ == "__main__":
    main()
