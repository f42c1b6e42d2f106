"""Desktop panels that show status items."""

import glob
import os
import time

from support import processes
from support.display import Rect
from support.session import ask
from support.waiting import wait_until

from gi.repository import GLib

HEIGHT = 30

XFCE_CONFIGURATION = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="length" type="uint" value="100"/>
      <property name="size" type="uint" value="{height}"/>
      <property name="icon-size" type="uint" value="22"/>
      <property name="plugin-ids" type="array">
        <value type="int" value="1"/>
        <value type="int" value="2"/>
      </property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="separator">
      <property name="expand" type="bool" value="true"/>
      <property name="style" type="uint" value="0"/>
    </property>
    <property name="plugin-2" type="string" value="systray"/>
  </property>
</channel>
"""

TINT2_CONFIGURATION = """rounded = 0
background_color = #303030 100
border_width = 0

panel_items = FS
panel_size = 100% {height}
panel_position = bottom center horizontal
panel_background_id = 1
systray_padding = 2 2 2
systray_icon_size = 22
"""


class Panel:
    """The base of all panels: a strip of the screen, empty until an item shows."""

    def __init__(self, display, top):
        self.display = display
        self.strip = Rect(0, top, display.width, HEIGHT)
        self.empty = None

    def pixels(self):
        """Returns the strip's pixels, one number for each."""
        return memoryview(self.display.x.pixels(*self.strip)).cast("I")

    def look_at_empty(self):
        """Remembers the strip without an item, once it no longer changes."""
        wait_until(self.is_at_rest, "the panel no longer changes")
        self.empty = self.pixels()

    def is_at_rest(self):
        before = self.pixels()
        time.sleep(0.4)
        return self.pixels() == before

    def item(self):
        """Returns the place of the item in the strip; None if there is no item."""
        pixels = self.pixels()
        if pixels == self.empty:
            return None
        places = [divmod(place, self.strip.width) for place in range(len(pixels))
                  if pixels[place] != self.empty[place]]
        left, right = min(x for _, x in places), max(x for _, x in places)
        top, bottom = min(y for y, _ in places), max(y for y, _ in places)
        return Rect(self.strip.x + left, self.strip.y + top, right - left + 1, bottom - top + 1)

    def wait_for_item(self):
        """Waits until the item shows; returns its place."""
        item = None

        def shows():
            nonlocal item
            item = self.item()
            return item is not None

        wait_until(shows, "the item shows in the panel")
        return item

    def wait_for_no_item(self):
        wait_until(lambda: self.item() is None, "the panel is empty")

    def colors(self):
        return self.display.colors(self.strip)

    def press(self):
        # A panel that has just started moves its items, and misses a press meanwhile.
        self.wait_for_item()
        wait_until(self.is_at_rest, "the panel no longer changes")
        item = self.wait_for_item()
        self.display.click(item.x + item.width // 2, item.y + item.height // 2)

    def open_menu(self):
        """Presses the item, and waits until its menu is open and complete."""
        before = self.display.popups()
        self.press()
        self.display.wait_until_at_rest(self.display.wait_for_popup(before))


class XfcePanel(Panel):
    """A panel that is the watcher for items on the session bus."""

    WATCHER = "org.kde.StatusNotifierWatcher"

    def __init__(self, session):
        super().__init__(session.display, 0)
        processes.require("xfce4-panel")
        self.session = session
        folder = os.path.join(session.folder, ".config/xfce4/xfconf/xfce-perchannel-xml")
        os.makedirs(folder, exist_ok=True)
        with open(f"{folder}/xfce4-panel.xml", "w", encoding="utf-8") as file:
            file.write(XFCE_CONFIGURATION.format(height=HEIGHT))
        self.settings = processes.start(glob.glob("/usr/lib/*/xfce4/xfconf/xfconfd")[:1],
                                        session.environment)
        wait_until(lambda: self.is_there("org.xfce.Xfconf"), "the panel's settings answer")
        self.start()

    def is_there(self, name):
        return ask(self.session.bus, "org.freedesktop.DBus", "/", "org.freedesktop.DBus",
                   "NameHasOwner", GLib.Variant("(s)", (name,)))[0]

    def start(self):
        self.process = processes.start(["xfce4-panel", "--disable-wm-check"],
                                       dict(self.session.environment, NO_AT_BRIDGE="1"))
        wait_until(lambda: self.is_there(self.WATCHER), "the panel watches for items")

    def stop(self):
        processes.end(self.process)
        wait_until(lambda: not self.is_there(self.WATCHER), "the panel is closed")

    def close(self):
        self.stop()
        processes.end(self.settings)


class Tint2(Panel):
    """A panel with a tray for windows only, without a watcher on the session bus."""

    def __init__(self, session):
        super().__init__(session.display, session.display.height - HEIGHT)
        processes.require("tint2")
        configuration = os.path.join(session.folder, "tint2rc")
        with open(configuration, "w", encoding="ascii") as file:
            file.write(TINT2_CONFIGURATION.format(height=HEIGHT))
        self.process = processes.start(["tint2", "-c", configuration], session.environment)
        wait_until(lambda: self.display.color_at(5, self.strip.bottom - 5) != (0, 0, 0),
                   "the panel shows")
        wait_until(lambda: self.display.x.has_owner("_NET_SYSTEM_TRAY_S0"), "the tray takes items")

    def close(self):
        processes.end(self.process)
