#!/usr/bin/python3
"""Saves timers as presets and opens them, also after restarts and kills.

Usage: presets_test.py WUFFER FOLDER [unittest arguments]
"""

import json
import time

from support.case import DesktopTest, main


class PresetsTest(DesktopTest):
    def stored(self, program):
        with open(program.settings_path, encoding="utf-8") as file:
            return json.load(file)

    def type_tea(self, program):
        """Names the timer and sets it to four minutes and thirty seconds."""
        program.wait_for_focus_in("Minutes")
        self.display.type("4")
        self.display.key("Tab")
        self.display.type("30")
        self.display.key("shift+Tab", "shift+Tab", "shift+Tab")
        program.wait_for_focus_in("Name")
        self.display.type("Tea")
        program.wait_for_field("Name", "Tea")

    def move(self, program, x, y):
        """Moves the only window, and waits until the program can know its place."""
        window, = program.windows()
        self.display.move_window(window, x, y)
        return self.display.wait_until_at_rest(window)

    def check_tea(self, program):
        record = self.stored(program)["Preset 4"]
        self.assertEqual(
            {key: record[key] for key in ("title", "hours", "minutes", "seconds",
                                          "finishOption", "keepWuffing", "fullScreen")},
            {"title": "Tea", "hours": 0, "minutes": 4, "seconds": 30,
             "finishOption": "Do Nothing", "keepWuffing": 0, "fullScreen": 0})

    def test_a_preset_survives_a_kill_a_second_after_it_was_saved(self):
        program = self.launch()
        self.type_tea(program)
        self.display.key("ctrl+4")
        program.wait_for_text("Elapsed time", "Saved to Preset 4")
        place = self.move(program, 300, 200)
        self.display.key("ctrl+4")
        program.catch_up()
        waits, saved = self.waits(program), time.monotonic()
        while time.monotonic() < saved + 1 + waits.seconds():
            time.sleep(0.05)
        program.kill()
        self.check_tea(program)

        program.start()
        window = program.open("alt+4")
        program.wait_for_count(1, "display", "Preset 4", "Elapsed time")
        program.wait_for_count(1, "display", "Tea", "Time")
        program.wait_for_count(1, "display", "0h 4m 30s", "Milliseconds")
        self.assert_soon(lambda: self.display.frame(window)[:2], place[:2])
        # The next window opens one step further.
        window = program.open("alt+4")
        self.assert_soon(lambda: self.display.frame(window)[:2], (place.x + 28, place.y + 28))
        self.quit(program)
        self.check_tea(program)
        self.report(json.dumps({key: value for key, value in self.stored(program).items()
                                if key in ("Preset 4", "windowFrames")}))

    def test_a_first_launch_lists_ten_presets(self):
        program = self.launch()
        self.quit(program)
        stored = self.stored(program)
        for number in range(10):
            record = stored[f"Preset {number}"]
            self.assertEqual((record["title"], record["minutes"]),
                             (f"Preset {number}", number * 10))

    def test_a_timer_comes_back_as_it_was(self):
        program = self.launch()
        self.type_tea(program)
        # Return finishes the name and does not press the Start button.
        self.display.key("Return")
        place = self.move(program, 200, 100)
        program.close_all()
        for _ in range(3):
            program.start()
            for field, text in (("Name", "Tea"), ("Minutes", "4"), ("Seconds", "30")):
                program.wait_for_field(field, text)
            window = program.windows()[0]
            self.assert_soon(lambda w=window: self.display.frame(w)[:2], place[:2])
            self.assertIn("Tea", self.display.title(window))
            program.close_all()


if __name__ == "__main__":
    main()
