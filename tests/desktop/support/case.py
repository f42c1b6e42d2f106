"""The base class of all tests of the whole program."""

import os
import sys
import unittest

from support.processor import Waits
from support.program import Program
from support.session import Session
from support.waiting import wait_until


class DesktopTest(unittest.TestCase):
    """Runs each test in a session that the tests of a class share."""

    kind_of_session = Session
    size = (1280, 800)
    sound = False
    service_folder = None
    output = "."

    @classmethod
    def setUpClass(cls):
        cls.session = cls.kind_of_session(cls.size, cls.service_folder)
        cls.addClassCleanup(cls.session.close)
        cls.display = cls.session.display
        if cls.sound:
            cls.session.start_sound()

    def setUp(self):
        self.programs = []
        self.session.notifications.take_all()
        self.display.move_pointer(0, 0)

    def tearDown(self):
        try:
            if self.has_failed():
                display = self.programs[-1].display if self.programs else self.display
                display.save_picture(
                    os.path.join(self.output, f"{self.id().rsplit('.', 1)[1]}.png"))
        finally:
            for program in self.programs:
                program.close()
        for program in self.programs:
            self.assertEqual(program.written(), "", "the program writes nothing")

    def has_failed(self):
        result = self._outcome.result
        return any(test is self for test, _ in result.errors + result.failures) or any(
            test is self and error for test, error in getattr(self._outcome, "errors", []))

    def launch(self, **options):
        """Starts the program; the end of the test ends it."""
        program = Program(self.session, **options)
        self.programs.append(program)
        program.start()
        return program

    def quit(self, program):
        seconds, status = program.quit()
        self.assertEqual(status, 0)
        self.assertLess(seconds, 1.5)
        return seconds

    def close_home(self, program):
        """Waits for the home window and closes it as the button in the title bar does."""
        program.wait_for_home()
        seconds, status = program.end_with("alt+F4")
        self.assertEqual(status, 0)
        self.assertLess(seconds, 1.5)

    def waits(self, program):
        """Counts the time that every process between a key press and its visible or audible
        effect waits for the computer, from now on."""
        servers = [self.display.server.pid, self.display.manager.pid]
        if self.session.sound:
            servers.append(self.session.sound.process.pid)
        return Waits(os.getpid(), program.process.pid, *servers, *self.session.buses())

    def check_answers(self, program):
        """The program answers at once, except for the time in which it waits for the computer."""
        waits = self.waits(program)
        self.assertLess(program.answers(), 0.5 + waits.seconds())

    def assert_soon(self, read, expected):
        """Waits until a function returns this value."""
        value = None

        def is_expected():
            nonlocal value
            value = read()
            return value == expected

        try:
            wait_until(is_expected, expected)
        except AssertionError:
            self.assertEqual(value, expected)

    def wait_for_notifications(self, count):
        wait_until(lambda: self.session.notifications.shown() == count,
                   f"{count} notifications are shown")

    def heard(self):
        return self.session.sound.recorder

    def report(self, text):
        print(f"{self.id().rsplit('.', 1)[1]}: {text}", flush=True)


def main():
    """Takes the program under test and the folder for pictures from the command line."""
    Program.executable = os.path.abspath(sys.argv.pop(1))
    DesktopTest.output = os.path.abspath(sys.argv.pop(1))
    os.makedirs(DesktopTest.output, exist_ok=True)
    unittest.main(verbosity=2)
