"""Reads files of translations, and finds what a translation has lost or added."""

import collections
import re
import xml.etree.ElementTree as ElementTree

PLACE = re.compile(r"%(?:L?[0-9]{1,2}|L?n)")
TAG = re.compile(r"</?[a-zA-Z][^<>]*>")
ENTITY = re.compile(r"&(?:[a-z]+|#[0-9]+);")
MNEMONIC = re.compile(r"&\S")
FIGURE = re.compile(r"[0-9]+(?:\.[0-9]+)?|[¼½¾⅓⅔⅙⅛⁄]")

Message = collections.namedtuple("Message", "context source comment is_plural is_finished forms")


def text_of(element):
    """The text of an element, in which lupdate writes some characters as elements."""
    return "" if element is None else "".join(element.itertext())


def messages(path):
    """The messages of a .ts file, in order."""
    found = []
    for context in ElementTree.parse(path).getroot().iter("context"):
        for message in context.iter("message"):
            translation = message.find("translation")
            forms = translation.findall("numerusform") or [translation]
            found.append(Message(
                context=context.findtext("name"),
                source=text_of(message.find("source")),
                comment=text_of(message.find("comment")),
                is_plural=message.get("numerus") == "yes",
                is_finished=translation.get("type") is None,
                forms=[text_of(form) for form in forms]))
    return found


def places(text):
    return sorted(PLACE.findall(text))


def tags(text):
    return sorted(TAG.findall(text))


def mnemonics(text):
    return len(MNEMONIC.findall(ENTITY.sub("", text).replace("&&", "")))


def bars(text):
    return text.count("|")


def blanks(text):
    return re.match(r"\s*", text)[0], re.search(r"\s*$", text)[0]


def ending(text):
    """The dots or the colon at the end; the colon of Japanese counts as the usual one."""
    end = re.search(r"(…|\.\.\.|:|：)?\s*$", text)[1] or ""
    return end.replace("：", ":")


def figures(text):
    return FIGURE.findall(text)


# What is the same in a text and in its translation.
KEPT = {
    "the places for values": places,
    "the tags": tags,
    "the number of mnemonics": mnemonics,
    "the bars between cells": bars,
    "the blanks at the ends": blanks,
    "the dots or the colon at the end": ending,
}
# Beside these, in the tables of kitchen measures.
KEPT_IN_TABLES = {"the figures": figures}
TABLES = "MeasurementsPanel"


def faults(message):
    """What the translation does not keep, one line each. Says nothing of missing translations."""
    kept = KEPT | (KEPT_IN_TABLES if message.context == TABLES else {})
    return [f"{message.context}: “{message.source}” and “{form}” differ in {name}"
            for form in message.forms if form
            for name, of in kept.items() if of(form) != of(message.source)]


def gaps(message):
    """Says in one line that the translation is not complete; an empty list if it is."""
    if message.is_finished and all(form.strip() for form in message.forms):
        return []
    return [f"{message.context}: “{message.source}” is not translated"]
