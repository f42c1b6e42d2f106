"""Checks that each layer of src can include the headers that docs/architecture.md allows, only.

Usage: layers_test.py <source folder> <build folder>
"""

import json
import pathlib
import re
import shlex
import subprocess
import sys
import unittest

SOURCE = pathlib.Path(sys.argv[1])
BUILD = pathlib.Path(sys.argv[2])


def links_in_the_picture():
    """Returns, for each layer in the table of the layers, the layers that its row names."""
    links = {}
    everything_but = {}
    for line in (SOURCE / "docs/architecture.md").read_text(encoding="utf-8").splitlines():
        row = re.match(r"\| `([a-z]+)/` \|.*\|(.*)\|$", line)
        if row:
            named = re.findall(r"`([a-z]+)/`", row[2])
            target = everything_but if "everything but" in row[2] else links
            target[row[1]] = set(named)
    for layer, left_out in everything_but.items():
        links[layer] = set(links) - left_out
    return links


def closure(layer, links):
    seen = {layer}
    for below in links[layer]:
        seen |= closure(below, links)
    return seen


def a_header_of(layer):
    return sorted((SOURCE / "src" / layer).glob("*.h"))[0].name


def compiler_of(layer):
    """Returns the compiler of the layer with its include folders, and its working folder."""
    folder = SOURCE / "src" / layer
    for entry in json.loads((BUILD / "compile_commands.json").read_text(encoding="utf-8")):
        if pathlib.Path(entry["file"]).parent == folder:
            words = shlex.split(entry["command"])
            start = next(i for i, word in enumerate(words) if re.search(r"(\+\+|clang)[^/]*$", word))
            includes = [word for word in words[start:] if word.startswith("-I")]
            return [words[start], *includes], entry["directory"]
    raise AssertionError(f"no file of {layer}/ is compiled")


def seen_by(layer, layers):
    """Returns the layers whose headers a file of this layer can include."""
    question = "".join(
        f'#if __has_include("{other}/{a_header_of(other)}")\nsees {other}\n#endif\n'
        for other in layers)
    command, folder = compiler_of(layer)
    answer = subprocess.run([*command, "-E", "-P", "-x", "c++", "-"], input=question, cwd=folder,
                            capture_output=True, text=True, check=True)
    return set(re.findall(r"^sees ([a-z]+)$", answer.stdout, re.MULTILINE))


class Layers(unittest.TestCase):
    def test_the_picture_names_every_folder(self):
        folders = {path.parent.name for path in (SOURCE / "src").glob("*/*.cpp")}
        self.assertEqual(set(links_in_the_picture()), folders)

    def test_each_layer_sees_what_the_picture_lets_it_see(self):
        links = links_in_the_picture()
        for layer in links:
            with self.subTest(layer=layer):
                self.assertEqual(seen_by(layer, links), closure(layer, links))

    def test_no_layer_links_one_that_links_it(self):
        links = links_in_the_picture()
        for layer in links:
            for below in links[layer]:
                self.assertNotIn(layer, closure(below, links))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[3:])
