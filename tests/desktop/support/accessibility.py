"""Reads the controls of programs from the accessibility tree."""

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, Gio, GLib  # noqa: E402

from support.display import Rect  # noqa: E402
from support.waiting import PATIENCE, Gone  # noqa: E402

ROLES = {
    "window": Atspi.Role.FRAME,
    "field": Atspi.Role.TEXT,
    "button": Atspi.Role.PUSH_BUTTON,
    "box": Atspi.Role.CHECK_BOX,
    "display": Atspi.Role.LABEL,
    "choice": Atspi.Role.COMBO_BOX,
}

# Roles that contain none of the controls above, but may contain many other objects: skipping them
# keeps a look shorter than the changes it observes.
WITHOUT_CONTROLS = tuple(map(int, (
    Atspi.Role.MENU_BAR, Atspi.Role.LIST, Atspi.Role.PUSH_BUTTON, Atspi.Role.CHECK_BOX,
    Atspi.Role.IMAGE, Atspi.Role.LABEL)))

ROOT = "/org/a11y/atspi/accessible/root"
ACCESSIBLE = "org.a11y.atspi.Accessible"
SCREEN = GLib.Variant("(u)", (int(Atspi.CoordType.SCREEN),))


class Control:
    """One object of the tree, with the properties it had when it was read."""

    def __init__(self, program, path):
        self.program = program
        self.path = path
        self.role = None
        self.children = []
        self.name = self.description = None
        self.states = 0

    def has_state(self, state):
        return bool(self.states >> int(state) & 1)

    def ask(self, interface, method, arguments=None):
        answer, = self.program.ask([(self.path, interface, method, arguments)])
        if answer is None:
            raise Gone(self.name)
        return answer

    def text(self):
        whole = GLib.Variant("(ii)", (0, -1))
        return self.ask("org.a11y.atspi.Text", "GetText", whole)[0]

    def place(self):
        """Returns the rectangle of the control on the screen."""
        return Rect(*self.ask("org.a11y.atspi.Component", "GetExtents", SCREEN)[0])


class AccessibleProgram:
    """One program on the accessibility bus.

    Sends many calls at once and waits for all replies together. On a busy computer, one call after
    the other would be slow: each waits twice for a processor.
    """

    def __init__(self, bus, name):
        self.bus = bus
        self.name = name
        self.root = Control(self, ROOT)
        self.roles = {}

    def ask(self, questions):
        """Returns the replies in the order of the calls; None for an object that is gone."""
        answers = [None] * len(questions)
        left = len(questions)

        def keep(bus, result, place):
            nonlocal left
            left -= 1
            try:
                answers[place] = bus.call_finish(result).unpack()
            except GLib.Error:
                pass

        for place, (path, interface, method, arguments) in enumerate(questions):
            self.bus.call(self.name, path, interface, method, arguments, None,
                          Gio.DBusCallFlags.NO_AUTO_START, 1000 * PATIENCE, None, keep, place)
        while left:
            GLib.MainContext.default().iteration(True)
        return answers

    def windows(self):
        """Returns the number of windows; 0 if the program does not answer."""
        answer, = self.ask([(ROOT, ACCESSIBLE, "GetChildren", None)])
        return len(answer[0]) if answer else 0

    def look(self, start=None):
        """Reads the tree below start, or the whole tree; returns its controls, parents first."""
        start = start or self.root
        start.children = []
        level = [start]
        while level:
            self.learn_roles(level)
            parents = [control for control in level if control.role not in WITHOUT_CONTROLS]
            answers = self.ask([(control.path, ACCESSIBLE, "GetChildren", None)
                                for control in parents])
            level = []
            for control, answer in zip(parents, answers):
                control.children = [Control(self, path) for _, path in (answer or ([],))[0]]
                level += control.children
        return descendants(start)

    def learn_roles(self, controls):
        """Reads the roles of new objects only: an object never changes its role."""
        new = [control for control in controls if control.path not in self.roles]
        answers = self.ask([(control.path, ACCESSIBLE, "GetRole", None) for control in new])
        self.roles.update((control.path, answer[0])
                          for control, answer in zip(new, answers) if answer)
        for control in controls:
            control.role = self.roles.get(control.path)

    def describe(self, controls):
        """Reads the names, descriptions and states of controls."""
        answers = iter(self.ask([
            (control.path, *question) for control in controls for question in (
                ("org.freedesktop.DBus.Properties", "Get",
                 GLib.Variant("(ss)", (ACCESSIBLE, "Name"))),
                ("org.freedesktop.DBus.Properties", "Get",
                 GLib.Variant("(ss)", (ACCESSIBLE, "Description"))),
                (ACCESSIBLE, "GetState", None))]))
        for control, name, description, states in zip(controls, answers, answers, answers):
            if name and description and states:
                control.name, control.description = name[0], description[0]
                low, high = states[0]
                control.states = low | high << 32

    def controls(self, role, start=None):
        """Returns all controls of a role below start, without those that are gone by now."""
        found = [control for control in self.look(start) if control.role == int(ROLES[role])]
        self.describe(found)
        return [control for control in found if control.name is not None]


def descendants(control):
    found = []
    for child in control.children:
        found.append(child)
        found.extend(descendants(child))
    return found


def find_program(bus, process_id):
    """Returns the program of this process; None until it shows a window."""
    registry = AccessibleProgram(bus, "org.a11y.atspi.Registry")
    names = [name for name, _ in (registry.ask([(ROOT, ACCESSIBLE, "GetChildren", None)])[0]
                                  or ([],))[0]]
    dbus = AccessibleProgram(bus, "org.freedesktop.DBus")
    answers = dbus.ask([("/org/freedesktop/DBus", "org.freedesktop.DBus",
                         "GetConnectionUnixProcessID", GLib.Variant("(s)", (name,)))
                        for name in names])
    for name, answer in zip(names, answers):
        program = AccessibleProgram(bus, name)
        if answer == (process_id,) and program.windows():
            return program
    return None
