#!/usr/bin/python3
"""Opens the drawer on a desktop whose user has turned animations off.

Usage: animation_test.py WUFFER FOLDER [unittest arguments]
"""

from support.case import DesktopTest, main
from support.desktop_settings import DesktopSettings, Heights
from support.waiting import wait_until


class AnimationTest(DesktopTest):
    def test_without_animations_the_drawer_opens_at_once(self):
        settings = DesktopSettings(self.display, Gtk_EnableAnimations=0)
        self.addCleanup(settings.close)
        program = self.launch()
        window, = program.windows()
        closed = self.display.geometry(window).height
        heights = Heights(self.display, window)
        self.addCleanup(heights.close)
        button = program.place(program.find("button", "More Options"))
        self.display.click(button.x + 10, button.y + 10)
        program.wait_for_button("Hide Options")
        wait_until(lambda: max(heights.all(), default=0) > closed + 60, "the drawer is open")
        grown = [height for height in heights.all() if height > closed]
        self.report(f"{closed} to {grown}")
        self.assertGreater(grown[0], closed + 60, "the first step is the whole way")
        self.quit(program)


if __name__ == "__main__":
    main()
