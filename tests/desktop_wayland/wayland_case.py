"""The base class of the tests that run the program in a Wayland session."""

import pathlib
import sys

sys.path.insert(1, str(pathlib.Path(__file__).resolve().parent.parent / "desktop"))
from support.case import DesktopTest, main  # noqa: E402, F401
from support.program import Program  # noqa: E402
from support.session import Session  # noqa: E402

from sway import Sway  # noqa: E402


class WaylandSession(Session):
    """A desktop session without an X server."""

    def add_display(self, size):
        display = Sway(self.environment, size)
        self.closers.append(display.close)
        return display


class WaylandTest(DesktopTest):
    kind_of_session = WaylandSession

    def launch_stranger(self):
        """Launches a second, unconnected instance, which takes the focus; returns its window."""
        stranger = Program(self.session, accessible=False,
                           environment={"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nowhere"})
        self.programs.append(stranger)
        stranger.start()
        window, = stranger.windows()
        self.display.wait_until_active(window)
        return window
