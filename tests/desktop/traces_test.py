#!/usr/bin/python3
"""Looks for the files that a session of the program leaves anywhere.

Usage: traces_test.py WUFFER FOLDER [unittest arguments]
"""

import os
import stat

from support.case import DesktopTest, main
from support.program import Program
from support.waiting import wait_until

SETTINGS = "config/wuffer/wuffer.json"
# What Qt's own dialog for files remembers.
FILE_DIALOG = "config/QtProject.conf"
# By which the sound server knows its users; its library makes it where there is none.
SOUND_COOKIE = "config/pulse/cookie"


class TracesTest(DesktopTest):
    sound = True

    def prepare(self):
        """A program all of whose folders are its own."""
        program = Program(self.session)
        self.programs.append(program)
        for variable, name in (("XDG_CACHE_HOME", "cache"), ("XDG_STATE_HOME", "state"),
                               ("TMPDIR", "tmp")):
            program.environment[variable] = os.path.join(program.home, name)
        os.mkdir(program.environment["TMPDIR"])
        return program

    def files(self, folder):
        return {os.path.relpath(os.path.join(where, name), folder)
                for where, folders, names in os.walk(folder) for name in names}

    def activate(self, window):
        wait_until(lambda: self.display.active_window() == window, 5, "it is active")

    def use(self, program):
        """A timer to its end, a preset saved and opened, the options and a sound heard."""
        program.start_countdown(1)
        program.wait_for_button("Reset")
        self.display.key("Return")
        program.wait_for_button("Start")
        self.display.key("ctrl+4")
        program.wait_for_text("Elapsed time", "Saved to Preset 4")
        self.display.key("alt+4")
        self.activate(program.wait_for_windows(2)[1])
        self.display.key("ctrl+w")
        timer, = program.wait_for_windows(1)
        self.activate(timer)
        self.display.key("ctrl+comma")
        self.activate(program.wait_for_windows(2)[1])
        self.display.key("alt+s")
        wait_until(lambda: program.has("button", "Play the alarm sound"), 5, "the sounds are in sight")
        play = program.place(program.find("button", "Play the alarm sound"))
        self.display.click(play.x + play.width // 2, play.y + play.height // 2)
        wait_until(lambda: self.session.sound.streams() == 1, 3, "it is heard")
        self.display.key("ctrl+w")
        self.activate(program.wait_for_windows(1)[0])

    def test_a_session_writes_its_settings_and_nothing_else(self):
        program = self.prepare()
        program.start()
        before = self.files(self.session.folder)
        self.use(program)
        self.quit(program)
        home = os.path.relpath(program.home, self.session.folder)
        made = {os.path.relpath(name, home) for name in self.files(self.session.folder) - before}
        self.assertLessEqual(made, {SETTINGS, FILE_DIALOG, SOUND_COOKIE})
        left = self.files(program.home) - {"log", SETTINGS, FILE_DIALOG, SOUND_COOKIE}
        self.assertEqual(left, set())
        for name, mode in ((SETTINGS, 0o600), (os.path.dirname(SETTINGS), 0o700),
                           ("config", 0o700)):
            found = os.stat(os.path.join(program.home, name)).st_mode
            self.assertEqual(stat.S_IMODE(found), mode, name)


if __name__ == "__main__":
    main()
