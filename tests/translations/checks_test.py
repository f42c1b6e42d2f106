#!/usr/bin/python3
"""Checks that the checks of translations find faults.

Usage: checks_test.py [unittest arguments]
"""

import pathlib
import tempfile
import unittest
from xml.sax.saxutils import escape

import checks

FILE = """<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>{context}</name>
    <message{numerus}>
        <source>{source}</source>
        <translation{type}>{translation}</translation>
    </message>
</context>
</TS>
"""


def message(source, *forms, context="Wuffer", unfinished=False):
    """The message of a file with only this one; several forms are plural forms."""
    translation = escape(forms[0])
    if len(forms) > 1:
        translation = "".join(f"<numerusform>{escape(form)}</numerusform>" for form in forms)
    text = FILE.format(context=context, source=escape(source), translation=translation,
                       numerus=' numerus="yes"' if len(forms) > 1 else "",
                       type=' type="unfinished"' if unfinished else "")
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder, "wuffer_fr.ts")
        path.write_text(text, encoding="utf-8")
        only, = checks.messages(path)
    return only


class Faults(unittest.TestCase):
    def assert_fault(self, named, *arguments, **options):
        found = checks.faults(message(*arguments, **options))
        self.assertEqual(len(found), 1, found)
        self.assertTrue(found[0].endswith(named), found)

    def assert_good(self, *arguments, **options):
        self.assertEqual(checks.faults(message(*arguments, **options)), [])

    def test_a_good_translation_has_none(self):
        self.assert_good("&Open <b>%1</b> of %L2…", "%L2 : &ouvrir <b>%1</b>…")

    def test_a_lost_place_for_a_value(self):
        self.assert_fault("values", "%1 of %2", "%1 de")
        self.assert_fault("values", "%1 of %L2", "%1 de %2")

    def test_a_place_for_a_value_that_is_twice_there(self):
        self.assert_fault("values", "in %1", "%1 dans %1")

    def test_a_lost_number_in_one_plural_form(self):
        self.assert_fault("values", "%n timers", "un minuteur", "%n minuteurs")
        self.assert_good("%n timers", "%n minuteur", "%n minuteurs")

    def test_a_lost_mnemonic(self):
        self.assert_fault("mnemonics", "&File", "Fichier")

    def test_an_added_mnemonic(self):
        self.assert_fault("mnemonics", "File", "&Fichier")
        self.assert_fault("mnemonics", "&File", "&Fi&chier")

    def test_a_mnemonic_in_parentheses(self):
        self.assert_good("&File", "ファイル(&F)")

    def test_a_doubled_ampersand_is_no_mnemonic(self):
        self.assert_good("Salt && pepper", "Sel && poivre")
        self.assert_good("Salt && &pepper", "&Sel et poivre")
        self.assert_fault("mnemonics", "Salt && pepper", "Sel &poivre")

    def test_an_entity_is_no_mnemonic(self):
        self.assert_good("<b>Salt &amp; pepper</b>", "<b>Sel et poivre</b>")

    def test_lost_dots(self):
        self.assert_fault("end", "Open…", "Ouvrir")
        self.assert_fault("end", "Open...", "Ouvrir…")
        self.assert_fault("end", "Open", "Ouvrir…")

    def test_a_lost_colon(self):
        self.assert_fault("end", "Name:", "Nom")
        self.assert_fault("end", "Name", "Nom :")

    def test_a_colon_as_the_language_writes_it(self):
        self.assert_good("Name:", "Nom\u202f:")
        self.assert_good("Name:", "Nom\u00a0:")
        self.assert_good("Name:", "名前：")

    def test_lost_and_added_blanks(self):
        self.assert_fault("ends", " and ", " et")
        self.assert_fault("ends", "and", " et")

    def test_changed_figures_of_a_table(self):
        row = "1 cup|16 tbsp|236.59 mL"
        self.assert_good(row, "1 tasse|16 c. à s.|236.59 ml", context=checks.TABLES)
        for wrong in ("1 tasse|16 c. à s.|236,59 ml", "1 tasse|61 c. à s.|236.59 ml",
                      "16 tasse|1 c. à s.|236.59 ml", "½ tasse|16 c. à s.|236.59 ml",
                      "tasse|16 c. à s.|236.59 ml", "１ tasse|16 c. à s.|236.59 ml"):
            with self.subTest(wrong=wrong):
                self.assert_fault("figures", row, wrong, context=checks.TABLES)

    def test_a_lost_cell_of_a_table(self):
        self.assert_fault("cells", "Ounces|Grams", "Onces", context=checks.TABLES)

    def test_changed_tags(self):
        self.assert_fault("tags", "<b>Tea</b>", "<i>Thé</i>")
        self.assert_fault("tags", "<b>Tea</b>", "<b>Thé")

    def test_a_missing_translation_has_none(self):
        self.assert_good("&File: %1", "", unfinished=True)


class Gaps(unittest.TestCase):
    def test_a_translation_is_complete(self):
        self.assertEqual(checks.gaps(message("Tea", "Thé")), [])
        self.assertEqual(checks.gaps(message("%n cups", "%n tasse", "%n tasses")), [])

    def test_an_empty_translation_is_not(self):
        self.assertEqual(len(checks.gaps(message("Tea", ""))), 1)
        self.assertEqual(len(checks.gaps(message("Tea", " "))), 1)

    def test_an_unfinished_translation_is_not(self):
        self.assertEqual(len(checks.gaps(message("Tea", "Thé", unfinished=True))), 1)

    def test_a_missing_plural_form_is_not(self):
        self.assertEqual(len(checks.gaps(message("%n cups", "%n tasse", ""))), 1)


if __name__ == "__main__":
    unittest.main()
