"""Installs a build into a temporary folder for a test."""

import fcntl
import os
import shutil
import subprocess
import sys
import tempfile


class Installation:
    """A build as "cmake --install" installs it. The test removes it at its end."""

    def __init__(self, build, prefix=None, staged=False):
        """Installs to the prefix; if staged, below the temporary folder as DESTDIR."""
        self.folder = tempfile.mkdtemp(prefix="installation-")
        self.prefix = prefix or self.folder
        environment = {name: value for name, value in os.environ.items() if name != "DESTDIR"}
        if staged:
            environment["DESTDIR"] = self.folder
        try:
            # Installing also writes into the build folder, so only one may run at a time.
            with open(os.path.join(build, "installing"), "w", encoding="ascii") as lock:
                fcntl.flock(lock, fcntl.LOCK_EX)
                run("cmake", "--install", build, "--prefix", self.prefix, environment=environment)
        except BaseException:
            self.remove()
            raise
        self.root = self.folder + self.prefix if staged else self.prefix

    def remove(self):
        shutil.rmtree(self.folder)

    def path(self, *parts):
        return os.path.join(self.root, *parts)

    def read(self, *parts):
        with open(self.path(*parts), encoding="utf-8") as file:
            return file.read()

    def files(self):
        """Returns the paths of all files relative to the prefix."""
        return {os.path.relpath(os.path.join(folder, name), self.root)
                for folder, _, names in os.walk(self.folder) for name in names}


def run(*command, environment=None):
    """Runs a tool; shows its output if it fails."""
    result = subprocess.run(command, env=environment, check=False, text=True, timeout=300,
                            stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                            stderr=subprocess.STDOUT)
    if result.returncode != 0:
        raise AssertionError(f"{' '.join(command)} failed:\n{result.stdout}")
    return result.stdout


def take_argument():
    """Removes and returns the next argument of the command line."""
    return sys.argv.pop(1)
