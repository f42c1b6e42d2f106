#!/usr/bin/python3
"""Kills a program at random moments while it changes settings, and checks the file it leaves.

Usage: settings_kills.py SETTINGSWRITER [KILLS]

Fails if a file cannot be read, or if a change is missing that was older than a second.
"""

import json
import os
import pathlib
import random
import subprocess
import sys
import tempfile
import time
from concurrent.futures import ThreadPoolExecutor

sys.path.insert(1, str(pathlib.Path(__file__).resolve().parent.parent / "desktop"))
from support.processor import Waits  # noqa: E402

KEPT_AFTER = 1.0
LONGEST_LIFE = 2.0
LANES = 10


class Lane:
    """One settings file, and the processes that change it, one after the other."""

    def __init__(self, writer, folder, seed):
        self.command = [writer, os.path.join(folder, f"{seed}", "settings.json")]
        self.folder = os.path.join(folder, f"{seed}")
        self.moments = random.Random(seed)
        self.failures = []
        self.changes = 0
        self.lost_young = 0
        self.oldest_lost = 0.0
        self.kept = 0

    def kill_some(self, kills):
        for _ in range(kills):
            # Half of the kills come early, while the program starts and writes for the first time.
            life = self.moments.uniform(0, self.moments.choice((0.1, LONGEST_LIFE)))
            self.judge(*self.run(life))

    def run(self, life):
        """Returns the time of the kill, how long the program waited for the computer until then,
        and its changes with their times."""
        with subprocess.Popen(self.command, stdout=subprocess.PIPE, text=True) as process:
            waits = Waits(process.pid)
            time.sleep(life)
            waited = waits.seconds()
            killed = time.monotonic()
            process.kill()
            lines = process.stdout.read().split("\n")[:-1]
        return killed, waited, [(int(number), float(moment))
                                for number, moment in (line.split() for line in lines)]

    def judge(self, killed, waited, changes):
        self.changes += len(changes)
        found = self.read()
        if found is None:
            return
        due = max([self.kept] + [number for number, moment in changes
                                 if moment <= killed - KEPT_AFTER - waited])
        if found < due:
            self.failures.append(f"{found} was kept, but {due} was more than a second old")
        lost = [killed - moment for number, moment in changes if number > found]
        self.lost_young += len(lost)
        self.oldest_lost = max([self.oldest_lost, *lost])
        self.kept = found

    def read(self):
        """Returns the number of the latest change in the file; None if it cannot be read."""
        if not os.path.exists(self.command[1]):
            return 0
        with open(self.command[1], encoding="utf-8") as file:
            text = file.read()
        try:
            settings = json.loads(text)
        except ValueError as error:
            self.failures.append(f"unreadable: {error}")
            return None
        if settings["count"] != settings["same"]:
            self.failures.append("only half of a change was kept")
        return settings["count"]

    def left_over(self):
        """Returns the files in the folder except for the settings."""
        return [name for name in os.listdir(self.folder) if name != "settings.json"]


def main():
    writer = os.path.abspath(sys.argv[1])
    kills = int(sys.argv[2]) if len(sys.argv) > 2 else 1000
    # A kill loses nothing that the process has handed to the system, so the files can be in
    # memory: a disk would only add delays.
    memory = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None
    with tempfile.TemporaryDirectory(prefix="kills-", dir=memory) as folder:
        lanes = [Lane(writer, folder, seed) for seed in range(LANES)]
        with ThreadPoolExecutor(LANES) as threads:
            for end in [threads.submit(lane.kill_some, -(-kills // LANES)) for lane in lanes]:
                end.result()
        failures = [failure for lane in lanes for failure in lane.failures]
        left_over = [name for lane in lanes for name in lane.left_over()]
    changes = sum(lane.changes for lane in lanes)
    failures += [f"set aside: {name}" for name in left_over if "unreadable" in name]
    print(f"{-(-kills // LANES) * LANES} kills, {changes} changes, "
          f"{sum(lane.lost_young for lane in lanes)} lost, the oldest of them "
          f"{max(lane.oldest_lost for lane in lanes) * 1000:.0f} ms old, "
          f"{len(left_over)} files left over, {len(failures)} failures")
    if not all(lane.kept for lane in lanes):
        failures.append("one of the files never kept a change")
    for failure in failures:
        print(failure)
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    main()
