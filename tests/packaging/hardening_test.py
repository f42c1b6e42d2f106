#!/usr/bin/python3
"""Checks that programs and modules are built with the hardening flags.

Usage: hardening_test.py BUILD FILE... [-- unittest arguments]
"""

import json
import os
import re
import subprocess
import sys
import unittest


def read(file, *what):
    return subprocess.run(["readelf", "--wide", *what, file], check=True, timeout=120,
                          env=dict(os.environ, LC_ALL="C"), stdout=subprocess.PIPE,
                          text=True).stdout


class HardeningTest(unittest.TestCase):
    build = ""
    files = []

    def check_each(self, pattern, *what):
        for file in self.files:
            with self.subTest(file=file):
                self.assertTrue(re.search(pattern, read(file, *what)), f"there is no {pattern}")

    def commands(self):
        """Returns the commands that compile the sources of the program."""
        with open(os.path.join(self.build, "compile_commands.json"), encoding="utf-8") as file:
            commands = [entry["command"] for entry in json.load(file)
                        if "/src/" in entry["file"]]
        self.assertGreater(len(commands), 50)
        return commands

    def test_the_code_can_lie_at_any_address(self):
        self.check_each(r"Type: +DYN", "--file-header")

    def test_the_stack_holds_no_code(self):
        self.check_each(r"GNU_STACK.* RW +0x", "--program-headers")

    def test_the_tables_of_the_linker_become_read_only_at_the_start(self):
        self.check_each(r"GNU_RELRO", "--program-headers")
        self.check_each(r"FLAGS.*\bNOW\b", "--dynamic")

    def test_the_stack_is_guarded(self):
        self.check_each(r"UND __stack_chk_fail", "--dyn-syms")

    def test_everything_optimised_checks_the_lengths_of_buffers(self):
        for command in self.commands():
            if re.search(r" -O[1-3s]\b", command):
                self.assertIn(" -D_FORTIFY_SOURCE=2 ", command)

    def test_everything_guards_the_stack(self):
        for command in self.commands():
            self.assertIn(" -fstack-protector-strong ", command)


if __name__ == "__main__":
    arguments = sys.argv[1:]
    end = arguments.index("--") if "--" in arguments else len(arguments)
    HardeningTest.build, *HardeningTest.files = arguments[:end]
    if not HardeningTest.files:
        sys.exit(__doc__)
    unittest.main(argv=[sys.argv[0], *arguments[end + 1:]], verbosity=2)
