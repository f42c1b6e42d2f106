#!/usr/bin/python3
"""Sets timers with real keys, the wheel, and the primary selection.

Usage: typing_test.py WUFFER FOLDER [unittest arguments]
"""

import re

from support.case import DesktopTest, main
from support.waiting import wait_until

LAST_TIME = '{"defaultWufferSettings": {"title": "1h 5m", "minutes": 4, "seconds": 57}}'
WHEEL_UP, WHEEL_DOWN = 4, 5
MIDDLE = 2


class TypingTest(DesktopTest):
    def wait_for_fields(self, program, texts):
        for field, text in zip(("Hours", "Minutes", "Seconds"), texts.split()):
            program.wait_for_field(field, text)

    def launch_ready(self):
        program = self.launch(settings=LAST_TIME)
        program.wait_for_focus_in("Minutes")
        self.wait_for_fields(program, "0 4 57")
        return program

    def test_typing_after_a_launch_replaces_the_time(self):
        program = self.launch_ready()
        self.display.type("10")
        self.wait_for_fields(program, "0 10 57")
        self.display.key("Return")
        program.wait_for_button("Stop")
        wait_until(lambda: re.fullmatch("10m [345][0-9]s", program.shown("Time") or ""),
                   "the display counts down")
        # A click on Stop also returns the focus to the field that was typed into last.
        self.display.click(*program.middle("button", "Stop"))
        program.wait_for_button("Start")
        program.wait_for_focus_in("Minutes")
        self.display.type("8")
        program.wait_for_field("Minutes", "8")
        self.quit(program)

    def test_colons_and_letters_lead_through_the_fields(self):
        program = self.launch_ready()
        self.display.type("1:02:03")
        self.wait_for_fields(program, "1 02 03")
        self.display.type("h5m")
        program.wait_for_focus_in("Seconds")
        self.wait_for_fields(program, "03 5 0")
        self.quit(program)

    def test_the_wheel_turns_the_number_in_focus_only(self):
        program = self.launch_ready()
        self.display.click(*program.middle("field", "Seconds"), WHEEL_UP)
        self.display.click(*program.middle("field", "Minutes"), WHEEL_UP)
        self.display.click(*program.middle("field", "Minutes"), WHEEL_UP)
        self.display.click(*program.middle("field", "Minutes"), WHEEL_DOWN)
        self.wait_for_fields(program, "0 5 57")
        self.quit(program)

    def test_opening_a_menu_while_typing_changes_nothing(self):
        program = self.launch_ready()
        before = self.display.popups()
        self.display.open_popup("alt+t")
        # One Escape closes the menu, the next leaves the menu bar.
        self.display.key("Escape")
        self.assert_soon(self.display.popups, before)
        self.display.key("Escape")
        program.wait_for_focus_in("Minutes")
        self.display.type("10")
        self.wait_for_fields(program, "0 10 57")
        self.quit(program)

    def test_the_middle_button_pastes_the_selection(self):
        program = self.launch_ready()
        self.display.click(*program.middle("field", "Name"))
        self.display.key("ctrl+a")
        self.display.click(*program.middle("field", "Minutes"), MIDDLE)
        self.wait_for_fields(program, "1 5 0")
        self.quit(program)


if __name__ == "__main__":
    main()
