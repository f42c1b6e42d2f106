"""A separate desktop session for a test: buses, notifications, sound, and displays."""

import os
import re
import shutil
import tempfile
import time

from gi.repository import Gio, GLib

from support import processes
from support.display import Display
from support.sound_server import Server
from support.waiting import PATIENCE, wait_until

# The bus starts no services on demand, except for those in a folder that the test names: otherwise
# tests could not run without a service.
BUS_CONFIGURATION = """<busconfig>
  <type>session</type>
  <listen>unix:path={folder}/session-bus</listen>
  <auth>EXTERNAL</auth>
  {services}
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""

# By default, notifications stay until the test removes them, so that it can count them.
NOTIFICATION_CONFIGURATION = """[global]
    idle_threshold = 0
    stack_duplicates = {merges}
    history_length = 50
    notification_limit = 20
    dmenu = {chooser}
[urgency_low]
    timeout = {seconds}
[urgency_normal]
    timeout = {seconds}
[urgency_critical]
    timeout = {seconds}
"""


# Replaces the menu from which the user picks a button: stores the offered buttons, and picks the
# one that the test has named.
CHOOSER = """#!/bin/sh
cat > {offered}.new
mv {offered}.new {offered}
exec grep --max-count=1 --fixed-strings "#$(cat {wanted}) (" {offered}
"""


def connect(address):
    """Connects to the bus at this address; the test goes on if the bus dies."""
    flags = (Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
             | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)
    bus = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)
    bus.set_exit_on_close(False)
    return bus


def ask(bus, name, path, interface, method, arguments=None):
    return bus.call_sync(name, path, interface, method, arguments, None,
                         Gio.DBusCallFlags.NO_AUTO_START, 1000 * PATIENCE, None).unpack()


class Notifications:
    """A notification daemon that shows each notification for some seconds; 0 means for ever."""

    NAME = "org.freedesktop.Notifications"
    PATH = "/org/freedesktop/Notifications"

    def __init__(self, bus, folder, environment, seconds, merges):
        processes.require("dunst")
        self.bus = bus
        self.taken = set()
        self.wanted = os.path.join(folder, "wanted-button")
        self.offered = os.path.join(folder, "offered-buttons")
        configuration = os.path.join(folder, "dunstrc")
        with open(configuration, "w", encoding="ascii") as file:
            file.write(NOTIFICATION_CONFIGURATION.format(chooser=self.add_chooser(folder),
                                                         seconds=seconds,
                                                         merges=str(merges).lower()))
        self.process = processes.start(["dunst", "-conf", configuration], environment)
        wait_until(lambda: ask(bus, "org.freedesktop.DBus", "/", "org.freedesktop.DBus",
                               "NameHasOwner", GLib.Variant("(s)", (self.NAME,)))[0],
                   "the notification daemon answers")

    def add_chooser(self, folder):
        path = os.path.join(folder, "choose-button")
        with open(path, "w", encoding="ascii") as file:
            file.write(CHOOSER.format(wanted=self.wanted, offered=self.offered))
        os.chmod(path, 0o700)
        return path

    def click(self):
        """Clicks on the latest notification."""
        self.ask_for("NotificationAction", GLib.Variant("(u)", (0,)))

    def press(self, button):
        """Presses the button with this text in one of the shown notifications."""
        with open(self.wanted, "w", encoding="ascii") as file:
            file.write(button)
        if os.path.exists(self.offered):
            os.remove(self.offered)

        def is_offered():
            # The daemon opens no menu until it has noticed that the last one is closed.
            self.ask_for("ContextMenuCall")
            time.sleep(0.3)
            return os.path.exists(self.offered)

        wait_until(is_offered, "the buttons are offered")

    def buttons(self):
        """Returns the button texts of all shown notifications, without duplicates, sorted."""
        self.press("none of them")
        with open(self.offered, encoding="utf-8") as file:
            return sorted(set(re.findall(r"^#(\w+) \(", file.read(), re.MULTILINE)))

    def shown(self):
        return ask(self.bus, self.NAME, self.PATH, "org.freedesktop.DBus.Properties", "Get",
                   GLib.Variant("(ss)", ("org.dunstproject.cmd0", "displayedLength")))[0]

    def take_all(self):
        """Removes the shown notifications; returns them, the latest first."""
        self.ask_for("NotificationCloseAll")
        history, = self.ask_for("NotificationListHistory")
        taken = [item for item in history if item["id"] not in self.taken]
        self.taken.update(item["id"] for item in taken)
        return taken

    def ask_for(self, what, arguments=None):
        return ask(self.bus, self.NAME, self.PATH, "org.dunstproject.cmd0", what, arguments)

    def close(self):
        processes.end(self.process)


class Session:
    """The services of a desktop, for the program under test to run in."""

    def __init__(self, size=(1280, 800), service_folder=None):
        """With a folder of service files, the bus starts these services on demand."""
        processes.require("dbus-daemon", "setpriv", "pulseaudio", "pactl", "parec",
                          "/usr/libexec/at-spi-bus-launcher")
        self.folder = tempfile.mkdtemp(prefix="desktop-")
        os.chmod(self.folder, 0o700)
        self.service_folder = service_folder
        self.sound = None
        self.closers = []
        try:
            self.start(size)
        except BaseException:
            self.close()
            raise

    def start(self, size):
        self.environment = {
            "PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8", "TZ": "UTC", "HOME": self.folder,
            "XDG_RUNTIME_DIR": self.folder, "XDG_CACHE_HOME": f"{self.folder}/cache",
            "DBUS_SESSION_BUS_ADDRESS": f"unix:path={self.folder}/session-bus",
        }
        self.environment.update((name, value) for name, value in os.environ.items()
                                if name.endswith("SAN_OPTIONS"))
        self.start_bus()
        self.display = self.add_display(size)
        self.environment.update(self.display.address)
        self.start_accessibility()
        self.notifications = None
        self.closers.append(self.end_notifications)
        self.start_notifications()

    def start_bus(self):
        services = f"<servicedir>{self.service_folder}</servicedir>" if self.service_folder else ""
        configuration = os.path.join(self.folder, "session.conf")
        with open(configuration, "w", encoding="ascii") as file:
            file.write(BUS_CONFIGURATION.format(folder=self.folder, services=services))
        reader, writer = os.pipe()
        daemon = processes.start(
            ["dbus-daemon", f"--config-file={configuration}", "--nofork",
             f"--print-address={writer}"], self.environment, pass_fds=[writer])
        self.bus_daemon = daemon
        self.closers.append(lambda: processes.end(daemon))
        os.close(writer)
        with os.fdopen(reader, encoding="ascii") as pipe:
            address = pipe.readline().strip()
        if not address:
            raise RuntimeError("dbus-daemon did not start")
        self.bus = connect(address)

    def start_accessibility(self):
        launcher = processes.start(
            ["/usr/libexec/at-spi-bus-launcher", "--launch-immediately"], self.environment)
        self.closers.append(lambda: processes.end(launcher))
        address = None

        def answers():
            nonlocal address
            try:
                address = ask(self.bus, "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus",
                              "GetAddress")[0]
            except GLib.Error:
                return False
            return True

        wait_until(answers, "the accessibility bus answers")
        self.accessibility_bus = connect(address)
        self.accessibility_bus_id = ask(
            self.accessibility_bus, "org.freedesktop.DBus", "/", "org.freedesktop.DBus",
            "GetConnectionUnixProcessID", GLib.Variant("(s)", ("org.freedesktop.DBus",)))

    def buses(self):
        """Returns the process ids of the session bus and the accessibility bus."""
        return [self.bus_daemon.pid, *self.accessibility_bus_id]

    def owns(self, name):
        """Whether a process owns the name on the session bus."""
        return ask(self.bus, "org.freedesktop.DBus", "/", "org.freedesktop.DBus", "NameHasOwner",
                   GLib.Variant("(s)", (name,)))[0]

    def start_notifications(self, seconds=0, merges=False):
        """A daemon that "merges" shows equal notifications as one, as it does by default."""
        self.notifications = Notifications(self.bus, self.folder, self.environment, seconds, merges)

    def end_notifications(self):
        if self.notifications:
            self.notifications.close()
        self.notifications = None

    def start_sound(self):
        """Starts a sound server; the program finds it in its run-time folder."""
        self.sound = Server(self.folder)
        self.closers.append(self.sound.close)
        self.environment.update((name, self.sound.environment[name])
                                for name in ("ALSA_CONFIG_PATH", "PULSE_CLIENTCONFIG"))

    def make_folder(self, name):
        path = os.path.join(self.folder, name)
        os.mkdir(path, mode=0o700)
        return path

    def add_display(self, size):
        display = Display(self.environment, size)
        self.closers.append(display.close)
        display.start_manager()
        return display

    def close(self):
        while self.closers:
            self.closers.pop()()
        processes.wait_until_ended(self.folder)
        shutil.rmtree(self.folder)
