"""How long processes waited for the computer: delay of the computer, not of the processes."""

import collections
import glob
import threading
import time

ENDED = "X"


def waits(process_id):
    """Returns the seconds that each thread of a process was ready to run but did not."""
    found = {}
    for path in glob.glob(f"/proc/{process_id}/task/*/schedstat"):
        try:
            with open(path, encoding="ascii") as file:
                found[path] = int(file.read().split()[1]) / 1e9
        except (FileNotFoundError, ProcessLookupError):
            # The thread has ended.
            continue
    return found


class Standstill:
    """Measures how long the computer or a process stands still, in a thread of its own.

    The kernel counts how long a process that is ready waits for a processor. It counts neither how
    long a process is stopped or waits for a disk, nor how long a virtual computer does not run.
    """

    STEP = 0.02
    # Stopped, and waiting for a disk.
    STATES = "DTt"

    def __init__(self):
        self.computer = 0.0
        self.watched = set()
        self.processes = collections.Counter()
        # Processes that the test itself stops.
        self.expected = set()
        self.thread = None

    def watch(self, process_ids):
        self.watched |= set(process_ids)
        if not self.thread:
            self.thread = threading.Thread(target=self.run, daemon=True)
            self.thread.start()

    def run(self):
        last = time.monotonic()
        while True:
            time.sleep(self.STEP)
            now = time.monotonic()
            late = max(0.0, now - last - 2 * self.STEP)
            self.computer += late
            for process_id in self.watched - self.expected:
                found = state(process_id)
                if found in self.STATES:
                    self.processes[process_id] += now - last - late
                if found == ENDED:
                    self.watched.discard(process_id)
            last = now

    def seconds(self, process_ids):
        return self.computer + sum(self.processes[process_id] for process_id in process_ids)


def state(process_id):
    """Returns the letter of the process's state."""
    try:
        with open(f"/proc/{process_id}/stat", encoding="utf-8", errors="replace") as file:
            return file.read().rsplit(")", 1)[1].split()[0]
    except (FileNotFoundError, ProcessLookupError):
        return ENDED


STANDSTILL = Standstill()


class Waits:
    """The time that processes have waited for the computer since this object was made.

    Tests add it to the time that they allow the program. On an idle computer it is close to 0.
    """

    def __init__(self, *process_ids):
        self.before = {process_id: waits(process_id) for process_id in process_ids}
        STANDSTILL.watch(process_ids)
        self.stood_still = STANDSTILL.seconds(process_ids)

    def seconds(self):
        return (STANDSTILL.seconds(self.before) - self.stood_still
                + sum(now - before.get(thread, 0) for process_id, before in self.before.items()
                      for thread, now in waits(process_id).items()))
