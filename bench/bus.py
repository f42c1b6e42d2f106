"""How many messages the program sends over the session bus while a panel shows its status item."""

import subprocess
import tempfile
import threading
import time

from gi.repository import Gio, GLib

from stage import Stage

NAME = "org.kde.StatusNotifierWatcher"
INTERFACE = f"""<node><interface name="{NAME}">
<method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
<property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
</interface></node>"""


class Panel:
    """Takes status items, and asks nothing about them."""

    def __init__(self):
        self.items = []
        self._loop = GLib.MainLoop()
        connection = Gio.bus_get_sync(Gio.BusType.SESSION)
        connection.register_object("/StatusNotifierWatcher",
                                   Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0],
                                   self._called, lambda *_: GLib.Variant("b", True), None)
        self._name = Gio.bus_own_name_on_connection(connection, NAME, 0, None, None)
        threading.Thread(target=self._loop.run, daemon=True).start()

    def _called(self, _bus, sender, _path, _interface, _method, _arguments, call):
        self.items.append(sender)
        call.return_value(None)

    def close(self):
        Gio.bus_unown_name(self._name)
        self._loop.quit()


class Monitor:
    """Sees every message on the bus."""

    def __init__(self):
        self._file = tempfile.TemporaryFile("w+")
        self._process = subprocess.Popen(["dbus-monitor", "--session", "--profile"],
                                         stdout=self._file)
        time.sleep(0.5)

    def messages_from(self, sender):
        self._file.seek(0)
        return sum(1 for line in self._file if sender in line.split())

    def close(self):
        self._process.terminate()
        self._process.wait()
        self._file.close()


def messages_a_second(panel, monitor, orders, **settings):
    panel.items.clear()
    with Stage(**settings) as stage:
        stage.tell(*orders)
        time.sleep(1)
        if not panel.items:
            raise TimeoutError("the status item does not come")
        sender = panel.items[0]
        before, start = monitor.messages_from(sender), time.monotonic()
        time.sleep(5)
        return (monitor.messages_from(sender) - before) / (time.monotonic() - start)


def bus():
    panel, monitor = Panel(), Monitor()
    try:
        yield "messages a second, nothing runs", 0, messages_a_second(panel, monitor, ["open 9"])
        for count in 1, 10, 100:
            opened = [f"open {count - 1}", "start"]
            # Title, tooltip and label change once a second, the icon now and then.
            for how, orders, settings in (("", opened, {}),
                                          (", minimised", [*opened, "minimise"], {}),
                                          (", energy saver", opened, {"energySaverMode": 1})):
                yield f"messages a second, {count} running{how}", 4, \
                    messages_a_second(panel, monitor, orders, **settings)
    finally:
        monitor.close()
        panel.close()
