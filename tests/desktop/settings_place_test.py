#!/usr/bin/python3
"""Runs the program with settings that it cannot read or cannot write.

Usage: settings_place_test.py WUFFER FOLDER [unittest arguments]
"""

import json
import os
import resource
import shutil
import socket
import stat
import subprocess
import sys
import tempfile

from support.case import DesktopTest, main
from support.program import Program
from support.waiting import wait_until

KEPT = {"finishedText": "Tea!", "soundOff": 1, "from another version": {"kept": [1, 2]}}

# Runs a command without capabilities: file permissions then apply to root, too.
POWERLESS = ("setpriv", "--bounding-set", "-all")


def capabilities_can_be_dropped():
    """Whether setpriv can drop all capabilities, which not every container allows."""
    if os.geteuid() != 0:
        return True
    with tempfile.NamedTemporaryFile() as file:
        os.chmod(file.name, 0)
        return subprocess.run([*POWERLESS, "sh", "-c", '! cat "$0"', file.name], check=False,
                              stderr=subprocess.DEVNULL).returncode == 0


def no_file_may_grow():
    """Makes writes to files fail, as on a full disk."""
    resource.setrlimit(resource.RLIMIT_FSIZE, (0, resource.RLIM_INFINITY))


class SettingsPlaceTest(DesktopTest):
    def prepare(self, text=None, **options):
        """Returns a program that is not started yet, with this text as its settings file."""
        program = Program(self.session, settings=text, **options)
        self.programs.append(program)
        self.folder = os.path.dirname(program.settings_path)
        os.makedirs(self.folder, exist_ok=True)
        return program

    def check_works(self, program, name="Eggs"):
        """The program starts, can be named, counts down to its alarm, and ends."""
        program.start()
        program.wait_for_focus_in("Minutes")
        program.type_seconds(0)
        # The alarm lasts until the test ends it.
        self.display.key("ctrl+k")
        program.click_field("Name")
        self.display.type(name)
        self.display.key("Return")
        wait_until(lambda: name in self.display.title(program.windows()[0]),
                   "the timer has its name")
        program.click_field("Minutes")
        self.display.key("Return")
        program.wait_for_button("Reset")
        self.display.key("Return")
        program.wait_for_button("Start")
        self.check_answers(program)
        self.quit(program)

    def read(self, path):
        with open(path, encoding="utf-8") as file:
            return file.read()

    def check_kept(self, path, kept):
        """The file holds the new name and everything it held before."""
        settings = json.loads(self.read(path))
        self.assertEqual(settings["defaultWufferSettings"]["title"], "Eggs")
        self.assertEqual({key: settings.get(key) for key in kept}, kept)
        self.assertEqual(stat.S_IMODE(os.stat(path).st_mode), 0o600)

    # What is found at the path of the settings

    def test_missing(self):
        program = self.prepare()
        shutil.rmtree(program.home + "/config")
        self.check_works(program)
        self.check_kept(program.settings_path, {})
        for made in (program.home + "/config", self.folder):
            self.assertEqual(stat.S_IMODE(os.stat(made).st_mode), 0o700)

    def test_empty(self):
        program = self.prepare("")
        self.check_works(program)
        self.check_kept(program.settings_path, {})
        self.assertEqual(os.listdir(self.folder), ["wuffer.json"])

    def check_set_aside(self, text):
        program = self.prepare(text)
        self.check_works(program)
        self.check_kept(program.settings_path, {})
        self.assertEqual(self.read(program.settings_path + ".unreadable"), text)

    def test_a_list(self):
        self.check_set_aside(json.dumps([KEPT]))

    def test_deeply_nested(self):
        self.check_set_aside('{"a":' * 100_000 + "1" + "}" * 100_000)

    def test_a_hundred_megabytes(self):
        self.check_set_aside('{"finishedText": "' + "x" * 100_000_000 + '"}')

    def test_a_million_keys(self):
        self.check_set_aside(json.dumps({str(number): 1 for number in range(1_000_000)}))

    def test_as_deeply_nested_as_can_be_read(self):
        nested = {}
        for _ in range(200):
            nested = {"deeper": [nested]}
        program = self.prepare(json.dumps({"nested": nested}))
        self.check_works(program)
        self.check_kept(program.settings_path, {"nested": nested})

    def test_a_folder(self):
        program = self.prepare()
        os.makedirs(program.settings_path + "/inside")
        self.check_works(program)
        self.check_kept(program.settings_path, {})
        self.assertTrue(os.path.isdir(program.settings_path + ".unreadable/inside"))

    def test_a_pipe(self):
        program = self.prepare()
        os.mkfifo(program.settings_path)
        self.check_works(program)
        self.check_kept(program.settings_path, {})

    def test_a_link_to_a_file(self):
        program = self.prepare()
        target = program.home + "/elsewhere.json"
        with open(target, "w", encoding="utf-8") as file:
            json.dump(KEPT, file)
        os.symlink(target, program.settings_path)
        self.check_works(program)
        self.check_kept(target, KEPT)
        self.assertTrue(os.path.islink(program.settings_path))

    def test_a_link_to_a_device_that_takes_nothing(self):
        program = self.prepare()
        os.symlink("/dev/full", program.settings_path)
        self.check_works(program)
        self.check_kept(program.settings_path, {})
        self.assertTrue(stat.S_ISCHR(os.stat("/dev/full").st_mode))

    def test_another_program_changes_it_meanwhile(self):
        program = self.prepare(json.dumps({"soundOff": 1}))
        program.start()
        with open(program.settings_path, "w", encoding="utf-8") as file:
            json.dump(dict(KEPT, soundOff=0), file)
        program.open_timer()
        program.close_window()
        self.quit(program)
        settings = json.loads(self.read(program.settings_path))
        self.assertEqual({key: settings.get(key) for key in KEPT}, dict(KEPT, soundOff=0))

    # What lies beside the settings

    def test_a_lock_that_stays(self):
        own_name = os.path.basename(os.path.realpath(sys.executable))
        of_this_process = f"{os.getpid()}\n{own_name}\n{socket.gethostname()}\n"
        for text in ("", "no lock", of_this_process):
            with self.subTest(text):
                program = self.prepare(json.dumps(KEPT))
                with open(program.settings_path + ".lock", "w", encoding="utf-8") as file:
                    file.write(text)
                self.check_works(program)
                self.check_kept(program.settings_path, KEPT)

    def test_what_a_kill_has_left_over(self):
        program = self.prepare(json.dumps(KEPT))
        for name in ("wuffer.json.xPAzzF", "wuffer.json.backup"):
            path = os.path.join(self.folder, name)
            shutil.copy(program.settings_path, path)
            os.utime(path, (1_000_000_000, 1_000_000_000))
        self.check_works(program)
        self.assertEqual(sorted(os.listdir(self.folder)), ["wuffer.json", "wuffer.json.backup"])

    # Where the settings are

    def test_a_relative_folder_for_settings(self):
        place = self.session.make_folder("working-folder")
        program = self.prepare(environment={"XDG_CONFIG_HOME": "relative"},
                               through=("env", "-C", place))
        self.check_works(program)
        self.check_kept(program.home + "/.config/wuffer/wuffer.json", {})
        self.assertEqual(os.listdir(place), [])

    # Permissions

    def prepare_powerless(self, text=None):
        if not capabilities_can_be_dropped():
            self.skipTest("setpriv cannot drop capabilities: permissions do not apply to root")
        return self.prepare(text, through=POWERLESS if os.geteuid() == 0 else ())

    def test_unreadable(self):
        program = self.prepare_powerless(json.dumps(KEPT))
        os.chmod(program.settings_path, 0)
        self.check_works(program)
        self.check_kept(program.settings_path, {})
        aside = program.settings_path + ".unreadable"
        self.assertEqual(stat.S_IMODE(os.stat(aside).st_mode), 0)
        os.chmod(aside, 0o600)
        self.assertEqual(json.loads(self.read(aside)), KEPT)

    def check_untouched(self, program, *locked):
        """The folder stays unchanged while it is locked, and is written to once it is not."""
        for path, mode in locked:
            os.chmod(path, mode)
        before = self.listing()
        self.check_works(program)
        self.assertEqual(self.listing(), before)
        for path, _ in locked:
            os.chmod(path, 0o700)
        self.check_works(program)
        self.check_kept(program.settings_path, KEPT)

    def listing(self):
        return {name: self.read(os.path.join(self.folder, name))
                for name in os.listdir(self.folder)}

    def test_read_only(self):
        program = self.prepare_powerless(json.dumps(KEPT))
        self.check_untouched(program, (program.settings_path, 0o400))

    def test_in_a_read_only_folder(self):
        program = self.prepare_powerless(json.dumps(KEPT))
        self.check_untouched(program, (program.settings_path, 0o400), (self.folder, 0o500))

    def test_unreadable_in_a_read_only_folder(self):
        program = self.prepare_powerless(json.dumps(KEPT))
        os.chmod(program.settings_path, 0)
        os.chmod(self.folder, 0o500)
        self.check_works(program)
        self.assertEqual(os.listdir(self.folder), ["wuffer.json"])
        os.chmod(program.settings_path, 0o600)
        self.assertEqual(json.loads(self.read(program.settings_path)), KEPT)

    def test_broken_in_a_read_only_folder(self):
        program = self.prepare_powerless('{"finishedText": "Te')
        os.chmod(self.folder, 0o500)
        self.check_works(program)
        self.assertEqual(self.listing(), {"wuffer.json": '{"finishedText": "Te'})

    def test_a_home_without_write_permission(self):
        program = self.prepare_powerless()
        shutil.rmtree(program.home + "/config")
        os.chmod(program.home, 0o500)
        before = os.listdir(program.home)
        program.log = os.path.join(self.session.make_folder("home-log"), "log")
        self.check_works(program)
        self.assertEqual(set(os.listdir(program.home)) - set(before), set())

    def test_a_full_disk(self):
        program = self.prepare(json.dumps(KEPT), limits=no_file_may_grow)
        self.check_works(program)
        self.assertEqual(self.listing(), {"wuffer.json": json.dumps(KEPT)})

    def test_a_disk_that_is_full_until_later(self):
        program = self.prepare(json.dumps(KEPT), limits=no_file_may_grow)
        program.start()
        program.open_timer()
        resource.prlimit(program.process.pid, resource.RLIMIT_FSIZE,
                         (resource.RLIM_INFINITY, resource.RLIM_INFINITY))
        self.quit(program)
        settings = json.loads(self.read(program.settings_path))
        self.assertEqual({key: settings.get(key) for key in KEPT}, KEPT)
        self.assertIn("defaultWufferSettings", settings)


if __name__ == "__main__":
    main()
