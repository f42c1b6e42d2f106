"""How long processes waited for a processor: delay of the computer, not of the processes."""

import glob


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


class Waits:
    """The time that processes have waited for a processor since this object was made.

    Tests add it to the time that they allow the program. On an idle computer it is close to 0.
    """

    def __init__(self, *process_ids):
        self.before = {process_id: waits(process_id) for process_id in process_ids}

    def seconds(self):
        return sum(now - before.get(thread, 0) for process_id, before in self.before.items()
                   for thread, now in waits(process_id).items())
