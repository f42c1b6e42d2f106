#!/usr/bin/python3
"""Runs the program in German, from the first start to the alarm.

Usage: language_test.py WUFFER FOLDER [unittest arguments]
"""

import json
import os
from xml.etree import ElementTree

from support.case import DesktopTest, main

TRANSLATION = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "translations",
                           "wuffer_de.ts")
# Qt reads these variables itself, so the computer needs no German locale.
GERMAN = {"LC_ALL": None, "LC_CTYPE": "C.UTF-8", "LANG": "de_DE.UTF-8"}


def translations():
    """Returns the German texts, by context and English text, without marks of mnemonics."""
    texts = {}
    for context in ElementTree.parse(TRANSLATION).getroot().iter("context"):
        for message in context.iter("message"):
            text = message.findtext("translation").replace("&", "")
            texts[context.findtext("name"), message.findtext("source")] = text
    return texts


class LanguageTest(DesktopTest):
    def setUp(self):
        super().setUp()
        self.german = translations()

    def settings(self, program):
        with open(program.settings_path, encoding="utf-8") as file:
            settings = json.load(file)
        # The size of a window depends on its texts.
        del settings["windowFrames"]
        return settings

    def test_a_countdown_in_german(self):
        program = self.launch(environment=GERMAN)
        program.wait_for_focus_in(self.german["Wuffer", "Minutes"])
        time = self.german["Wuffer", "Time"]
        elapsed = self.german["Wuffer", "Elapsed time"]
        program.wait_for_text(elapsed, self.german["Wuffer", "Ready when you are"])
        # The alarm lasts until the test ends it.
        self.display.key("ctrl+k")
        program.start_countdown(5)
        program.wait_for_button(self.german["TimerTexts", "Stop"])
        passed = self.german["Wuffer", "Elapsed: %1"]
        program.wait_for_text(elapsed, *(passed.replace("%1", f"{seconds}s")
                                         for seconds in range(1, 5)))
        program.wait_for_text(time, "Wuff!")
        program.wait_for_button(self.german["TimerTexts", "Reset"])
        self.wait_for_notifications(1)
        notification, = self.session.notifications.take_all()
        self.assertEqual(notification["summary"], "Wuff!")
        self.assertEqual(notification["body"], "Wuffer: 5s")
        self.display.key("Return")
        program.wait_for_button(self.german["TimerTexts", "Start"])
        self.quit(program)

    def test_the_settings_are_those_of_an_english_program(self):
        stored = []
        for environment in ({}, GERMAN):
            program = self.launch(environment=environment)
            program.type_seconds(3)
            for key in ("ctrl+3", "ctrl+o"):
                self.display.key(key)
            self.quit(program)
            stored.append(self.settings(program))
        english, german = stored
        self.assertEqual(english["Preset 3"]["finishOption"], "Do Nothing")
        self.assertEqual(german, english)


if __name__ == "__main__":
    main()
