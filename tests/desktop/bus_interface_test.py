#!/usr/bin/python3
"""Checks what the program exports on the session bus, and misuses it.

Usage: bus_interface_test.py WUFFER FOLDER [unittest arguments]
"""

import os
import time
import xml.etree.ElementTree as ElementTree

from gi.repository import Gio, GLib

from support.case import DesktopTest, main
from support.waiting import PATIENCE, wait_until

NAME = "org.wuffer.Wuffer"
APPLICATION = ("/org/wuffer/Wuffer", "org.freedesktop.Application")
ITEM = ("/StatusNotifierItem", "org.kde.StatusNotifierItem")
MENU = ("/StatusNotifierItem/Menu", "com.canonical.dbusmenu")
# For panels that have read the path of the menu before there was one.
EARLY_MENU = ("/NO_DBUSMENU", "com.canonical.dbusmenu")
MUTED = '{"soundOff": 1, "growlDisabled": 1}'

# The interfaces that every D-Bus object has.
STANDARD = {"org.freedesktop.DBus.Introspectable", "org.freedesktop.DBus.Peer",
            "org.freedesktop.DBus.Properties"}

EXPORTED = {
    APPLICATION: {"method": {"Activate": "a{sv}", "ActivateAction": "sava{sv}",
                             "Open": "asa{sv}"}},
    ITEM: {
        "method": {"Activate": "ii", "ContextMenu": "ii", "ProvideXdgActivationToken": "s",
                   "Scroll": "is", "SecondaryActivate": "ii"},
        "property": {
            "AttentionIconName": "s", "AttentionIconPixmap": "a(iiay)", "AttentionMovieName": "s",
            "Category": "s", "IconName": "s", "IconPixmap": "a(iiay)", "IconThemePath": "s",
            "Id": "s", "ItemIsMenu": "b", "Menu": "o", "OverlayIconName": "s",
            "OverlayIconPixmap": "a(iiay)", "Status": "s", "Title": "s",
            "ToolTip": "(sa(iiay)ss)", "WindowId": "i", "XAyatanaLabel": "s",
            "XAyatanaLabelGuide": "s", "XAyatanaOrderingIndex": "u"},
        "signal": {"NewIcon": "", "NewMenu": "", "NewStatus": "s", "NewToolTip": "",
                   "XAyatanaNewLabel": "ss"},
    },
    MENU: {
        "method": {"AboutToShow": "i", "AboutToShowGroup": "ai", "Event": "isvu",
                   "EventGroup": "a(isvu)", "GetGroupProperties": "aias", "GetLayout": "iias",
                   "GetProperty": "is"},
        "property": {"IconThemePath": "as", "Status": "s", "TextDirection": "s", "Version": "u"},
        "signal": {"ItemsPropertiesUpdated": "a(ia{sv})a(ias)", "LayoutUpdated": "ui"},
    },
}
EXPORTED[EARLY_MENU] = EXPORTED[MENU]

HUGE = "x" * 10_000_000


class BusInterfaceTest(DesktopTest):
    """Two timers run during each test, and must still run at its end."""

    def setUp(self):
        super().setUp()
        # The sanitizers keep freed memory in quarantine, which would look like a leak.
        sanitizers = os.environ.get("ASAN_OPTIONS", "") + ":quarantine_size_mb=1"
        self.program = self.launch(settings=MUTED, environment={"ASAN_OPTIONS": sanitizers})
        for count in (1, 2):
            if count == 2:
                self.program.open_timer()
            self.program.wait_for_focus_in("Minutes")
            self.display.type("50")
            self.display.key("Return")
        wait_until(lambda: self.is_exported("/StatusNotifierItem"), "the item is exported")

    def tearDown(self):
        self.program.wait_for_count(2, "button", "Stop")
        self.check_answers(self.program)
        self.assertEqual(len(self.program.windows()), 2)
        self.quit(self.program)
        super().tearDown()

    # Calls

    def is_exported(self, path):
        return any(path == each for each, _ in self.exported())

    def call(self, where, method, arguments=None, timeout=1000 * PATIENCE):
        path, interface = where
        return self.session.bus.call_sync(NAME, path, interface, method, arguments, None,
                                          Gio.DBusCallFlags.NO_AUTO_START, timeout, None)

    def try_call(self, where, method, arguments=None):
        """Returns whether the call succeeded; a refused call must be answered with an error."""
        try:
            self.call(where, method, arguments)
            return True
        except GLib.Error as error:
            self.assertTrue(Gio.DBusError.is_remote_error(error), error.message)
            return False

    def send(self, where, method, arguments):
        """Sends a call and does not wait for the reply."""
        message = Gio.DBusMessage.new_method_call(NAME, *where, method)
        message.set_flags(Gio.DBusMessageFlags.NO_REPLY_EXPECTED)
        message.set_body(arguments)
        self.session.bus.send_message(message, Gio.DBusSendMessageFlags.NONE)

    def introspect(self, path):
        text, = self.call((path, "org.freedesktop.DBus.Introspectable"), "Introspect").unpack()
        return ElementTree.fromstring(text)

    def exported(self, path="/"):
        """Returns the exported members by path and interface."""
        found = {}
        node = self.introspect(path)
        for interface in node.findall("interface"):
            if interface.get("name") not in STANDARD:
                found[path, interface.get("name")] = {
                    kind: {each.get("name"): self.signature(each) for each in members}
                    for kind in ("method", "property", "signal")
                    if (members := interface.findall(kind))}
        for child in node.findall("node"):
            found.update(self.exported(f"{path.rstrip('/')}/{child.get('name')}"))
        return found

    def signature(self, member):
        if member.tag == "property":
            self.assertEqual(member.get("access"), "read")
            return member.get("type")
        return "".join(each.get("type") for each in member.findall("arg")
                       if each.get("direction") != "out" or member.tag == "signal")

    # Tests

    def test_nothing_more_is_exported_than_panels_and_desktops_need(self):
        self.maxDiff = None
        self.assertEqual(self.exported(), EXPORTED)

    def test_calls_of_wrong_types_are_refused(self):
        wrong = [None, GLib.Variant("(s)", ("x",)), GLib.Variant("(i)", (7,)),
                 GLib.Variant("(v)", (GLib.Variant("av", []),)),
                 GLib.Variant("(a{sv}a{sv})", ({}, {})), GLib.Variant("(aai)", ([[1], []],))]
        taken = set()
        for where, members in EXPORTED.items():
            for method, signature in members["method"].items():
                for arguments in wrong:
                    given = arguments.get_type_string() if arguments else "()"
                    if given != f"({signature})" and self.try_call(where, method, arguments):
                        taken.add((method, given))
            self.assertFalse(self.try_call(where, "deleteLater"))
            self.assertFalse(self.try_call(where, "NoSuchMethod"))
        self.assertEqual(taken, set())

    def test_properties_cannot_be_set(self):
        for (path, interface), members in EXPORTED.items():
            for name in members.get("property", {}):
                arguments = GLib.Variant("(ssv)", (interface, name, GLib.Variant("s", "x")))
                self.assertFalse(self.try_call((path, "org.freedesktop.DBus.Properties"), "Set",
                                               arguments), name)

    def test_unknown_items_of_the_menu_do_nothing(self):
        data = GLib.Variant("s", "")
        for item in (-2**31, -1, 999, 2**31 - 1):
            self.try_call(MENU, "GetLayout", GLib.Variant("(iias)", (item, item, ["label"])))
            self.try_call(MENU, "GetProperty", GLib.Variant("(is)", (item, "label")))
            self.try_call(MENU, "AboutToShow", GLib.Variant("(i)", (item,)))
            for event in ("clicked", "opened", "closed", "hovered", "nonsense", ""):
                self.try_call(MENU, "Event",
                              GLib.Variant("(isvu)", (item, event, data, 2**32 - 1)))
        unknown, = self.call(MENU, "EventGroup", GLib.Variant(
            "(a(isvu))", ([(item, "clicked", data, 0) for item in range(900, 10_900)],))).unpack()
        self.assertEqual(len(unknown), 10_000)

    def test_huge_texts_do_no_harm(self):
        for key in ("desktop-startup-id", "activation-token", "nonsense"):
            self.call(APPLICATION, "Activate",
                      GLib.Variant("(a{sv})", ({key: GLib.Variant("s", HUGE)},)))
        self.call(APPLICATION, "ActivateAction", GLib.Variant("(sava{sv})", (HUGE, [], {})))
        self.call(APPLICATION, "Open", GLib.Variant("(asa{sv})", ([HUGE], {})))
        self.call(ITEM, "ProvideXdgActivationToken", GLib.Variant("(s)", (HUGE,)))
        self.call(MENU, "GetProperty", GLib.Variant("(is)", (0, HUGE)))
        self.call(MENU, "Event",
                  GLib.Variant("(isvu)", (0, HUGE, GLib.Variant("s", HUGE), 0)))

    def test_values_of_other_types_than_expected_do_no_harm(self):
        nested = GLib.Variant("i", 1)
        for _ in range(30):
            nested = GLib.Variant("v", nested)
        for value in (nested, GLib.Variant("ay", [0, 255]), GLib.Variant("(ii)", (1, 2)),
                      GLib.Variant("a{sv}", {"x": nested})):
            self.call(APPLICATION, "Activate", GLib.Variant(
                "(a{sv})", ({"desktop-startup-id": value, "activation-token": value},)))
            self.call(APPLICATION, "ActivateAction",
                      GLib.Variant("(sava{sv})", ("activate", [value], {})))
            self.call(MENU, "Event", GLib.Variant("(isvu)", (0, "hovered", value, 0)))

    def flood(self, where, method, arguments, count=10_000):
        start = time.monotonic()
        for _ in range(count):
            self.send(where, method, arguments)
        # Calls are answered in order, so this reply comes after all the others.
        self.call(where, method, arguments, 3000 * PATIENCE)
        self.check_answers(self.program)
        self.report(f"{count} calls of {method} in {time.monotonic() - start:.1f} s")

    def memory(self):
        with open(f"/proc/{self.program.process.pid}/status", encoding="ascii") as status:
            return next(int(line.split()[1]) for line in status if line.startswith("RssAnon"))

    def test_ten_thousand_calls_do_no_harm(self):
        before = self.memory()
        self.flood(APPLICATION, "Activate", GLib.Variant("(a{sv})", ({},)))
        self.flood(APPLICATION, "ActivateAction",
                   GLib.Variant("(sava{sv})", ("no such action", [], {})))
        self.flood(ITEM, "Scroll", GLib.Variant("(is)", (1, "vertical")))
        self.flood(ITEM, "ProvideXdgActivationToken", GLib.Variant("(s)", ("x",)))
        self.flood(MENU, "GetLayout", GLib.Variant("(iias)", (0, -1, [])))
        self.flood(MENU, "AboutToShow", GLib.Variant("(i)", (0,)))
        for event in ("opened", "closed", "nonsense"):
            self.flood(MENU, "Event", GLib.Variant("(isvu)", (0, event, GLib.Variant("s", ""), 0)))
        more = self.memory() - before
        self.report(f"{more} KiB more")
        self.assertLess(more, 20_000)


if __name__ == "__main__":
    main()
