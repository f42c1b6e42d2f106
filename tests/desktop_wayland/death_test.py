#!/usr/bin/python3
"""Kills the compositor of a Wayland session while timers run.

Usage: death_test.py WUFFER FOLDER [unittest arguments]
"""

import json

from wayland_case import WaylandTest, main
from support.waiting import PATIENCE

BROKEN = "The Wayland connection broke. Did the Wayland compositor die?\n"


class DeathTest(WaylandTest):
    def test_the_program_ends_and_has_stored_its_settings(self):
        program = self.launch()
        program.wait_for_focus_in("Minutes")
        place = self.display.geometry(program.windows()[0])
        button = program.place(program.find("button", "Mute all timers"))
        self.display.click(place.x + button.x + 8, place.y + button.y + 8)
        program.wait_for_button("Let all timers be heard again")
        self.display.click(place.x + 300, place.y + 20)
        program.start_countdown(50)
        program.wait_for_button("Stop")
        self.display.kill()
        # The ordinary end of a program without a display: no crash.
        self.assertEqual(program.process.wait(PATIENCE), 1)
        self.assertEqual(program.written(), BROKEN)
        self.programs.remove(program)
        with open(program.settings_path, encoding="utf-8") as file:
            self.assertEqual(json.load(file)["soundOff"], 1)


if __name__ == "__main__":
    main()
