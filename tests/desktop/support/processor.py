"""How long processes had to wait for a processor, which is the computer's delay and not theirs."""

import glob


def waits(process_id):
    """The seconds that each thread of a process has waited while it could have run."""
    found = {}
    for path in glob.glob(f"/proc/{process_id}/task/*/schedstat"):
        try:
            with open(path, encoding="ascii") as file:
                found[path] = int(file.read().split()[1]) / 1e9
        except (FileNotFoundError, ProcessLookupError):
            # The thread has ended.
            continue
    return found


class Waits:
    """What some processes have waited for a processor, from the moment it is made.

    A bound on what the program does holds for the time in which the computer lets it: on one with
    nothing else to do this is next to nothing.
    """

    def __init__(self, *process_ids):
        self.before = {process_id: waits(process_id) for process_id in process_ids}

    def seconds(self):
        return sum(now - before.get(thread, 0) for process_id, before in self.before.items()
                   for thread, now in waits(process_id).items())
