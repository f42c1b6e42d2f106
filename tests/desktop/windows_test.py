#!/usr/bin/python3
"""Opens, places and closes windows on a real desktop.

Usage: windows_test.py WUFFER FOLDER [unittest arguments]
"""

import json
import re
import time

from support.case import DesktopTest, main
from support.waiting import wait_until

STEP = 28


class WindowsTest(DesktopTest):
    def test_a_new_timer_opens_one_step_to_the_right_of_and_below_the_newest(self):
        program = self.launch()
        windows = [program.windows()[0]]
        frames = [self.display.wait_until_at_rest(windows[0])]
        self.assertGreater(frames[0].height, self.display.geometry(windows[0]).height)
        for _ in range(2):
            windows.append(program.open_timer())
            frames.append(self.display.wait_until_at_rest(windows[-1]))
        for older, newer in zip(frames, frames[1:]):
            self.report(f"step {newer.x - older.x}, {newer.y - older.y}")
            self.assertEqual((newer.x - older.x, newer.y - older.y), (STEP, STEP))
            self.assertEqual((newer.width, newer.height), (older.width, older.height))
        self.assertEqual(self.display.frame(windows[0]), frames[0])
        self.quit(program)

    def test_many_new_timers_stay_on_the_screen(self):
        program = self.launch()
        for _ in range(24):
            program.open_timer()
        places = set()
        for window in program.windows():
            frame = self.display.frame(window)
            places.add((frame.x, frame.y))
            self.assertGreaterEqual(min(frame.x, frame.y), 0)
            self.assertLessEqual(frame.right, self.display.width)
            self.assertLessEqual(frame.bottom, self.display.height)
        self.report(f"25 windows at {len(places)} places")
        self.assertGreater(len(places), 10)
        self.quit(program)

    def test_the_program_ends_with_its_home_window(self):
        program = self.launch()
        second = program.open_timer()
        program.close_window()
        self.assertNotIn(second, program.windows())
        self.assertIsNone(program.process.poll())
        program.answers()
        self.display.key("ctrl+w")
        self.close_home(program)

    def test_a_running_timer_closes_and_no_other_takes_its_place(self):
        program = self.launch()
        program.start_countdown(60)
        program.wait_for_button("Stop")
        self.display.key("ctrl+w")
        program.wait_for_home()
        self.quit(program)

    def test_the_program_is_quit_while_a_timer_runs_which_is_not_saved(self):
        program = self.launch()
        program.start_countdown(60)
        program.wait_for_button("Stop")
        # A change during the run is stored at the next stop, and quitting comes before it.
        self.display.key("ctrl+k")
        self.quit(program)
        with open(program.settings_path, encoding="utf-8") as file:
            remembered = json.load(file)["defaultWufferSettings"]
        self.assertEqual((remembered["seconds"], remembered["keepWuffing"]), (60, 0))

    def test_all_timers_start_at_once(self):
        program = self.launch()
        for window in range(3):
            if window:
                program.open_timer()
            program.wait_for_focus_in("Minutes")
            self.display.type("5")
        program.wait_for_count(3, "button", "Start")
        self.display.key("ctrl+shift+s")
        program.wait_for_count(3, "button", "Stop")
        # A display shows the set time until its first tick.
        self.wait_for_three(program, "4m [345][0-9]s")
        # Starting all again does not restart the running timers.
        self.wait_for_three(program, "4m ([34][0-9]|5[0-7])s")
        self.display.key("ctrl+shift+s")
        program.catch_up()
        program.wait_for_count(3, "button", "Stop")
        for display in program.all("display", description="Time"):
            self.assertRegex(display.name, "^4m ([34][0-9]|5[0-7])s$")
        self.quit(program)

    def wait_for_three(self, program, time_shown):
        wait_until(lambda: [bool(re.fullmatch(time_shown, display.name)) for display in
                            program.all("display", description="Time")] == [True] * 3,
                   f"three timers show {time_shown}")

    def test_the_other_windows_come_up_in_front(self):
        program = self.launch()
        timer = program.windows()[0]
        # The converter first, while a field of the timer has the focus: it must not take the key.
        others = (("ctrl+shift+c", "Converter"), ("ctrl+shift+e", "Measurements"),
                  ("ctrl+comma", "Preferences"))
        for key, title in others:
            window = program.open(key)
            self.assertIn(title, self.display.title(window))
        # Opened again from another window, each comes to the front and no second one appears.
        for key, title in others:
            self.display.key(key)
            wait_until(lambda t=title: t in self.display.title(self.display.active_window()),
                       f"{title} is in front")
        self.assertEqual(len(program.windows()), 4)
        self.assertIn(timer, program.windows())
        self.quit(program)

    def test_the_drawer_slides_out_and_in(self):
        program = self.launch()
        window = program.windows()[0]
        self.display.wait_until_at_rest(window)
        closed = self.display.geometry(window)
        self.display.key("ctrl+o")
        program.wait_for_button("Hide Options")
        wait_until(lambda: self.display.geometry(window).height > closed.height + 50,
                   "the drawer is out")
        self.assertEqual(self.display.geometry(window)[:3], closed[:3])
        self.display.wait_until_at_rest(window)
        self.display.key("ctrl+o")
        program.wait_for_button("More Options")
        self.assert_soon(lambda: self.display.geometry(window), closed)
        self.quit(program)

    def test_the_date_sheet_begins_at_the_hour_and_says_how_long_that_is(self):
        # A time zone in which it is morning now, so that the evening is still to come.
        self.west = time.gmtime().tm_hour - 8
        program = self.launch(environment={"TZ": f"TEST{self.west}"})
        program.wait_for_focus_in("Minutes")
        for minutes in ("90", "00"):
            sheet = self.open_sheet(program)
            # These digits set hour and minutes only if the hour is selected at first.
            self.display.type("2359")
            wait_until(lambda: re.fullmatch(r"in \d+ h( \d+ min)?", self.distance(program)),
                       "it is later today")
            self.report(f"{self.distance(program)} to 23:59")
            # The seconds stay those of the time at which the sheet opened.
            wait_until(lambda: abs(self.minutes_left(program) - self.minutes_to_midnight()) <= 1,
                       "the time left is right")
            program.close_window("Escape")
            self.assertNotIn(sheet, program.windows())
            self.display.type(minutes)
        self.quit(program)

    def distance(self, program):
        return program.shown("How long that is from now") or ""

    def minutes_left(self, program):
        hours, minutes = (re.search(rf"(\d+) {unit}\b", self.distance(program))
                          for unit in ("h", "min"))
        return 60 * int(hours[1] if hours else 0) + int(minutes[1] if minutes else 0)

    def minutes_to_midnight(self):
        now = time.gmtime()
        return 24 * 60 - 1 - (60 * ((now.tm_hour - self.west) % 24) + now.tm_min)

    def open_sheet(self, program):
        sheet = program.open("ctrl+d")
        wait_until(lambda: self.distance(program), "the sheet says how long that is")
        return sheet

    def test_the_date_sheet_cannot_be_maximised(self):
        program = self.launch()
        sheet = self.open_sheet(program)
        self.assert_not_to_maximise(sheet)
        program.kill()

    def test_windows_that_would_gain_nothing_cannot_be_maximised(self):
        program = self.launch()
        timer = program.windows()[0]
        self.assert_no_maximise_button(timer)
        self.assert_not_to_maximise(timer)
        self.assert_not_to_maximise(program.open("ctrl+shift+c"))
        # The preferences can be resized, but offer no button to maximise them.
        self.assert_no_maximise_button(program.open("ctrl+comma"))
        measurements = program.open("ctrl+shift+e")
        self.assertIn("MAXIMIZE", self.display.property("_NET_WM_ALLOWED_ACTIONS", measurements))
        self.quit(program)

    def assert_no_maximise_button(self, window):
        # The Motif hints: move, minimise and close, but not maximise.
        hints = self.display.property("_MOTIF_WM_HINTS", window).split(", ")
        flags, functions, decorations = (int(hint, 16) for hint in hints[:3])
        self.assertEqual(flags & 3, 3)
        self.assertEqual(functions & (1 << 2 | 1 << 3 | 1 << 4 | 1 << 5), 1 << 2 | 1 << 3 | 1 << 5)
        self.assertEqual(decorations & (1 << 5 | 1 << 6), 1 << 5)

    def assert_not_to_maximise(self, window):
        before = self.display.wait_until_at_rest(window)
        allowed = self.display.property("_NET_WM_ALLOWED_ACTIONS", window)
        self.assertIn("_NET_WM_ACTION_MOVE", allowed)
        self.assertNotIn("MAXIMIZE", allowed)
        # The Motif hints, for older window managers: move and close, but not maximise.
        flags, functions = self.display.property("_MOTIF_WM_HINTS", window).split(", ")[:2]
        self.assertEqual(int(flags, 16) & 1, 1)
        self.assertEqual(int(functions, 16) & (1 << 2 | 1 << 4), 1 << 2)
        self.display.maximise(window)
        time.sleep(0.5)
        self.assertEqual(self.display.frame(window), before)
        self.assertFalse([name for name in self.display.state(window) if "MAXIMIZED" in name])


if __name__ == "__main__":
    main()
