#!/usr/bin/python3
"""Checks the files of the translations: that they hold the texts of the sources, that each text is
translated, and that no translation has lost anything.

Usage: files_test.py FOLDER LANGUAGES LUPDATE [arguments of lupdate]

LANGUAGES are separated by commas.
"""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

import checks

FOLDER = pathlib.Path(sys.argv[1])
LANGUAGES = sys.argv[2].split(",")
EXTRACT = sys.argv[3:]


def path_of(language):
    return FOLDER / f"wuffer_{language}.ts"


def texts_in(path):
    """The texts to be translated, each with the number of its plural forms."""
    return {(each.context, each.source, each.comment, each.is_plural, len(each.forms))
            for each in checks.messages(path)}


class Files(unittest.TestCase):
    def test_there_is_one_for_each_language(self):
        self.assertEqual(sorted(FOLDER.glob("*.ts")), sorted(map(path_of, LANGUAGES)))

    def test_they_hold_the_texts_of_the_sources(self):
        with tempfile.TemporaryDirectory() as folder:
            copies = [pathlib.Path(shutil.copy(path_of(language), folder))
                      for language in LANGUAGES]
            subprocess.run([*EXTRACT, *copies], check=True, stderr=subprocess.DEVNULL)
            for copy in copies:
                with self.subTest(file=copy.name):
                    there = texts_in(FOLDER / copy.name)
                    needed = texts_in(copy)
                    self.assertTrue(needed)
                    self.assertEqual(needed - there, set(), "missing: build update_translations")
                    self.assertEqual(there - needed, set(), "needless: build update_translations")

    def assert_none(self, found_by):
        for language in LANGUAGES:
            found = [line for message in checks.messages(path_of(language))
                     for line in found_by(message)]
            with self.subTest(language=language):
                self.assertFalse(found, "\n".join(found))

    def test_no_translation_has_lost_anything(self):
        self.assert_none(checks.faults)

    def test_each_text_is_translated(self):
        self.assert_none(checks.gaps)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
