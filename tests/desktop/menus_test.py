#!/usr/bin/python3
"""Uses the menus with the keyboard and judges by what the window manager reports.

Usage: menus_test.py WUFFER FOLDER [unittest arguments]
"""

import re

from support import processes
from support.case import DesktopTest, main
from support.waiting import wait_until

ABOVE = "_NET_WM_STATE_ABOVE"


class MenuUser(DesktopTest):
    def launch_two(self):
        program = self.launch()
        first, = program.windows()
        return program, first, program.open("alt+3")

    def choose(self, menu, *keys):
        """Opens a menu with its letter, and presses keys in it."""
        before = self.display.popups()
        self.display.open_popup(f"alt+{menu}")
        self.display.key(*keys)
        wait_until(lambda: self.display.popups() == before, "the menu is closed")

    def is_above(self, window, other):
        order = [int(number, 16) for number in re.findall(
            "0x[0-9a-f]+", self.display.property("_NET_CLIENT_LIST_STACKING"))]
        return order.index(window) > order.index(other)

    def wait_for_state(self, window, above):
        wait_until(lambda: (ABOVE in self.display.state(window)) == above,
                   f"the window is kept on top: {above}")


class MenusTest(MenuUser):
    def test_a_timer_is_kept_on_top_until_the_item_is_chosen_again(self):
        program, first, second = self.launch_two()
        self.display.activate(first)
        self.choose("w", "t")
        self.wait_for_state(first, True)
        self.display.activate(second)
        wait_until(lambda: self.is_above(first, second), "the first window stays in front")
        # The window was not replaced or moved, and the choice is not stored.
        self.assertEqual(program.windows(), [first, second])
        self.display.activate(first)
        self.choose("w", "t")
        self.wait_for_state(first, False)
        self.display.activate(second)
        wait_until(lambda: self.is_above(second, first), "the other window is in front")
        self.quit(program)
        with open(program.settings_path, encoding="utf-8") as file:
            self.assertNotIn("bove", file.read())

    def test_the_item_shows_the_state_that_the_window_manager_keeps(self):
        program, first, second = self.launch_two()
        processes.run(["wmctrl", "-i", "-r", hex(second), "-b", "add,above"],
                      self.display.environment)
        self.wait_for_state(second, True)
        # If the item were not checked, choosing it would keep the window on top.
        self.choose("w", "t")
        self.wait_for_state(second, False)
        self.assertNotIn(ABOVE, self.display.state(first))
        self.quit(program)

    def test_a_timer_is_brought_to_the_front_from_the_list(self):
        program, first, second = self.launch_two()
        # Up selects the last item, the newest timer; a second Up selects the timer before it.
        self.choose("w", "Up", "Up", "Return")
        self.display.wait_until_active(first)
        self.choose("w", "Up", "Return")
        self.display.wait_until_active(second)
        self.quit(program)

    def test_the_first_item_of_the_timer_menu_starts_and_stops(self):
        program = self.launch()
        program.wait_for_focus_in("Minutes")
        self.display.type("5")
        self.choose("t", "Return")
        program.wait_for_button("Stop")
        self.choose("t", "Return")
        program.wait_for_button("Start")
        self.quit(program)

    def test_f2_renames_a_timer_that_runs(self):
        program, first, _ = self.launch_two()
        self.display.key("Return")
        program.wait_for_button("Stop")
        self.display.key("F2")
        program.wait_for_focus_in("Name")
        self.display.type("Tea")
        wait_until(lambda: program.all("display", "Tea") or "Tea" in self.display.title(
            self.display.active_window()), "the timer has its name")
        self.assertNotIn("Preset", self.display.title(self.display.active_window()))
        self.display.activate(first)
        self.quit(program)

    def test_about_is_in_front_even_of_a_timer_that_is_kept_on_top(self):
        program = self.launch()
        window, = program.windows()
        self.choose("w", "t")
        self.wait_for_state(window, True)
        self.choose("h", "a")
        about = program.wait_for_new_window([window])
        self.assert_soon(lambda: self.display.title(about), "About Wuffer")
        wait_until(lambda: self.is_above(about, window), "the window is in front of the timer")
        program.find("button", "Close")
        program.close_window("Escape")
        self.display.wait_until_active(window)
        self.quit(program)


class SimpleWindowManagerTest(MenuUser):
    def test_keep_on_top_is_disabled_if_the_window_manager_does_not_support_it(self):
        self.assertIn(ABOVE, self.display.property("_NET_SUPPORTED"))
        processes.run(["xprop", "-root", "-f", "_NET_SUPPORTED", "32a",
                       "-set", "_NET_SUPPORTED", "_NET_ACTIVE_WINDOW"], self.display.environment)
        # Only the first session of a test program has an accessibility tree.
        program = self.launch(accessible=False)
        window, = program.windows()
        # The mnemonic of a disabled item does nothing.
        self.choose("w", "t", "Escape")
        program.catch_up()
        # The window manager does this after anything that the program has asked it to do.
        self.display.minimise(window)
        self.assertNotIn(ABOVE, self.display.state(window))
        self.display.activate(window)
        self.quit(program)


if __name__ == "__main__":
    main()
