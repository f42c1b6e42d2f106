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
        self.assert_soon(lambda: self.settings(program).get(key), value)

    def open_sounds(self, program):
        program.open("ctrl+comma")
        self.display.key("alt+s")
        wait_until(lambda: self.sound_in_use(program), "the sounds are in sight")

    def add_sound(self, program, mnemonic, path):
        dialog = program.choose_sound_file(mnemonic)
        self.assertIn("Select a sound file", self.display.title(dialog))
        self.display.type(path)
        program.close_window("Return")

    def sound_in_use(self, program, kind="Alarm"):
        return program.shown(f"{kind} sound in use")

    def check_sound_in_use(self, program, name, kind="Alarm"):
        self.assert_soon(lambda: self.sound_in_use(program, kind), name)

    def ring(self, program):
        """Starts a countdown of a second; returns the time by which its alarm rings."""
        self.session.notifications.take_all()
        _, pressed = program.start_countdown(1)
        self.wait_for_notifications(1)
        return pressed + 1.1

    def file(self, program, name, tone, seconds=20):
        """Makes a sound file, by default longer than a busy computer takes to judge it."""
        path = os.path.join(program.home, name)
        write_tone(path, tone, seconds)
        return path

    def hear(self, program, seconds):
        return self.heard().hear_undisturbed(seconds, program.process.pid,
                                             self.session.sound.process.pid)

    def check_tone(self, program, tone):
        self.heard().wait_for_sound(time.monotonic())
        samples = self.hear(program, 0.5)
        self.report(f"heard at {frequency(samples):.1f} Hz")
        self.assertAlmostEqual(frequency(samples), tone, delta=10)

    def test_a_sound_of_the_users_rings_outlives_a_restart_and_is_cleared(self):
        program = self.launch()
        path = self.file(program, "my  chime.wav", TONE)
        self.open_sounds(program)
        self.add_sound(program, "alt+a", path)
        self.check_sound_in_use(program, "my  chime")
        self.wait_for_setting(program, "alarmPath", path)
        self.wait_for_setting(program, "soundHistory", [path])
        program.close_window()
        self.quit(program)

        program.start()
        self.ring(program)
        self.check_tone(program, TONE)
        self.display.key("Return")
        program.wait_for_button("Start")
        self.open_sounds(program)
        self.check_sound_in_use(program, "my  chime")
        program.pick("alt+a", "End")
        self.check_sound_in_use(program, "Wuff (Default)")
        self.wait_for_setting(program, "alarmPath", None)
        self.wait_for_setting(program, "soundHistory", None)
        program.close_window()
        zero = self.ring(program)
        program.wait_for_button("Start")
        self.heard().catch_up()
        # Longer than the pauses within the built-in alarm.
        samples = self.heard().between(zero, zero + 1.2)
        self.assertGreater(loudest(samples), AUDIBLE)
        self.assertLess(strength(samples, TONE), 0.1 * loudest(samples))
        self.quit(program)

    def test_a_new_timer_rings_with_the_sound_that_was_added(self):
        program = self.launch()
        self.open_sounds(program)
        self.add_sound(program, "alt+a", self.file(program, "tone.wav", OTHER_TONE))
        self.check_sound_in_use(program, "tone")
        program.open_timer()
        # Skip the beeps of the last seconds.
        self.heard().wait_for_sound(self.ring(program) + 0.1)
        self.check_tone(program, OTHER_TONE)
        self.quit(program)

    def test_a_chosen_sound_is_heard_and_stopped_by_its_button(self):
        program = self.launch()
        self.open_sounds(program)
        self.add_sound(program, "alt+c", self.file(program, "tone.wav", TONE, seconds=6))
        self.check_sound_in_use(program, "tone", "Countdown")
        self.display.key("Tab", "space")
        program.wait_for_button("Stop the countdown sound")
        self.check_tone(program, TONE)
        self.display.key("space")
        program.wait_for_button("Play the countdown sound")
        self.session.sound.wait_for_no_stream()
        # Play to the end, at which the button changes back to Play.
        self.display.key("space")
        program.wait_for_button("Stop the countdown sound")
        program.wait_for_button("Play the countdown sound")
        self.quit(program)

    def test_a_file_that_is_no_sound_is_not_added_and_a_cancel_changes_nothing_else(self):
        program = self.launch()
        self.open_sounds(program)
        self.add_sound(program, "alt+a", program.log)
        self.check_sound_in_use(program, "Wuff (Default)")
        program.choose_sound_file("alt+a")
        program.close_window("Escape")
        program.catch_up()
        self.check_sound_in_use(program, "Wuff (Default)")
        self.assertNotIn("soundHistory", self.settings(program))
        self.quit(program)

    def test_quitting_while_a_file_is_chosen_keeps_the_sound(self):
        program = self.launch()
        timer = program.windows()[0]
        path = self.file(program, "tone.wav", TONE)
        self.open_sounds(program)
        self.add_sound(program, "alt+a", path)
        self.wait_for_setting(program, "alarmPath", path)
        program.choose_sound_file("alt+a")
        self.display.activate(timer)
        self.quit(program)
        self.assertEqual(self.settings(program)["alarmPath"], path)

    def test_a_click_on_the_speaker_silences_a_ringing_alarm(self):
        # A sound without pauses, so that only the click can silence it.
        tone = os.path.join(self.session.folder, "tone.wav")
        write_tone(tone, TONE, 10)
        program = self.launch(settings=json.dumps({"soundHistory": [tone], "alarmPath": tone}))
        self.display.key("ctrl+k")
        speaker = program.middle("button", "Mute all timers")
        self.heard().wait_for_sound(self.ring(program))
        program.wait_for_text("Time", "Wuff!")
        self.display.move_pointer(*speaker)
        self.assertLess(longest_silence(self.hear(program, 0.2)), 5)
        waits = self.waits(program)
        self.display.act("click", 1)
        clicked = time.monotonic()
        delay = self.heard().wait_for_silence() - clicked
        self.report(f"silent {delay * 1000:.0f} ms after the click")
        self.assertLess(delay, 0.1 + waits.seconds())
        self.assertEqual(loudest(self.heard().hear(0.3)), 0)
        program.wait_for_button("Let all timers be heard again")
        self.wait_for_setting(program, "soundOff", 1)
        self.quit(program)


if __name__ == "__main__":
    main()
