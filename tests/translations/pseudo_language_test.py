#!/usr/bin/python3
"""Checks the pseudo-language, with which tests find the texts that are not translated.

Usage: pseudo_language_test.py [unittest arguments]
"""

import unittest

import checks
from make_pseudo_language import CLOSING, OPENING, pseudo

TEXTS = ["Start", "&New Timer", "Salt && &pepper", "Version %1", "%n timers have ended",
         "<p><b>%L2</b> of %1</p>", "Fish &amp; chips", "1 cup|16 tbsp|236.59 mL", "a\nb", "%1h %2m"]


class PseudoLanguage(unittest.TestCase):
    def test_it_keeps_what_the_program_replaces_or_reads(self):
        for text in TEXTS:
            for kept in (checks.places, checks.tags, checks.mnemonics, checks.bars,
                         checks.figures):
                with self.subTest(text=text, kept=kept.__name__):
                    self.assertEqual(kept(pseudo(text)), kept(text))

    def test_it_keeps_the_letter_of_a_mnemonic(self):
        self.assertIn("&N", pseudo("&New"))

    def test_each_cell_stands_between_brackets(self):
        for text in TEXTS:
            for cell in pseudo(text).split("|"):
                with self.subTest(cell=cell):
                    self.assertTrue(cell.startswith(OPENING) and cell.endswith(CLOSING))

    def test_texts_grow_by_two_fifths(self):
        self.assertGreaterEqual(len(pseudo("More Options")), 1.4 * len("More Options"))

    def test_letters_have_accents(self):
        self.assertNotIn("Start", pseudo("Start"))


if __name__ == "__main__":
    unittest.main()
