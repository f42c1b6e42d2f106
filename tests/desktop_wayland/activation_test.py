#!/usr/bin/python3
"""Brings windows to the front in a Wayland session, where that takes a token of the compositor.

Usage: activation_test.py WUFFER FOLDER [unittest arguments]
"""

from wayland_case import WaylandTest, main
from support.session import ask
from support.waiting import wait_until

from gi.repository import Gio, GLib

PROGRAM = ("org.wuffer.Wuffer", "/org/wuffer/Wuffer", "org.freedesktop.Application")
SERVICE = "org.freedesktop.Notifications"
PATH = "/org/freedesktop/Notifications"
INTERFACE = """<node><interface name="org.freedesktop.Notifications">
  <method name="GetServerInformation">
    <arg direction="out" type="s"/><arg direction="out" type="s"/>
    <arg direction="out" type="s"/><arg direction="out" type="s"/>
  </method>
  <method name="GetCapabilities"><arg direction="out" type="as"/></method>
  <method name="Notify">
    <arg direction="in" type="s"/><arg direction="in" type="u"/><arg direction="in" type="s"/>
    <arg direction="in" type="s"/><arg direction="in" type="s"/><arg direction="in" type="as"/>
    <arg direction="in" type="a{sv}"/><arg direction="in" type="i"/>
    <arg direction="out" type="u"/>
  </method>
  <method name="CloseNotification"><arg direction="in" type="u"/></method>
</interface></node>"""
ANSWERS = {
    "GetServerInformation": GLib.Variant("(ssss)", ("service", "test", "1", "1.2")),
    "GetCapabilities": GLib.Variant("(as)", (["actions", "body"],)),
    "Notify": GLib.Variant("(u)", (1,)),
    "CloseNotification": None,
}


class TokenService:
    """A notification service that passes on tokens, as those of the large desktops do."""

    def __init__(self, bus):
        self.bus = bus
        self.caller = None
        interface = Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0]
        self.object = bus.register_object(PATH, interface, self.called, None, None)
        self.name("RequestName", GLib.Variant("(su)", (SERVICE, 0)))

    def name(self, method, arguments):
        ask(self.bus, "org.freedesktop.DBus", "/", "org.freedesktop.DBus", method, arguments)

    def called(self, _bus, caller, _path, _interface, method, _arguments, invocation):
        if method == "Notify":
            self.caller = caller
        invocation.return_value(ANSWERS[method])

    def is_shown(self):
        while GLib.MainContext.default().iteration(False):
            pass
        return self.caller is not None

    def click(self, token):
        for signal, text in (("ActivationToken", token), ("ActionInvoked", "default")):
            self.bus.emit_signal(self.caller, PATH, SERVICE, signal,
                                 GLib.Variant("(us)", (1, text)))

    def close(self):
        self.name("ReleaseName", GLib.Variant("(s)", (SERVICE,)))
        self.bus.unregister_object(self.object)


class ActivationTest(WaylandTest):
    def setUp(self):
        super().setUp()
        # A muted alarm lasts, and with it its notification.
        self.program = self.launch(settings='{"soundOff": 1}')
        self.window, = self.program.windows()
        self.program.wait_for_focus_in("Minutes")

    def activate(self, token):
        """Starts the program a second time, which the running one answers."""
        data = {"activation-token": GLib.Variant("s", token)}
        ask(self.session.bus, *PROGRAM, "Activate", GLib.Variant("(a{sv})", (data,)))

    def test_a_second_launch_brings_the_window_to_the_front(self):
        stranger = self.launch_stranger()
        self.activate("not a token")
        # The compositor has seen the request, because it has answered a later one.
        self.program.catch_up()
        self.display.input.round_trip()
        self.assertEqual(self.display.active_window(), stranger)
        self.activate(self.display.input.activation_token())
        self.display.wait_until_active(self.window)
        self.quit(self.program)

    def test_a_click_on_a_notification_brings_the_window_to_the_front(self):
        self.session.end_notifications()
        self.addCleanup(self.session.start_notifications)
        service = TokenService(self.session.bus)
        self.addCleanup(service.close)
        self.program.start_countdown(1)
        self.launch_stranger()
        wait_until(service.is_shown, "the notification shows")
        service.click(self.display.input.activation_token())
        self.display.wait_until_active(self.window)
        self.quit(self.program)


if __name__ == "__main__":
    main()
