#!/usr/bin/python3
"""Enters and leaves the full screen, on screens of two sizes.

Usage: full_screen_test.py WUFFER FOLDER [unittest arguments]
"""

import json
import os

from support import pointer
from support.case import DesktopTest, main
from support.display import Rect
from support.picture import Picture
from support.samples import write_tone
from support.waiting import wait_until

PANEL = (0xfb, 0xfa, 0xf5)


class FullScreenTest(DesktopTest):
    def start(self, hours="", **options):
        """Starts a countdown of an hour or more and puts the pointer over its button."""
        self.program = self.launch(**options)
        self.screen = self.program.display
        self.window = self.program.windows()[0]
        if hours:
            self.screen.key("shift+Tab")
            self.screen.type(hours)
            self.screen.key("Tab")
            self.screen.type("11")
        else:
            self.screen.type("60")
        self.screen.key("Return")
        self.program.wait_for_button("Stop")
        button = self.program.place(self.program.find("button", "Stop"))
        self.screen.move_pointer(button.x + button.width // 2, button.y + button.height // 2)
        self.place = self.screen.frame(self.window)

    def covering_window(self):
        """Returns the window that covers the whole screen; None if there is none."""
        whole = Rect(0, 0, self.screen.width, self.screen.height)
        for window in self.program.windows():
            if self.screen.frame(window) == whole == self.screen.geometry(window):
                return window
        return None

    def enter(self):
        self.screen.key("F11")
        self.wait_for_full_screen()
        wait_until(lambda: not pointer.is_visible(self.screen), "the pointer is hidden")

    def wait_for_full_screen(self):
        wait_until(self.covering_window, "the display covers the whole screen")
        self.screen.wait_until_active(self.covering_window())

    def stays(self):
        self.program.catch_up()
        self.assertIsNotNone(self.covering_window())

    def check_back(self):
        wait_until(lambda: self.program.windows() == [self.window],
                   "only the timer's window is left")
        self.screen.wait_until_active(self.window)
        self.assert_soon(lambda: self.screen.frame(self.window), self.place)
        wait_until(lambda: pointer.is_visible(self.screen), "the pointer shows")
        self.program.find("button", "Stop")

    def test_any_key_ends_the_full_screen_and_is_not_typed(self):
        self.start()
        for key in ("7", "space", "Return", "Escape", "ctrl+n", "ctrl+t", "F11"):
            with self.subTest(key):
                self.enter()
                self.screen.key(key)
                self.check_back()
        for field, text in (("Name", ""), ("Minutes", "60"), ("Seconds", "0")):
            self.program.wait_for_field(field, text)
        # The timer's window has the keyboard focus again, without a click.
        self.screen.key("Return")
        self.program.wait_for_button("Start")
        self.quit(self.program)

    def test_other_buttons_the_wheel_and_modifiers_do_not_end_it(self):
        self.start()
        self.enter()
        self.screen.act("click", 3)
        self.stays()
        self.screen.act("click", 2)
        self.stays()
        self.screen.act("click", 4)
        self.stays()
        self.screen.act("keydown", "ctrl", "keyup", "ctrl", "key", "shift")
        self.stays()
        # The key whose press ended one full screen is released during the next.
        self.screen.act("keydown", "a")
        self.check_back()
        self.screen.key("F11")
        self.wait_for_full_screen()
        self.screen.act("keyup", "a")
        self.stays()
        self.screen.key("Escape")
        self.check_back()
        self.quit(self.program)

    def test_a_left_click_ends_it_and_presses_nothing(self):
        self.start()
        self.enter()
        self.screen.act("click", 1)
        self.check_back()
        self.program.catch_up()
        self.program.find("button", "Stop")
        self.screen.act("click", 1)
        self.program.wait_for_button("Start")
        self.quit(self.program)

    def test_the_end_of_another_timer_ends_it(self):
        program = self.program = self.launch(settings='{"soundOff": 1}')
        self.screen = self.display
        self.window = program.windows()[0]
        # Long enough for a busy computer to show the full screen first.
        program.start_countdown(8)
        program.wait_for_button("Stop")
        other = program.open_timer()
        self.display.type("60")
        self.display.key("Return")
        program.wait_for_count(2, "button", "Stop")
        place = self.display.frame(other)
        self.enter()
        wait_until(lambda: len(program.windows()) == 2, "the display is back in its window")
        program.wait_for_button("Reset")
        wait_until(program.has_focus, "a timer has the focus")
        self.assert_soon(lambda: self.display.frame(other), place)
        self.quit(program)

    def test_the_full_screen_option_lasts_from_the_start_to_the_end_of_the_alarm(self):
        # A longer alarm than the built-in one, so that a busy computer sees it on the full screen.
        tone = os.path.join(self.session.folder, "alarm.wav")
        write_tone(tone, 1000, 6)
        program = self.program = self.launch(
            settings=json.dumps({"soundHistory": [tone], "alarmPath": tone}))
        self.screen = self.display
        box = program.place(program.find("box", "Full screen"))
        self.display.click(box.x + 8, box.y + box.height // 2)
        program.click_field("Minutes")
        program.start_countdown(1)
        wait_until(self.covering_window, "the display covers the whole screen")
        program.wait_for_text("Time", "Wuff!")
        Picture(self.display).save(os.path.join(self.output, "alarm on the full screen.png"))
        self.stays()
        wait_until(lambda: not self.covering_window(), "the end of the alarm ends the full screen")
        self.quit(program)

    def check_ink(self, name):
        """No text of the display is cut off: each has a free line of pixels around it."""
        bar = self.screen.height // 100
        above = Rect(0, 0, self.screen.width, self.screen.height - bar)
        wait_until(lambda: Picture(self.screen).border(above) == {PANEL},
                   "the display is drawn and leaves a margin", pause=0.1)
        picture = Picture(self.screen)
        foot = Rect(0, self.screen.height - bar, self.screen.width, bar)
        self.assertEqual(picture.colors(Rect(0, foot.y, foot.width // 2, bar)), {(0, 0, 0)},
                         "a bar at the foot shows what is left")
        picture.save(os.path.join(self.output, f"{name} {picture.width}x{picture.height}.png"))
        for label in self.labels():
            area = self.program.place(label)
            self.assertEqual(picture.border(area), {PANEL}, label.name)
            self.assertGreater(len(picture.colors(area)), 1, label.name)

    def labels(self):
        """Waits for the four texts of the display; returns their labels."""
        found = []

        def are_four():
            found[:] = [label for label in self.program.all("display")
                        if label.name and label.description]
            return len(found) == 4

        wait_until(are_four, "the display shows four texts")
        return found

    def check_looks(self):
        self.enter()
        self.check_ink("full screen")
        self.screen.key("Escape")
        self.check_back()
        self.quit(self.program)

    def test_the_longest_countdown_fits_a_small_screen(self):
        self.start("11")
        self.check_looks()

    def test_the_longest_countdown_fits_a_large_screen(self):
        large = self.session.add_display((1920, 1080))
        self.start("11", display=large)
        self.check_looks()


if __name__ == "__main__":
    main()
