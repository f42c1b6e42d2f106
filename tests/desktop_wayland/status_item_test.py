#!/usr/bin/python3
"""Shows the status item in the bar of a Wayland compositor.

Usage: status_item_test.py WUFFER FOLDER [unittest arguments]
"""

from wayland_case import WaylandTest, main
from support import processes
from support.display import Rect
from support.waiting import wait_until

# The square at the right end of the bar, which is at the bottom.
SIZE = 20
# The ground of the item's picture. Some bars draw a mark of their own for a hidden item.
GROUND = (239, 239, 239)


class StatusItemTest(WaylandTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        bar = processes.start(["swaybar", "-b", "bar-0", "-s", cls.display.path],
                              cls.session.environment)
        cls.addClassCleanup(processes.end, bar)
        wait_until(lambda: cls.session.owns("org.kde.StatusNotifierWatcher"),
                   "the bar watches for items")
        cls.corner = Rect(cls.display.width - SIZE, cls.display.height - SIZE, SIZE, SIZE)

    def has_item(self):
        return GROUND in self.display.colors(self.corner)

    def press_item(self, button):
        self.display.click(self.corner.x + SIZE // 2, self.corner.y + SIZE // 2, button)

    def start_timer(self):
        self.program.wait_for_focus_in("Minutes")
        self.display.type("60")
        self.display.key("Return")

    def test_it_shows_while_a_timer_runs(self):
        self.program = self.launch()
        self.assertFalse(self.has_item())
        self.start_timer()
        self.program.wait_for_button("Stop")
        wait_until(self.has_item, "the bar shows the item")
        self.display.key("Return")
        wait_until(lambda: not self.has_item(), "the bar no longer shows the item")
        self.quit(self.program)

    def test_its_list_opens_wherever_the_focus_is(self):
        self.program = self.launch()
        self.start_timer()
        self.program.wait_for_button("Stop")
        first, = self.program.windows()
        second = self.program.open_timer()
        self.start_timer()
        self.program.wait_for_count(2, "button", "Stop")
        wait_until(self.has_item, "the bar shows the item")
        self.launch_stranger()
        self.press_item(1)
        wait_until(lambda: len(self.program.windows()) == 3, "the list is a window")
        self.display.wait_until_active(self.program.windows()[-1])
        self.display.key("Escape")
        self.assertEqual(self.program.wait_for_windows(2), [first, second])
        self.display.activate(second)
        self.quit(self.program)


if __name__ == "__main__":
    main()
