#!/usr/bin/python3
"""Opens, places and closes windows on a real desktop.

Usage: windows_test.py WUFFER FOLDER [unittest arguments]
"""

import json
import time

from support.case import DesktopTest, main
from support.waiting import wait_until

STEP = 28


class WindowsTest(DesktopTest):
    def open_timer(self, program):
        count = len(program.windows())
        self.display.key("ctrl+n")
        program.wait_for_windows(count + 1)
        window = program.windows()[-1]
        self.wait_until_active(window)
        return window

    def wait_until_active(self, window):
        wait_until(lambda: self.display.active_window() == window, 5, "the window is active")

    def test_a_new_timer_opens_one_step_to_the_right_of_and_below_the_newest(self):
        program = self.launch()
        windows = [program.windows()[0]]
        frames = [self.display.frame(windows[0])]
        self.assertGreater(frames[0].height, self.display.geometry(windows[0]).height)
        for _ in range(2):
            windows.append(self.open_timer(program))
            frames.append(self.display.frame(windows[-1]))
        for older, newer in zip(frames, frames[1:]):
            self.report(f"step {newer.x - older.x}, {newer.y - older.y}")
            self.assertEqual((newer.x - older.x, newer.y - older.y), (STEP, STEP))
            self.assertEqual((newer.width, newer.height), (older.width, older.height))
        self.assertEqual(self.display.frame(windows[0]), frames[0])
        self.quit(program)

    def test_many_new_timers_stay_on_the_screen(self):
        program = self.launch()
        for _ in range(24):
            self.open_timer(program)
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
        second = self.open_timer(program)
        self.display.key("ctrl+w")
        program.wait_for_windows(1)
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
        # What is changed now is remembered at the next stop, to which it does not come.
        self.display.key("ctrl+k")
        self.quit(program)
        with open(program.settings_path, encoding="utf-8") as file:
            remembered = json.load(file)["defaultWufferSettings"]
        self.assertEqual((remembered["seconds"], remembered["keepWuffing"]), (60, 0))

    def test_all_timers_start_at_once(self):
        program = self.launch()
        for window in range(3):
            if window:
                self.open_timer(program)
            program.wait_for_focus_in("Minutes")
            self.display.type("5")
        self.assertEqual(len(program.all("button", "Start")), 3)
        self.display.key("ctrl+shift+s")
        wait_until(lambda: len(program.all("button", "Stop")) == 3, 5, "three timers run")
        for label in program.all("display", description="Time"):
            self.assertIn(label.get_name(), ("4m 59s", "4m 58s"))
        # Those that run go on when it is said again.
        self.display.key("ctrl+shift+s")
        time.sleep(0.2)
        self.assertEqual(len(program.all("button", "Stop")), 3)
        self.quit(program)

    def test_the_other_windows_come_up_in_front(self):
        program = self.launch()
        timer = program.windows()[0]
        # The converter first: its key must not be one that the timer's field takes for itself.
        others = (("ctrl+shift+c", "Converter"), ("ctrl+shift+e", "Measurements"),
                  ("ctrl+comma", "Preferences"))
        for count, (key, title) in enumerate(others, start=2):
            self.display.key(key)
            window = program.wait_for_windows(count)[-1]
            self.wait_until_active(window)
            self.assertIn(title, self.display.title(window))
        # Called again from another window, each comes back and there is no second one.
        for key, title in others:
            self.display.key(key)
            wait_until(lambda t=title: t in self.display.title(self.display.active_window()), 5,
                       f"{title} is in front")
        self.assertEqual(len(program.windows()), 4)
        self.assertIn(timer, program.windows())
        self.quit(program)

    def test_the_drawer_slides_out_and_in(self):
        program = self.launch()
        window = program.windows()[0]
        closed = self.display.geometry(window)
        self.display.key("ctrl+o")
        program.wait_for_button("Hide Options")
        wait_until(lambda: self.display.geometry(window).height > closed.height + 50, 3,
                   "the drawer is out")
        self.assertEqual(self.display.geometry(window)[:3], closed[:3])
        wait_until(lambda: self.has_come_to_rest(window), 3, "the drawer has come to rest")
        self.display.key("ctrl+o")
        program.wait_for_button("More Options")
        wait_until(lambda: self.display.geometry(window) == closed, 3, "the drawer is in")
        self.quit(program)

    def has_come_to_rest(self, window):
        height = self.display.geometry(window).height
        time.sleep(0.1)
        return self.display.geometry(window).height == height


if __name__ == "__main__":
    main()
