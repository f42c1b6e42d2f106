#!/usr/bin/python3
"""Kills the program at arbitrary moments and breaks its settings file.

Usage: settings_test.py WUFFER FOLDER [unittest arguments]
"""

import json
import os
import random
import time

from support.case import DesktopTest, main

KEPT = {"finishedText": "Tea!", "soundOff": 1, "from another version": {"kept": [1, 2]}}


class SettingsTest(DesktopTest):
    def read(self, program):
        with open(program.settings_path, encoding="utf-8") as file:
            return json.load(file)

    def check_kept(self, program):
        settings = self.read(program)
        self.assertEqual({key: settings.get(key) for key in KEPT}, KEPT)

    def test_settings_survive_kills_at_any_moment(self):
        program = self.launch(settings=json.dumps(KEPT))
        moments = random.Random(1)
        for _ in range(6):
            # Each of these may write the settings: a start, a stop, a new window, a closed one.
            for keys in ("Tab", "5", "Return", "Return", "ctrl+n", "ctrl+w"):
                self.display.key(keys)
            time.sleep(moments.uniform(0, 0.05))
            program.kill()
            self.check_kept(program)
            program.start()
        program.start_countdown(1)
        program.wait_for_text("Time", "Tea!")
        self.quit(program)
        self.check_kept(program)

    def test_a_kill_while_it_starts_harms_nothing(self):
        program = self.launch(settings=json.dumps(KEPT))
        program.kill()
        for milliseconds in range(0, 200, 20):
            program.spawn()
            time.sleep(milliseconds / 1000)
            program.kill()
            self.check_kept(program)
        program.start()
        self.quit(program)

    def test_a_broken_settings_file_is_set_aside(self):
        for number, broken in enumerate(('{"finishedText": "Tea', "[1, 2]", "\0\0\0\0", "{]"), 1):
            program = self.launch(settings=broken)
            with self.subTest(broken):
                program.wait_for_text("Time", "Wuffer")
                aside = program.settings_path + ".unreadable"
                with open(aside, encoding="utf-8") as file:
                    self.assertEqual(file.read(), broken)
                # If there is a new settings file, it is valid.
                if os.path.exists(program.settings_path):
                    self.read(program)
                # The alarm lasts until the program ends.
                self.display.key("ctrl+k")
                program.start_countdown(0)
                program.wait_for_text("Time", "Wuff!")
                self.quit(program)
        self.report(f"{number} broken files set aside")


if __name__ == "__main__":
    main()
