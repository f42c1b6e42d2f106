#!/usr/bin/python3
"""Enters and leaves the full screen in a Wayland session.

Usage: full_screen_test.py WUFFER FOLDER [unittest arguments]
"""

from wayland_case import WaylandTest, main
from support.display import Rect
from support.waiting import wait_until

PANEL = (0xfb, 0xfa, 0xf5)
# Where the window stands: on the full screen, no text covers the places of its lower controls.
CORNER = (20, 400)


class FullScreenTest(WaylandTest):
    def setUp(self):
        super().setUp()
        self.program = self.launch()
        self.window, = self.program.windows()
        self.program.wait_for_focus_in("Minutes")
        self.display.type("60")
        self.display.key("Return")
        self.program.wait_for_button("Stop")
        self.display.move_window(self.window, *CORNER)
        self.place = self.display.geometry(self.window)
        # Between two controls, so that there is nothing but the pointer.
        self.spot = (self.place.x + 250, self.place.bottom - 24)
        self.display.move_pointer(*self.spot)

    def covering_window(self):
        return next((node["id"] for node in self.display.nodes() if node["fullscreen_mode"]), None)

    def enter(self):
        self.display.key("F11")
        wait_until(self.covering_window, "a window covers the screen")
        self.display.wait_until_active(self.covering_window())
        whole = Rect(0, 0, self.display.width, self.display.height)
        wait_until(lambda: self.display.geometry(self.covering_window()) == whole,
                   "the display covers the whole screen")
        corner = Rect(0, 0, 40, 40)
        wait_until(lambda: self.display.colors(corner) == {PANEL}, "the display is drawn")

    def check_back(self):
        self.assertEqual(self.program.wait_for_windows(1), [self.window])
        self.display.wait_until_active(self.window)
        wait_until(lambda: self.display.geometry(self.window) == self.place,
                   "the window is as before")
        self.program.wait_for_button("Stop")

    def test_any_key_ends_it_and_is_not_typed(self):
        for key in ("7", "space", "Return", "Escape", "ctrl+n", "F11"):
            with self.subTest(key):
                self.enter()
                self.display.key(key)
                self.check_back()
        self.assertEqual(self.program.text("Minutes"), "60")
        self.display.key("Return")
        self.program.wait_for_button("Start")
        self.quit(self.program)

    def test_a_left_click_ends_it_and_a_right_click_does_not(self):
        # Over the button: if the first click ended the full screen, the second would press it.
        button = self.program.place(self.program.find("button", "Stop"))
        self.display.move_pointer(self.place.x + button.x + button.width // 2,
                                  self.place.y + button.y + button.height // 2)
        self.enter()
        self.display.press_button(3)
        self.program.catch_up()
        self.display.press_button(1)
        self.check_back()
        self.program.catch_up()
        self.assertEqual(len(self.program.all("button", "Stop")), 1)
        # That the button is under the pointer shows in the end.
        self.display.press_button(1)
        self.program.wait_for_button("Start")
        self.quit(self.program)

    def test_the_pointer_is_hidden(self):
        around = Rect(self.spot[0] - 5, self.spot[1] - 5, 20, 20)
        self.display.key("F11")
        wait_until(lambda: self.display.colors(around) == {PANEL}, "the pointer is hidden")
        self.display.key("Escape")
        self.check_back()
        wait_until(lambda: len(self.display.colors(around)) > 1, "the pointer shows")
        self.display.move_pointer(*CORNER)
        wait_until(lambda: len(self.display.colors(around)) == 1, "what showed was the pointer")
        self.quit(self.program)


if __name__ == "__main__":
    main()
