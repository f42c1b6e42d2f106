#!/usr/bin/python3
"""Judges what the program tells screen readers, from the events on the accessibility bus.

Usage: listening_test.py WUFFER FOLDER [unittest arguments]
"""

import time

from gi.repository import Gio, GLib

from support.accessibility import ROLES, Atspi, Control
from support.case import DesktopTest, main
from support.waiting import PATIENCE, wait_until

# A muted alarm that is to do nothing rings until the user stops it.
MUTED = '{"soundOff": 1}'
TEA = '{"soundOff": 1, "defaultWufferSettings": {"title": "Tea"}}'
EVENTS = ("object:state-changed:showing", "object:property-change:accessible-name",
          "object:text-changed:insert", "object:state-changed:focused")


class Listener:
    """Hears the events of one program, as a screen reader does."""

    def __init__(self, program):
        self.program = program.application
        self.shown = []
        self.said = []
        self.inserted = []
        self.focused = []
        self.renamed = 0
        self.register("RegisterEvent")
        self.subscription = self.program.bus.signal_subscribe(
            self.program.name, "org.a11y.atspi.Event.Object", None, None, None,
            Gio.DBusSignalFlags.NONE, self.hear)

    def register(self, method):
        for event in EVENTS:
            self.program.bus.call_sync(
                "org.a11y.atspi.Registry", "/org/a11y/atspi/registry", "org.a11y.atspi.Registry",
                method, GLib.Variant("(s)", (event,)) if method == "DeregisterEvent" else
                GLib.Variant("(sass)", (event, [], "")), None, Gio.DBusCallFlags.NONE,
                1000 * PATIENCE, None)

    def hear(self, _bus, _sender, path, _interface, signal, arguments):
        kind, begins, *_ = arguments.unpack()
        if signal == "PropertyChange" and kind == "accessible-name":
            self.renamed += 1
        if signal == "StateChanged" and kind == "showing" and begins:
            self.shown.append(path)
        if signal == "StateChanged" and kind == "focused" and begins:
            self.focused.append(path)
        if signal == "TextChanged" and kind.startswith("insert"):
            self.inserted.append(arguments.unpack()[3])

    def receive(self):
        while GLib.MainContext.default().iteration(False):
            pass

    def texts(self):
        """Returns the names of the notifications that have come into view."""
        self.receive()
        controls = [Control(self.program, path) for path in self.shown]
        self.shown = []
        self.program.learn_roles(controls)
        self.program.describe(controls)
        self.said += [control.name for control in controls
                      if control.role == int(Atspi.Role.NOTIFICATION)]
        return self.said

    def insertions(self):
        """Returns the texts that controls have read aloud, beside those typed into fields."""
        self.receive()
        return self.inserted

    def focus(self):
        """Returns the role and name of what the program last reported to have the focus."""
        self.receive()
        if not self.focused:
            return None
        control = Control(self.program, self.focused[-1])
        self.program.learn_roles([control])
        self.program.describe([control])
        return control.role, control.name

    def close(self):
        self.program.bus.signal_unsubscribe(self.subscription)
        self.register("DeregisterEvent")


class ListeningTest(DesktopTest):
    listener = None

    def tearDown(self):
        self.stop_listening()
        super().tearDown()

    def listen(self, program):
        self.listener = Listener(program)
        # The program learns from the registry what to send before it deals with later calls.
        program.answers()
        return self.listener

    def stop_listening(self):
        listener, self.listener = self.listener, None
        if listener:
            listener.close()
            listener.program.windows()

    def quit(self, program):
        # With a listener, Qt asks the registry about each key, and would end without freeing the
        # keys that quit.
        self.stop_listening()
        return super().quit(program)

    def wait_for_texts(self, listener, texts):
        self.assert_soon(listener.texts, texts)

    def test_an_alarm_is_announced_while_another_window_has_the_focus(self):
        program = self.launch(settings=TEA)
        listener = self.listen(program)
        program.start_countdown(5)
        program.open_timer()
        self.wait_for_texts(listener, ["Tea: Wuff!"])
        self.quit(program)

    def test_each_alarm_is_announced_once_when_it_begins_and_once_when_it_ends(self):
        program = self.launch(settings=TEA)
        listener = self.listen(program)
        program.start_countdown(2)
        program.wait_for_button("Reset")
        self.wait_for_texts(listener, ["Tea: Wuff!"])
        self.display.key("Return")
        program.wait_for_button("Start")
        self.wait_for_texts(listener, ["Tea: Wuff!", "Tea: Alarm ended"])
        # The announcement leaves the view without a further word.
        time.sleep(1)
        self.assertEqual(len(listener.texts()), 2)
        self.quit(program)

    def test_a_running_display_reports_two_changes_a_second(self):
        program = self.launch(settings=MUTED)
        program.start_countdown(600)
        program.wait_for_button("Stop")
        listener = self.listen(program)
        listener.texts()
        before, start = listener.renamed, time.monotonic()
        waits = self.waits(program)
        time.sleep(3)
        program.answers()
        listener.texts()
        passed = time.monotonic() - start
        # The time and the elapsed time, and not the milliseconds.
        changes = listener.renamed - before
        self.report(f"{changes} changes in {passed:.2f} s")
        self.assertGreaterEqual(changes, 2 * (passed - waits.seconds()) - 2)
        self.assertLessEqual(changes, 2 * passed + 2)
        self.assertEqual(listener.texts(), [])
        self.quit(program)

    def test_the_speaker_and_the_button_of_the_drawer_say_their_states(self):
        program = self.launch()
        states = Atspi.StateType
        self.assertFalse(program.find("button", "Mute all timers").has_state(states.CHECKED))
        self.press(program.find("button", "Mute all timers"))
        speaker = program.find("button", "Let all timers be heard again", "Sound is off")
        self.assertTrue(speaker.has_state(states.CHECKED))
        more = program.find("button", "More Options")
        self.assertTrue(more.has_state(states.EXPANDABLE))
        self.assertFalse(more.has_state(states.EXPANDED))
        self.press(more)
        program.wait_for_button("Hide Options")
        self.assertTrue(program.find("button", "Hide Options").has_state(states.EXPANDED))
        self.quit(program)

    def test_the_choice_of_a_combo_box_is_read_aloud(self):
        program = self.launch(settings=MUTED)
        self.press(program.find("button", "More Options"))
        listener = self.listen(program)
        self.tab_to(listener, "choice", "Do Nothing")
        self.display.key("Down")
        self.wait_for_insertions(listener, ["Loop this Wuffer"])
        choice = program.find("choice", "Loop this Wuffer")
        self.assertEqual(choice.text(), "Loop this Wuffer")
        # The open list begins at the chosen entry, and says no more.
        self.display.key("alt+Down")
        wait_until(lambda: listener.focus() == (int(Atspi.Role.LIST_ITEM), "Loop this Wuffer"),
                   "the entry has the focus")
        self.display.key("Escape")
        wait_until(lambda: listener.focus() == (int(Atspi.Role.COMBO_BOX), "Loop this Wuffer"),
                   "the box has the focus")
        self.assertEqual(listener.insertions(), ["Loop this Wuffer"])
        self.quit(program)

    def test_the_buttons_read_their_new_states_aloud(self):
        program = self.launch(settings=MUTED)
        listener = self.listen(program)
        self.tab_to(listener, "button", "Let all timers be heard again")
        self.display.key("space")
        self.wait_for_insertions(listener, ["Sound is on"])
        self.tab_to(listener, "button", "More Options")
        self.display.key("space")
        self.wait_for_insertions(listener, ["Sound is on", "Hide Options"])
        self.quit(program)

    def test_a_saved_preset_is_announced(self):
        program = self.launch(settings=TEA)
        listener = self.listen(program)
        self.display.key("ctrl+3")
        self.wait_for_texts(listener, ["Tea: Saved to Preset 3"])
        self.quit(program)

    def wait_for_insertions(self, listener, texts):
        wait_until(lambda: listener.insertions() == texts, f"controls say {texts}")

    def tab_to(self, listener, role, name):
        """Presses Tab until the control has the focus."""
        for _ in range(20):
            before = len(listener.focused)
            self.display.key("Tab")
            wait_until(lambda: listener.receive() or len(listener.focused) > before,
                       "Tab moves the focus")
            if listener.focus() == (int(ROLES[role]), name):
                return
        self.fail(f"Tab does not reach {name}")

    def press(self, control):
        """Presses a button as an assistive program does."""
        self.assertEqual(control.ask("org.a11y.atspi.Action", "DoAction",
                                     GLib.Variant("(i)", (0,))), (True,))


if __name__ == "__main__":
    main()
