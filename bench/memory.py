"""How much memory windows take, and give back."""

import os
import pathlib
import subprocess
import time

from stage import MIB, Stage, memory_of

WUFFER = os.environ["WUFFER"]


def files_mapped_by(proc):
    return {line.split(maxsplit=5)[5] for line in (proc / "maps").read_text().splitlines()
            if "/" in line}


def memory_without_others(proc):
    """The private memory that a process would have if no other Qt program ran: what it has
    written to, and all resident pages of the files that the X server, the window manager and the
    session bus do not use as well."""
    shared = set().union(*(files_mapped_by(pathlib.Path("/proc", number))
                           for number in os.environ["DESKTOP_PROCESSES"].split()))
    kilobytes, file = 0, ""
    for line in (proc / "smaps").read_text().splitlines():
        name, *rest = line.split()
        if not name.endswith(":"):
            file = line.split(maxsplit=5)[5] if "/" in line else ""
        elif name == ("Rss:" if file and file not in shared else "Private_Dirty:"):
            kilobytes += int(rest[0])
    return kilobytes / MIB


def memory_of_one_window():
    with subprocess.Popen([WUFFER]) as process:
        time.sleep(2)
        proc = pathlib.Path("/proc", str(process.pid))
        alone = memory_without_others(proc)
        private, dirty = memory_of(proc)
        process.terminate()
    yield "private memory with one window, MiB", 20, alone
    yield "  beside the Qt programs that run at the moment, MiB", None, private
    yield "  of it written to, MiB", None, dirty


def memory_of_windows():
    # Only memory that was written to: pages of the libraries may come at any moment.
    with Stage() as stage:
        _, one = stage.memory()
        for count in 10, 100:
            stage.tell(f"open {count - (1 if count == 10 else 10)}")
            time.sleep(1)
            _, many = stage.memory()
            yield f"memory of each further window, {count} windows, MiB", 0.5, \
                (many - one) / (count - 1)
        stage.tell("close")
        time.sleep(1)
        _, left = stage.memory()
        yield "memory kept after 100 windows have closed, MiB", 0, left - one
        stage.tell("cycle 100")
        _, before = stage.memory()
        stage.tell("cycle 1000")
        _, after = stage.memory()
        yield "memory kept of each of 1000 windows, KiB", 0, (after - before) * 1024 / 1000
