#!/usr/bin/python3
"""Opens and saves presets with keyboard layouts that have the digits on other keys.

Usage: keyboard_layout_test.py WUFFER FOLDER [unittest arguments]
"""

import contextlib
import ctypes
import json
import time

from support import processes
from support.case import DesktopTest, main
from support.waiting import wait_until

# Key codes: the 1 in the row of digits, the key left of it, the 1 of the keypad, Alt.
FIRST_KEY = 10
LEFT_OF_FIRST_KEY = 49
KEYPAD_1 = 87
ALT = 64
CORE_KEYBOARD = 0x100


class KeyboardLayoutTest(DesktopTest):
    def set_layout(self, *options):
        processes.require("setxkbmap")
        processes.run(["setxkbmap", "-layout", *options], self.display.environment)
        self.addCleanup(processes.run, ["setxkbmap", "-layout", "us", "-variant", ""],
                        self.display.environment)

    @contextlib.contextmanager
    def connection(self):
        x = ctypes.CDLL("libX11.so.6")
        x.XOpenDisplay.restype = ctypes.c_void_p
        name = self.display.environment["DISPLAY"].encode("ascii")
        connection = ctypes.c_void_p(x.XOpenDisplay(name))
        try:
            yield x, connection
            x.XSync(connection, 0)
        finally:
            x.XCloseDisplay(connection)

    def choose_layout(self, number):
        """Switches to one of several layouts, as the layout key does."""
        with self.connection() as (x, connection):
            x.XkbLockGroup(connection, CORE_KEYBOARD, number)

    def press(self, *keys):
        """Presses keys by their key codes, which do not depend on the layout."""
        test = ctypes.CDLL("libXtst.so.6")
        with self.connection() as (_, connection):
            for down, order in ((1, keys), (0, keys[::-1])):
                for key in order:
                    test.XTestFakeKeyEvent(connection, key, down, ctypes.c_ulong(0))

    def opens(self, program, keys, title):
        """Presses the keys, given by name or key code; expects a new timer with this title."""
        before = program.windows()
        self.display.wait_for_focus()
        if isinstance(keys, str):
            self.display.key(keys)
        else:
            self.press(*keys)
        window = program.wait_for_new_window(before)
        wait_until(lambda: title in self.display.title(window), f"the title says {title}")

    def minutes_saved(self, program, number):
        with open(program.settings_path, encoding="utf-8") as file:
            return json.load(file)[f"Preset {number}"]["minutes"]

    def test_a_french_keyboard_opens_presets_with_and_without_shift(self):
        self.set_layout("fr")
        program = self.launch()
        self.opens(program, f"alt+{FIRST_KEY}", "Preset 1")
        self.opens(program, f"alt+shift+{FIRST_KEY}", "Preset 1")
        self.opens(program, f"alt+{FIRST_KEY + 6}", "Preset 7")
        self.opens(program, f"alt+{FIRST_KEY + 9}", "Preset 0")
        self.display.key("Num_Lock")
        try:
            self.opens(program, f"alt+{KEYPAD_1}", "Preset 1")
        finally:
            self.display.key("Num_Lock")
        self.assertEqual(len(program.windows()), 6)
        self.quit(program)

    def test_a_french_keyboard_saves_presets_with_and_without_shift(self):
        self.set_layout("fr")
        program = self.launch()
        program.wait_for_focus_in("Minutes")
        self.display.type("7")
        self.display.key(f"ctrl+{FIRST_KEY}")
        program.wait_for_text("Elapsed time", "Saved to Preset 1")
        self.display.key(f"ctrl+shift+{FIRST_KEY + 1}")
        program.wait_for_text("Elapsed time", "Saved to Preset 2")
        self.display.key("Num_Lock", f"ctrl+{KEYPAD_1 + 2}", "Num_Lock")
        program.wait_for_text("Elapsed time", "Saved to Preset 3")
        self.quit(program)
        self.assertEqual([self.minutes_saved(program, number) for number in (1, 2, 3, 4)],
                         [7, 7, 7, 40])

    def test_on_a_french_keyboard_a_held_key_opens_one_timer_and_types_nothing(self):
        self.check_held_key("fr")

    def test_on_an_english_keyboard_a_held_key_opens_one_timer_and_types_nothing(self):
        self.check_held_key("us")

    def check_held_key(self, layout):
        self.set_layout(layout)
        program = self.launch()
        self.display.key("F2")
        program.wait_for_focus_in("Name")
        self.display.act("keydown", "alt", "keydown", FIRST_KEY)
        # Long enough for about twenty key repeats.
        time.sleep(1.5)
        self.display.act("keyup", FIRST_KEY, "keyup", "alt")
        program.wait_for_windows(2)
        program.catch_up()
        self.assertEqual(len(program.windows()), 2)
        self.assert_soon(lambda: [program.text_of(field) for field in program.all("field", "Name")],
                         ["", "Preset 1"])
        self.quit(program)

    def test_an_english_keyboard_opens_and_saves_presets_with_shift_too(self):
        self.set_layout("us")
        program = self.launch()
        self.opens(program, f"alt+{FIRST_KEY + 2}", "Preset 3")
        self.opens(program, f"alt+shift+{FIRST_KEY + 2}", "Preset 3")
        self.display.key(f"ctrl+shift+{FIRST_KEY + 8}")
        program.wait_for_count(1, "display", "Saved to Preset 9", "Elapsed time")
        self.quit(program)

    def test_the_digits_of_a_layout_in_another_order_count(self):
        self.set_layout("us", "-variant", "dvp")
        program = self.launch()
        # In this layout, the second key of the row types a bracket, and with Shift a 7.
        self.opens(program, f"alt+{FIRST_KEY + 1}", "Preset 7")
        self.opens(program, f"alt+shift+{FIRST_KEY + 1}", "Preset 7")
        # The key right of the tenth types an exclamation mark, and with Shift an 8.
        self.opens(program, f"alt+{FIRST_KEY + 10}", "Preset 8")
        # The first key types no digit; the 1 that other layouts have there is on the fifth key.
        self.display.key(f"alt+{FIRST_KEY}")
        self.opens(program, f"alt+{FIRST_KEY + 4}", "Preset 1")
        self.assertEqual(len(program.windows()), 5)
        self.quit(program)

    def test_a_key_with_a_letter_instead_of_a_digit_opens_no_preset(self):
        self.set_layout("hu")
        program = self.launch()
        # The tenth key types a letter; the 0 is left of the first key.
        self.display.key(f"ctrl+{FIRST_KEY + 9}")
        self.display.key(f"alt+{FIRST_KEY + 9}")
        self.opens(program, f"alt+{LEFT_OF_FIRST_KEY}", "Preset 0")
        self.assertEqual(len(program.windows()), 2)
        self.assertEqual(program.all("display", "Saved to Preset 0", "Elapsed time"), [])
        self.quit(program)

    def test_the_second_of_two_layouts_counts_while_it_is_in_use(self):
        self.set_layout("us,us", "-variant", ",dvp")
        program = self.launch()
        self.opens(program, (ALT, FIRST_KEY + 1), "Preset 2")
        self.choose_layout(1)
        self.addCleanup(self.choose_layout, 0)
        self.opens(program, (ALT, FIRST_KEY + 1), "Preset 7")
        self.choose_layout(0)
        self.quit(program)


if __name__ == "__main__":
    main()
