#!/usr/bin/python3
"""Makes a language that no one speaks, to find the texts that are not translated.

Usage: make_pseudo_language.py RESULT.ts LUPDATE [arguments of lupdate]

Each text of the sources gets accents, grows by 40 %, and stands between the brackets ⟦ and ⟧, which
occur in no other text. What the program replaces or reads in a text stays as it is.
"""

import math
import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

OPENING = "⟦"
CLOSING = "⟧"
PADDING = "·"
GROWTH = 0.4

ACCENTS = str.maketrans("ABCDEGHIJKLMNOPRSTUWYZabcdefghijklmnoprstuwyz",
                        "ÀßÇÐÉĜĤÎĴĶĹṀÑÖÞŔŜŢÛŴÝŽàƀçðéƒĝĥîĵķĺɱñöþŕšţûŵýž")

# Places for values, tags and entities of HTML, mnemonics with their letters.
KEPT = re.compile(r"%L?\d{1,2}|%L?n|<[^<>]*>|&(?:[a-z]+|#\d+);|&.")


def accented(text):
    result = []
    end = 0
    for kept in KEPT.finditer(text):
        result += [text[end:kept.start()].translate(ACCENTS), kept[0]]
        end = kept.end()
    return "".join(result) + text[end:].translate(ACCENTS)


def pseudo_cell(cell):
    padding = PADDING * math.ceil(GROWTH * len(KEPT.sub("", cell)))
    return OPENING + accented(cell) + padding + CLOSING


def pseudo(text):
    """The text in the pseudo-language. Bars separate the cells of a table."""
    return "|".join(pseudo_cell(cell) for cell in text.split("|"))


def translate(message):
    translation = message.find("translation")
    text = pseudo(message.findtext("source"))
    translation.attrib.pop("type", None)
    forms = translation.findall("numerusform")
    for each in forms or [translation]:
        each.text = text


def main(result, *extract):
    with tempfile.TemporaryDirectory() as folder:
        # The name tells lupdate how many plural forms the language has: as many as English.
        path = pathlib.Path(folder, "pseudo_en.ts")
        subprocess.run([*extract, path], check=True)
        tree = ElementTree.parse(path)
    for message in tree.iter("message"):
        translate(message)
    tree.write(result, encoding="utf-8", xml_declaration=True)


if __name__ == "__main__":
    main(*sys.argv[1:])
