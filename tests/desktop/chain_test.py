#!/usr/bin/python3
"""Links timers by dragging one window onto another, and runs them as a chain.

Usage: chain_test.py WUFFER FOLDER [unittest arguments]
"""

import time

from support.case import DesktopTest, main
from support.waiting import wait_until

WHITE = (255, 255, 255)
PLACES = ((20, 20), (660, 20), (20, 400), (660, 400))


class ChainTest(DesktopTest):
    def launch_timers(self, count):
        """Launches this many timers of two seconds each, side by side."""
        self.program = self.launch()
        for number in range(1, count + 1):
            if number > 1:
                self.program.open_timer()
            self.program.wait_for_focus_in("Minutes")
            self.program.type_seconds(2)
        windows = self.program.windows()
        for window, place in zip(windows, PLACES):
            self.display.move_window(window, *place)
        return windows

    def margin(self, window):
        """Returns a point of the window where no control takes the mouse press."""
        place = self.display.geometry(window)
        return place.x + 5, place.bottom - 5

    def link(self, target, source, button=1, key="ctrl"):
        """Drags the source onto the target."""
        with self.display.dragging(self.margin(source), self.margin(target), button, key):
            self.wait_until_lit(target, source)
        self.wait_until_dark(target, source)
        # A link brings its target forward.
        self.display.wait_until_active(target)

    def is_lit(self, window):
        x, y = self.margin(window)
        # Away from the pointer, whose drag picture would cover the colour.
        return self.display.color_at(x + 300, y) == WHITE

    def wait_until_lit(self, *windows):
        wait_until(lambda: all(map(self.is_lit, windows)), "the windows are lit")

    def wait_until_dark(self, *windows):
        wait_until(lambda: not any(map(self.is_lit, windows)), "no window is lit")

    def inside(self, window, controls):
        """Returns those of the controls that are in the window."""
        area = self.display.geometry(window)
        places = [(control, self.program.place(control)) for control in controls]
        return [control for control, place in places if area.x <= place.x < area.right
                and area.y <= place.y < area.bottom]

    def shown_in(self, window):
        """Returns the text of the window's elapsed line; None while it is not there alone."""
        labels = self.inside(window, self.program.all("display", description="Elapsed time"))
        return labels[0].name if len(labels) == 1 else None

    def wait_for_chain(self, *windows):
        for position, window in enumerate(windows, start=1):
            text = f"Wuffer Chain - {position} of {len(windows)}"
            wait_until(lambda w=window, t=text: self.shown_in(w) == t, text)

    def test_three_timers_linked_by_drags_run_one_after_the_other(self):
        first, second, third = self.launch_timers(3)
        self.link(first, second)
        self.wait_for_chain(first, second)
        # A drag with the right button needs no Ctrl key.
        self.link(second, third, button=3, key=None)
        self.wait_for_chain(first, second, third)
        self.program.wait_for_count(2, "button", "Chained")

        self.display.activate(first)
        start = time.monotonic()
        self.display.key("Return")
        for window in (first, second, third):
            wait_until(lambda w=window: self.shown_in(w) == "2s", "the timer rings")
            self.program.wait_for_count(1, "button", "Reset")
            moment = time.monotonic() - start
            self.report(f"alarm after {moment:.2f} s")
        self.wait_for_chain(first, second, third)
        self.program.wait_for_button("Start Chain")
        self.assertEqual(len(self.session.notifications.take_all()), 3)
        self.quit(self.program)

    def test_a_whole_chain_is_lit(self):
        first, second, third, fourth = self.launch_timers(4)
        self.link(first, second)
        self.link(third, fourth)
        with self.display.dragging(self.margin(third), self.margin(first), key="ctrl"):
            self.wait_until_lit(first, second, third, fourth)
            # Off all windows.
            self.display.move_pointer(1270, 790)
            self.wait_until_dark(first, second, third, fourth)
        self.wait_for_chain(first, second)
        self.wait_for_chain(third, fourth)
        self.quit(self.program)

    def test_a_window_is_not_linked_to_itself(self):
        first, second = self.launch_timers(2)
        x, y = self.margin(first)
        with self.display.dragging((x, y), (x + 200, y), key="ctrl"):
            self.program.catch_up()
            self.assertFalse(self.is_lit(first))
        self.program.catch_up()
        self.program.wait_for_count(2, "button", "Start")
        self.link(first, second)
        self.wait_for_chain(first, second)
        self.quit(self.program)

    def test_a_drag_begins_and_ends_in_the_drawer_too(self):
        first, second = self.launch_timers(2)
        for window in (first, second):
            closed = self.display.geometry(window).height
            self.display.activate(window)
            self.display.key("ctrl+o")
            wait_until(lambda w=window, c=closed: self.display.geometry(w).height > c + 50,
                       "the drawer is out")
            self.display.wait_until_at_rest(window)
        # From one window's drawer to the other's.
        with self.display.dragging(self.label_in(second), self.label_in(first), key="ctrl"):
            self.wait_until_lit(first, second)
        self.wait_for_chain(first, second)
        wait_until(lambda: "Wuffer - 0h 0m 2s" in
                   [choice.name for choice in self.program.all("choice")], "the link is shown")
        self.quit(self.program)

    def label_in(self, window):
        """Returns a point on a label in the drawer of the window."""
        place = self.place_in(window, "Alarm:", "display")
        return place.x + 4, place.y + 4

    def test_a_window_that_closes_while_it_is_dragged_ends_the_drag(self):
        first, second, third = self.launch_timers(3)
        with self.display.dragging(self.margin(third), self.margin(first), key="ctrl"):
            self.wait_until_lit(first)
            self.display.close_window(third)
            self.program.wait_for_windows(2)
            self.wait_until_dark(first)
        self.program.catch_up()
        self.link(first, second)
        self.wait_for_chain(first, second)
        self.quit(self.program)

    def test_a_window_that_closes_under_a_drag_is_not_linked(self):
        first, second, third = self.launch_timers(3)
        self.link(first, second)
        with self.display.dragging(self.margin(third), self.margin(second), key="ctrl"):
            self.wait_until_lit(first, third)
            self.display.close_window(second)
            self.program.wait_for_windows(2)
            self.wait_until_dark(first, third)
        self.program.catch_up()
        self.program.wait_for_count(2, "button", "Start")
        self.link(first, third)
        self.wait_for_chain(first, third)
        self.quit(self.program)

    def test_a_plain_drag_moves_the_window(self):
        first, second = self.launch_timers(2)
        before = self.display.frame(first)
        self.drag_away(first, self.margin(first))
        moved = self.display.wait_until_at_rest(first)
        self.report(f"moved by {moved.x - before.x}, {moved.y - before.y}")
        self.assertEqual(moved[2:], before[2:])
        self.program.wait_for_count(2, "button", "Start")
        # The move has released the mouse: links work again.
        self.link(first, second)
        self.quit(self.program)

    def test_a_button_that_is_pressed_after_an_empty_spot_moves_nothing(self):
        first, second = self.launch_timers(2)
        before = self.display.frame(first)
        self.display.click(*self.margin(first))
        start = self.button_in(first, "Start")
        with self.display.dragging(start, (start[0] + 200, start[1] + 120)):
            self.program.catch_up()
        self.program.catch_up()
        self.assertEqual(self.display.frame(first), before)
        self.program.wait_for_count(2, "button", "Start")
        with self.display.dragging(start, self.margin(second), key="ctrl"):
            self.program.catch_up()
            self.assertFalse(self.is_lit(second))
        self.program.catch_up()
        self.program.wait_for_count(2, "button", "Start")
        self.quit(self.program)

    def test_a_drag_begins_on_a_disabled_button(self):
        first, second, third = self.launch_timers(3)
        self.link(first, second)
        chained = self.button_in(second, "Chained")
        with self.display.dragging(chained, self.margin(third), key="ctrl"):
            self.wait_until_lit(third, second)
        self.wait_for_chain(third, second)
        # "Keep wuffing" is disabled for a timer with a successor. The right button needs no key.
        box = self.button_in(third, "Keep wuffing", "box")
        with self.display.dragging(box, self.margin(first), button=3):
            self.wait_until_lit(first, third)
        self.wait_for_chain(first, third, second)
        self.drag_away(second, chained)
        self.quit(self.program)

    def drag_away(self, window, start):
        """Drags a window down until it has moved by more than 50 pixels."""
        before = self.display.frame(window)
        x, y = start

        def has_moved():
            nonlocal y
            y = min(y + 10, self.display.height - 1)
            self.display.move_pointer(x, y)
            return self.display.frame(window).y > before.y + 50

        with self.display.dragging(start, (x, y + 20)):
            # The window manager moves the window only as long as the button is pressed.
            self.program.catch_up()
            wait_until(has_moved, "the window moves", pause=0.05)

    def button_in(self, window, name, role="button"):
        """Returns the middle of the button in the window."""
        place = self.place_in(window, name, role)
        return place.x + place.width // 2, place.y + place.height // 2

    def place_in(self, window, name, role):
        """Waits for the control of this name in the window; returns its place."""
        found = []

        def is_only_one():
            found[:] = self.inside(window, self.program.all(role, name))
            return len(found) == 1

        wait_until(is_only_one, f"there is one {name} in the window")
        return self.program.place(found[0])

    def test_keys_alone_link_timers(self):
        self.launch_timers(2)
        for keys in (("alt+t",), ("i",)):
            self.display.open_popup(*keys)
        self.display.key("Down", "Return")
        self.program.wait_for_button("Start Chain")
        self.quit(self.program)

    def test_a_link_is_gone_when_its_window_closes(self):
        first, second = self.launch_timers(2)
        self.link(first, second)
        self.display.activate(second)
        self.program.close_window()
        self.program.wait_for_button("Start")
        self.quit(self.program)


if __name__ == "__main__":
    main()
