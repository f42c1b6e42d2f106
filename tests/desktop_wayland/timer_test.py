#!/usr/bin/python3
"""Uses a timer with the keyboard and the mouse in a Wayland session.

Usage: timer_test.py WUFFER FOLDER [unittest arguments]
"""

import json

from wayland_case import WaylandTest, main
from support.display import Display
from support.waiting import wait_until

MUTED = '{"soundOff": 1}'
PLACE = {"x": 120, "y": 90}
SETTINGS = {"soundOff": 1, "defaultWufferSettings": {"minutes": 7, "seconds": 0},
            "windowFrames": {"defaultWufferSettings": PLACE, "Preset 3": PLACE}}


class TimerTest(WaylandTest):
    def test_a_timer_is_set_started_and_rings(self):
        program = self.launch(settings=MUTED)
        program.wait_for_focus_in("Minutes")
        window, = program.windows()
        self.assertEqual(self.display.node(window)["app_id"], "org.wuffer.Wuffer")
        program.start_countdown(2)
        program.wait_for_button("Stop")
        program.wait_for_text("Time", "Wuff!")
        wait_until(lambda: self.session.notifications.shown() == 1, "a notification shows")
        # The alarm lasts, because it is muted.
        self.display.key("Return")
        program.wait_for_button("Start")
        program.wait_for_field("Seconds", "2")
        self.quit(program)
        self.assertEqual(self.settings(program)["defaultWufferSettings"]["seconds"], 2)

    def test_the_drawer_slides_out_and_in(self):
        program = self.launch()
        window, = program.windows()
        closed = self.display.geometry(window)
        self.display.key("ctrl+o")
        program.wait_for_button("Hide Options")
        wait_until(lambda: self.display.geometry(window).height > closed.height + 50,
                   "the drawer is out")
        self.assertEqual(self.display.geometry(window).width, closed.width)
        self.display.key("ctrl+o")
        program.wait_for_button("More Options")
        wait_until(lambda: self.width_and_height(window) == (closed.width, closed.height),
                   "the drawer is in")
        self.quit(program)

    def width_and_height(self, window):
        return tuple(self.display.geometry(window)[2:])

    def test_a_menu_item_is_chosen_with_the_mouse(self):
        program = self.launch()
        program.wait_for_focus_in("Minutes")
        first, = program.windows()
        place = self.display.geometry(first)
        # The first menu and its first item.
        self.display.click(place.x + 20, place.y + 10)
        self.display.key("Down")
        wait_until(lambda: self.display.color_at(place.x + 120, place.y + 32)
                   != self.display.color_at(place.x + 120, place.y + 10),
                   "the menu is open")
        self.display.click(place.x + 40, place.y + 32)
        program.wait_for_windows(2)
        self.quit(program)

    def test_the_preferences_and_the_date_sheet_come_up(self):
        program = self.launch()
        program.wait_for_focus_in("Minutes")
        for key, title in (("ctrl+comma", "Preferences"), ("ctrl+d", "Target Date")):
            self.assertIn(title, self.display.title(program.open(key)))
            self.display.key("Escape" if key == "ctrl+d" else "ctrl+w")
            program.wait_for_windows(1)
            wait_until(program.has_focus, "the timer has the focus")
        self.quit(program)

    def test_the_places_for_other_desktops_are_kept(self):
        program = self.launch(settings=json.dumps(SETTINGS))
        program.wait_for_focus_in("Minutes")
        program.wait_for_field("Minutes", "7")
        # A preset that is opened, changed and stored.
        program.open("alt+3")
        program.wait_for_focus_in("Minutes")
        self.display.type("41")
        wait_until(lambda: "41" in [program.text_of(field) for field
                                    in program.all("field", "Minutes")], "41 minutes are set")
        self.display.key("ctrl+3")
        self.quit(program)
        settings = self.settings(program)
        self.assertEqual(settings["Preset 3"]["minutes"], 41)
        self.assertEqual(settings["windowFrames"], SETTINGS["windowFrames"])

    def test_an_x_server_is_preferred(self):
        both = Display(self.session.environment, self.size)
        self.addCleanup(both.close)
        both.start_manager()
        program = self.launch(display=both)
        self.assertIn("WAYLAND_DISPLAY", program.environment)
        self.assertEqual(len(program.windows()), 1)
        self.assertEqual(self.display.windows(program.process.pid), [])
        self.quit(program)

    def settings(self, program):
        with open(program.settings_path, encoding="utf-8") as file:
            return json.load(file)


if __name__ == "__main__":
    main()
