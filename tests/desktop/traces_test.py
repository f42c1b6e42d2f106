#!/usr/bin/python3
"""Looks for files that the program leaves behind in any folder.

Usage: traces_test.py WUFFER FOLDER [unittest arguments]
"""

import os
import stat

from support.case import DesktopTest, main
from support.program import Program
from support.samples import write_tone
from support.waiting import wait_until

SETTINGS = "config/wuffer/wuffer.json"

# Files that other software writes, with the reason.
ALLOWED = {
    # The authentication cookie of the sound server. Its client library creates a missing cookie at
    # the first connection. Only PULSE_COOKIE would prevent that, but it overrides the user's own
    # configuration, so the program does not set it.
    "config/pulse/cookie",
}

# The sound file that the user chooses.
TONE = "tone.wav"

# The folder of shared memory.
SHARED_MEMORY = "/dev/shm"


class TracesTest(DesktopTest):
    sound = True

    def prepare(self):
        """Returns a program with folders of its own for everything, not started yet."""
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

    def choose_file(self, program, path):
        """Opens the file dialog and cancels it, then opens it again and adds a sound."""
        for text, key in (("", "Escape"), (path, "Return")):
            program.choose_sound_file("alt+a")
            self.display.type(text)
            program.close_window(key)

    def play(self, program):
        program.click("button", "Play the alarm sound")
        program.wait_for_button("Stop the alarm sound")

    def use(self, program):
        """Runs a timer to its end, saves and opens a preset, opens the options, plays a file."""
        # The alarm lasts until the test ends it.
        self.display.key("ctrl+k")
        program.start_countdown(1)
        program.wait_for_button("Reset")
        self.display.key("Return")
        program.wait_for_button("Start")
        self.display.key("ctrl+4")
        program.wait_for_text("Elapsed time", "Saved to Preset 4")
        program.open("alt+4")
        program.close_window()
        program.open("ctrl+comma")
        self.display.key("alt+s")
        wait_until(lambda: program.shown("Alarm sound in use"), "the sounds are in sight")
        tone = os.path.join(program.home, TONE)
        write_tone(tone, 1000, 20)
        self.choose_file(program, tone)
        program.wait_for_text("Alarm sound in use", "tone")
        self.play(program)
        program.close_window()

    def test_a_session_writes_its_settings_and_nothing_else(self):
        program = self.prepare()
        program.start()
        before = self.files(self.session.folder)
        self.use(program)
        self.quit(program)
        home = os.path.relpath(program.home, self.session.folder)
        made = {os.path.relpath(name, home) for name in self.files(self.session.folder) - before}
        self.assertLessEqual(made, {SETTINGS, TONE} | ALLOWED)
        left = self.files(program.home) - {"log", SETTINGS, TONE} - ALLOWED
        self.assertEqual(left, set())
        for name, mode in ((SETTINGS, 0o600), (os.path.dirname(SETTINGS), 0o700),
                           ("config", 0o700)):
            found = os.stat(os.path.join(program.home, name)).st_mode
            self.assertEqual(stat.S_IMODE(found), mode, name)

    def test_a_session_without_a_sound_server_leaves_nothing_in_shared_memory_either(self):
        program = self.prepare()
        program.environment["XDG_RUNTIME_DIR"] = self.session.make_folder("no-sound")
        program.start()
        before = self.files(SHARED_MEMORY)
        self.use(program)
        self.quit(program)
        self.assertEqual(self.files(SHARED_MEMORY) - before, set())
        self.assertEqual(self.files(program.home), {"log", SETTINGS, TONE})
        self.assertEqual(self.files(program.environment["XDG_RUNTIME_DIR"]), set())


if __name__ == "__main__":
    main()
