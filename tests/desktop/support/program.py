"""Drives the program under test from outside, and reads its state."""

import os
import subprocess
import tempfile
import time

from support import accessibility, processes
from support.accessibility import Atspi
from support.processor import Waits
from support.waiting import wait_until

# Seconds between two looks at the program, because each look makes it work.
PAUSE = 0.02


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
                                DISPLAY=self.display.environment["DISPLAY"])
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
            wait_until(self.find_application, 10, "the program shows in the accessibility tree")
        wait_until(self.has_focus, 10, "the program has a window with the focus")

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
        return self.display.active_window() in self.windows()

    # Windows

    def windows(self):
        return self.display.windows(self.process.pid)

    def wait_for_windows(self, count):
        wait_until(lambda: len(self.windows()) == count, 5, f"there are {count} windows", PAUSE)
        return self.windows()

    # Controls

    def all(self, role, name=None, description=None, within=None):
        """Returns all visible controls with this role, name and description."""
        return [control for control in self.application.controls(role, within)
                if name in (None, control.name) and description in (None, control.description)]

    def find(self, role, name=None, description=None, within=None):
        found = [control for control in self.all(role, name, description, within)
                 if control.has_state(Atspi.StateType.SHOWING)]
        if len(found) != 1:
            raise AssertionError(
                f"{len(found)} of {role} {name or ''} {description or ''} instead of one")
        return found[0]

    def has(self, role, name=None, description=None, within=None):
        try:
            self.find(role, name, description, within)
        except AssertionError:
            return False
        return True

    def shown(self, what, within=None):
        """The text of one of the labels of the display."""
        try:
            return self.find("display", description=what, within=within).name
        except AssertionError:
            # The display is just moving to another window.
            return None

    def text(self, field, within=None):
        return self.text_of(self.find("field", field, within=within))

    def text_of(self, field):
        return field.text()

    def place(self, control):
        """Returns the rectangle of a control on the screen."""
        return control.place()

    def wait_for_text(self, what, text, seconds=5):
        wait_until(lambda: self.shown(what) == text, seconds, f"{what} is “{text}”", PAUSE)

    def wait_for_button(self, name, seconds=5):
        wait_until(lambda: self.has("button", name), seconds,
                   f"there is a button “{name}”", PAUSE)

    def focused_field(self):
        focused = [field.name for field in self.all("field")
                   if field.has_state(Atspi.StateType.FOCUSED)]
        return focused[0] if len(focused) == 1 else focused

    def wait_for_focus_in(self, field):
        wait_until(lambda: self.focused_field() == field, 5, f"the focus is in {field}", PAUSE)

    def answers(self):
        """Returns how many seconds the program takes to answer; fails if it hangs."""
        start = time.monotonic()
        if self.application.windows() < 1:
            raise AssertionError("the program has no window")
        return time.monotonic() - start

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

    # The end

    def wait_for_home(self):
        """Waits until the home window has replaced the last window; returns it."""
        self.wait_for_button("New Timer")
        home, = self.wait_for_windows(1)
        wait_until(lambda: self.display.active_window() == home, 5, "the home window is active")
        return home

    def quit(self):
        """Quits with the keyboard; returns the seconds that took and the exit status."""
        # For a moment after a window has closed, no window has the focus.
        wait_until(self.has_focus, 5, "a window of the program is active")
        start = time.monotonic()
        self.display.key("ctrl+q")
        return self.wait_for_end(start)

    def close_all(self):
        """Closes the only timer and then the home window; returns the same as quit()."""
        self.display.key("ctrl+w")
        self.wait_for_home()
        start = time.monotonic()
        self.display.key("ctrl+w")
        return self.wait_for_end(start)

    def wait_for_end(self, start):
        """Returns the seconds from start to the end, without those in which the program waited for
        a processor, and the exit status."""
        waits = Waits(self.process.pid)
        waited = 0

        def has_ended():
            nonlocal waited
            waited = max(waited, waits.seconds())
            return self.process.poll() is not None

        wait_until(has_ended, 10, "the program ends", 0.005)
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
