#!/usr/bin/python3
"""Links timers by dragging one window onto another in a Wayland session.

Usage: chain_test.py WUFFER FOLDER [unittest arguments]
"""

from wayland_case import WaylandTest, main
from support.waiting import wait_until

WHITE = (255, 255, 255)
PLACES = ((20, 60), (660, 60), (20, 440))
NOTHING = (1000, 700)


class ChainTest(WaylandTest):
    def launch_timers(self, count):
        """Launches this many timers, side by side; returns their windows."""
        self.program = self.launch()
        self.program.wait_for_focus_in("Minutes")
        for _ in range(1, count):
            self.program.open_timer()
        windows = self.program.windows()
        for window, place in zip(windows, PLACES):
            self.display.move_window(window, *place)
        return windows

    def margin(self, window):
        """Returns a point of the window where no control takes the mouse press."""
        place = self.display.geometry(window)
        return place.x + 5, place.bottom - 5

    def is_lit(self, window):
        x, y = self.margin(window)
        # Away from the pointer, whose drag picture would cover the colour.
        return self.display.color_at(x + 300, y) == WHITE

    def wait_until_lit(self, *windows):
        wait_until(lambda: all(map(self.is_lit, windows)), "the windows are lit")

    def wait_until_dark(self, *windows):
        wait_until(lambda: not any(map(self.is_lit, windows)), "no window is lit")

    def link(self, target, source, button=1, key="ctrl"):
        """Drags the source onto the target."""
        with self.display.dragging(self.margin(source), self.margin(target), button, key):
            self.wait_until_lit(target, source)
        self.wait_until_dark(target, source)

    def chain(self):
        """Returns the elapsed lines that tell of a chain, sorted."""
        return sorted(label.name for label
                      in self.program.all("display", description="Elapsed time")
                      if "Chain" in label.name)

    def wait_for_chain(self, length):
        texts = [f"Wuffer Chain - {place} of {length}" for place in range(1, length + 1)]
        wait_until(lambda: self.chain() == texts, f"there is a chain of {length}")

    def test_windows_are_linked_with_either_button(self):
        first, second, third = self.launch_timers(3)
        self.link(first, second)
        self.wait_for_chain(2)
        self.display.wait_until_active(first)
        # A drag with the right button needs no Ctrl key.
        self.link(second, third, button=3, key=None)
        self.wait_for_chain(3)
        self.quit(self.program)

    def test_a_drop_beside_all_windows_links_nothing(self):
        first, second = self.launch_timers(2)
        with self.display.dragging(self.margin(second), self.margin(first), key="ctrl"):
            self.wait_until_lit(first, second)
            self.display.move_pointer(*NOTHING)
            self.wait_until_dark(first, second)
        self.display.move_pointer(*self.margin(second))
        self.assertEqual(self.chain(), [])
        self.link(first, second)
        self.wait_for_chain(2)
        self.quit(self.program)

    def test_a_drag_begins_in_the_drawer_too(self):
        first, second = self.launch_timers(2)
        closed = self.display.geometry(second)
        self.display.activate(second)
        self.display.key("ctrl+o")
        wait_until(lambda: self.display.geometry(second).height > closed.height + 50,
                   "the drawer is out")
        self.program.wait_for_button("Hide Options")
        self.link(first, second)
        self.wait_for_chain(2)
        self.quit(self.program)

    def test_a_drag_without_control_moves_the_window(self):
        first, _ = self.launch_timers(2)
        place = self.display.geometry(first)
        x, y = self.margin(first)
        with self.display.dragging((x, y), (x + 40, y + 200)):
            wait_until(lambda: self.display.geometry(first).y > place.y + 50, "the window moves")
        self.assertEqual(self.chain(), [])
        self.quit(self.program)


if __name__ == "__main__":
    main()
