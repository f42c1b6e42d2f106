#!/usr/bin/python3
"""Checks the files for the desktop that are installed with the program.

Usage: installed_files_test.py BUILD LIBDIR VERSION [unittest arguments]
"""

import collections
import configparser
import os
import re
import struct
import unittest
from xml.etree import ElementTree

from installation import Installation, run, take_argument

BUILD = os.path.abspath(take_argument())
LIBDIR = take_argument()
VERSION = take_argument()

XML_LANGUAGE = "{http://www.w3.org/XML/1998/namespace}lang"
ID = "org.wuffer.Wuffer"
ENTRY = f"share/applications/{ID}.desktop"
SERVICE = f"share/dbus-1/services/{ID}.service"
METAINFO = f"share/metainfo/{ID}.metainfo.xml"
MANUAL = "share/man/man1/wuffer.1"
TRANSLATED_MANUALS = {language: f"share/man/{language}/man1/wuffer.1"
                      for language in ("de", "es", "fr")}
SOURCE = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..")
LANGUAGES = {name.removeprefix("wuffer_").removesuffix(".ts")
             for name in os.listdir(os.path.join(SOURCE, "translations"))
             if name.endswith(".ts")}
ICONS = {size: f"share/icons/hicolor/{size}x{size}/apps/wuffer.png"
         for size in (16, 22, 24, 32, 48, 64, 128, 256)}
FILES = {
    "bin/wuffer",
    f"{LIBDIR}/wuffer/modules/wuffer_sound.so",
    "share/wuffer/index.html",
    ENTRY,
    SERVICE,
    METAINFO,
    MANUAL,
    *TRANSLATED_MANUALS.values(),
    *ICONS.values(),
    "share/icons/hicolor/scalable/apps/wuffer.svg",
    "share/icons/hicolor/symbolic/apps/wuffer-symbolic.svg",
    "share/doc/wuffer/LICENSE",
    "share/doc/wuffer/CHANGELOG.md",
}
ACTIONS = {
    "new-timer": "wuffer --new-timer",
    "start-all": "wuffer --start-all",
    "preferences": "wuffer --preferences",
    "converter": "wuffer --converter",
}


def key_file(text):
    parser = configparser.ConfigParser(interpolation=None, delimiters=["="])
    parser.optionxform = str
    parser.read_string(text)
    return parser


class InstalledFilesTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.installed = Installation(BUILD, prefix="/usr", staged=True)
        cls.addClassCleanup(cls.installed.remove)

    def entry(self):
        return key_file(self.installed.read(ENTRY))

    def service(self, installed):
        return key_file(installed.read(SERVICE))["D-BUS Service"]

    def test_exactly_the_expected_files_are_installed(self):
        self.assertEqual(self.installed.files(), FILES)

    def test_the_desktop_entry_is_valid(self):
        self.assertEqual(run("desktop-file-validate", self.installed.path(ENTRY)), "")

    def test_the_desktop_entry_names_the_program_and_its_icon(self):
        entry = self.entry()["Desktop Entry"]
        self.assertEqual(entry["Exec"], "wuffer")
        self.assertEqual(entry["Icon"], "wuffer")
        self.assertEqual(entry["DBusActivatable"], "true")

    def test_desktops_do_not_offer_a_new_window_beside_the_new_timer(self):
        self.assertEqual(self.entry()["Desktop Entry"]["X-GNOME-SingleWindow"], "true")

    def test_each_action_of_the_desktop_entry_has_a_name_and_a_command(self):
        entry = self.entry()
        named = entry["Desktop Entry"]["Actions"].strip(";").split(";")
        groups = {action: entry[f"Desktop Action {action}"] for action in named}
        self.assertEqual({action: group["Exec"] for action, group in groups.items()}, ACTIONS)
        self.assertTrue(all(group["Name"] for group in groups.values()))

    def test_the_desktop_entry_is_complete_in_every_language(self):
        self.assertGreater(len(LANGUAGES), 7)
        for name, group in self.entry().items():
            for key in ("GenericName", "Comment", "Keywords", "Name"):
                # The name of the program is the same everywhere.
                if key not in group or (name, key) == ("Desktop Entry", "Name"):
                    continue
                for language in LANGUAGES:
                    with self.subTest(group=name, key=key, language=language):
                        self.assertTrue(group.get(f"{key}[{language}]"))

    def test_the_session_bus_starts_the_program_from_its_installed_path(self):
        service = self.service(self.installed)
        self.assertEqual(service["Name"], ID)
        self.assertEqual(service["Exec"], "/usr/bin/wuffer --service")

    def test_the_session_bus_starts_the_program_from_any_prefix(self):
        elsewhere = Installation(BUILD)
        self.addCleanup(elsewhere.remove)
        program, option = self.service(elsewhere)["Exec"].rsplit(" ", 1)
        self.assertEqual(program, elsewhere.path("bin/wuffer"))
        self.assertTrue(os.access(program, os.X_OK))
        self.assertEqual(option, "--service")
        self.assertEqual(elsewhere.files(), FILES)

    def test_the_metainfo_is_valid(self):
        run("appstreamcli", "validate", "--no-net", self.installed.path(METAINFO))

    def test_the_metainfo_is_complete_in_every_language(self):
        metainfo = ElementTree.parse(self.installed.path(METAINFO)).getroot()
        texts = [element for element in metainfo.iter()
                 if element.tag in ("summary", "p", "li", "keyword")]
        names = {language.replace("_", "-") for language in LANGUAGES}
        for tag in ("summary", "p", "li", "keyword"):
            counts = collections.Counter(element.get(XML_LANGUAGE) for element in texts
                                         if element.tag == tag and (element.text or "").strip())
            with self.subTest(tag=tag):
                self.assertEqual(counts, {name: counts[None] for name in {None, *names}})

    def test_the_latest_release_is_the_version_of_the_program(self):
        releases = [line for line in self.installed.read(METAINFO).splitlines()
                    if "<release " in line]
        self.assertIn(f'version="{VERSION}"', releases[0])

    def test_the_manual_page_has_no_flaw(self):
        self.assertEqual(run("mandoc", "-T", "lint", self.installed.path(MANUAL)), "")

    def test_the_translated_manual_pages_have_the_options_of_the_english_one(self):
        options = re.compile(r"^\.It Fl .*$", re.MULTILINE)
        english = options.findall(self.installed.read(MANUAL))
        self.assertGreater(len(english), 5)
        for language, page in TRANSLATED_MANUALS.items():
            with self.subTest(language=language):
                text = run("mandoc", "-T", "utf8", self.installed.path(page))
                self.assertGreater(len(text.split()), 150)
                self.assertEqual(options.findall(self.installed.read(page)), english)

    def test_each_icon_has_the_size_of_its_folder(self):
        for size, icon in ICONS.items():
            with open(self.installed.path(icon), "rb") as file:
                header = file.read(24)
            with self.subTest(icon=icon):
                self.assertEqual(header[:8], b"\x89PNG\r\n\x1a\n")
                self.assertEqual(struct.unpack(">II", header[16:]), (size, size))


if __name__ == "__main__":
    unittest.main(verbosity=2)
