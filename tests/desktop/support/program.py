"""Drives the program under test from outside, and reads its state."""

import os
import subprocess
import tempfile
import time

from support import accessibility, processes
from support.accessibility import Atspi
from support.processor import Waits
from support.waiting import wait_until


class Program:
    """One run of the program, with its own folders for the settings."""

    executable = ""

    def __init__(self, session, display=None, environment=None, settings=None, accessible=True,
                 arguments=(), through=(), limits=None):
        """The command "through" executes the program; "limits" is called in its process."""
        self.session = session
        self.command = [*through, self.executable, *arguments]
        self.limits = limits
        self.display = display or session.display
        self.home = tempfile.mkdtemp(prefix="home-", dir=session.folder)
        self.settings_path = os.path.join(self.home, "config", "wuffer", "wuffer.json")
        if settings is not None:
            os.makedirs(os.path.dirname(self.settings_path))
            with open(self.settings_path, "w", encoding="utf-8") as file:
                file.write(settings)
        self.environment = dict(session.environment, HOME=self.home,
                                XDG_CONFIG_HOME=f"{self.home}/config",
                                XDG_DATA_HOME=f"{self.home}/data",
                                **self.display.address)
        if accessible:
            self.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        for name, value in (environment or {}).items():
            if value is None:
                self.environment.pop(name, None)
            else:
                self.environment[name] = value
        self.accessible = accessible
        self.log = os.path.join(self.home, "log")
        self.process = None
        self.application = None

    def start(self):
        self.spawn()
        if self.accessible:
            wait_until(self.find_application, "the program shows in the accessibility tree")
        wait_until(self.has_focus, "the program has a window with the focus")

    def spawn(self):
        with open(self.log, "a", encoding="utf-8") as log:
            # Started directly, so that this process id is that of the program.
            self.process = subprocess.Popen(self.command, env=self.environment,
                                            preexec_fn=self.limits, restore_signals=False,
                                            stdin=subprocess.DEVNULL, stdout=log, stderr=log)

    def find_application(self):
        self.application = accessibility.find_program(self.session.accessibility_bus,
                                                      self.process.pid)
        return self.application is not None

    def has_focus(self):
        window = self.display.active_window()
        return window in self.windows() and self.display.receives_keys(window)

    # Windows

    def windows(self):
        return self.display.windows(self.process.pid)

    def wait_for_windows(self, count):
        wait_until(lambda: len(self.windows()) == count, f"there are {count} windows")
        return self.windows()

    def open(self, *keys):
        """Presses keys that open a window; returns it when it is active."""
        before = self.windows()
        self.display.key(*keys)
        return self.wait_for_new_window(before)

    def wait_for_new_window(self, before):
        """Waits until there is one window more than before, and it is active; returns it."""
        *_, window = self.wait_for_windows(len(before) + 1)
        self.display.wait_until_active(window)
        return window

    def open_timer(self):
        """Opens another timer; returns its window when its minutes field has the focus."""
        window = self.open("ctrl+n")
        if self.accessible:
            self.wait_for_focus_in("Minutes")
        return window

    def close_window(self, key="ctrl+w"):
        """Closes the active window with a key, and waits until another one is active."""
        closed, count = self.display.active_window(), len(self.windows())
        self.display.key(key)
        self.wait_for_windows(count - 1)
        wait_until(lambda: self.display.active_window() != closed and self.has_focus(),
                   "another window is active")

    # Controls

    def all(self, role, name=None, description=None, within=None):
        """Returns all visible controls with this role, name and description."""
        return [control for control in self.application.controls(role, within)
                if name in (None, control.name) and description in (None, control.description)]

    def showing(self, role, name=None, description=None, within=None):
        return [control for control in self.all(role, name, description, within)
                if control.has_state(Atspi.StateType.SHOWING)]

    def find(self, role, name=None, description=None, within=None):
        """Waits until exactly one such control shows; returns it."""
        found = []

        def is_only_one():
            found[:] = self.showing(role, name, description, within)
            return len(found) == 1

        wait_until(is_only_one, f"there is one {role} {name or ''} {description or ''}")
        return found[0]

    def has(self, role, name=None, description=None, within=None):
        """Whether exactly one such control shows now."""
        return len(self.showing(role, name, description, within)) == 1

    def wait_for_count(self, count, role, name=None, description=None):
        wait_until(lambda: len(self.all(role, name, description)) == count,
                   f"there are {count} of {role} {name or ''} {description or ''}")

    def shown(self, what, within=None):
        """The text of one of the labels of the display now; None while it is not there alone, as
        when the display moves to another window."""
        labels = self.showing("display", description=what, within=within)
        return labels[0].name if len(labels) == 1 else None

    def text(self, field, within=None):
        """The text of a field now; None while it is not there alone."""
        fields = self.showing("field", field, within=within)
        return self.text_of(fields[0]) if len(fields) == 1 else None

    def text_of(self, field):
        return field.text()

    def place(self, control):
        """Returns the rectangle of a control on the screen."""
        return control.place()

    def middle(self, role, name):
        """Waits for a control; returns the point in its middle."""
        place = self.place(self.find(role, name))
        return place.x + place.width // 2, place.y + place.height // 2

    def click(self, role, name):
        self.display.click(*self.middle(role, name))

    def click_field(self, name):
        """Gives a field the focus with the mouse."""
        self.click("field", name)
        self.wait_for_focus_in(name)

    def wait_for_text(self, what, *texts):
        """Waits until a label of the display shows one of these texts."""
        wait_until(lambda: self.shown(what) in texts, f"{what} is {' or '.join(texts)}")

    def wait_for_field(self, field, text):
        wait_until(lambda: self.text(field) == text, f"the field {field} holds “{text}”")

    def wait_for_button(self, name):
        self.find("button", name)

    def focused_field(self):
        focused = [field.name for field in self.all("field")
                   if field.has_state(Atspi.StateType.FOCUSED)]
        return focused[0] if len(focused) == 1 else focused

    def wait_for_focus_in(self, field):
        wait_until(lambda: self.focused_field() == field, f"the focus is in {field}")

    def answers(self):
        """Returns how many seconds the program takes to answer; fails if it hangs."""
        start = time.monotonic()
        if self.application.windows() < 1:
            raise AssertionError("the program has no window")
        return time.monotonic() - start

    def catch_up(self):
        """Waits until the program has dealt with all keys and clicks up to now."""
        self.display.wait_for_answer(self.windows()[0])
        if self.accessible:
            self.answers()

    # Verbs

    def type_seconds(self, seconds):
        """Types a duration into a new timer, whose minutes field has the focus."""
        self.display.key("Tab")
        self.display.type(str(seconds))

    def start_countdown(self, seconds):
        """Starts a countdown with the keyboard; returns the times before and after the press."""
        self.type_seconds(seconds)
        before = time.monotonic()
        self.display.key("Return")
        return before, time.monotonic()

    def pick(self, mnemonic, *keys):
        """Opens the list of a combo box and selects an entry with the keyboard."""
        self.display.key(mnemonic)
        self.display.open_popup("Down")
        self.display.key(*keys, "Return")

    def choose_sound_file(self, mnemonic):
        """Opens the dialog in which the user chooses a sound file; returns its window."""
        before = self.windows()
        self.pick(mnemonic, "End", "Up")
        return self.wait_for_new_window(before)

    # The end

    def wait_for_home(self):
        """Waits until the home window has replaced the last window; returns it."""
        self.wait_for_button("New Timer")
        home, = self.wait_for_windows(1)
        self.display.wait_until_active(home)
        return home

    def quit(self):
        """Quits with the keyboard; returns the seconds that took and the exit status."""
        # For a moment after a window has closed, no window has the focus.
        wait_until(self.has_focus, "a window of the program is active")
        return self.end_with("ctrl+q")

    def close_all(self):
        """Closes the only timer and then the home window; returns the same as quit()."""
        self.display.key("ctrl+w")
        self.wait_for_home()
        return self.end_with("ctrl+w")

    def end_with(self, key):
        """Presses a key that ends the program. Returns the seconds that it takes, without those in
        which it waits for the computer, and the exit status."""
        self.display.wait_for_focus()
        waits = Waits(os.getpid(), self.process.pid, self.display.server.pid)
        waited = 0
        self.display.key(key)
        start = time.monotonic()

        def has_ended():
            nonlocal waited
            waited = max(waited, waits.seconds())
            return self.process.poll() is not None

        wait_until(has_ended, "the program ends", pause=0.005)
        return time.monotonic() - start - waited, self.process.returncode

    def kill(self):
        self.process.kill()
        self.process.wait()

    def written(self):
        """Returns the output of the program so far, which should be empty."""
        with open(self.log, encoding="utf-8") as file:
            return file.read()

    def close(self):
        if self.process and self.process.poll() is None:
            self.kill()

    def wakeups(self):
        return processes.wakeups(self.process.pid)
